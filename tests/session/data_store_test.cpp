#include "session/data_store.h"

#include "session/data_folder.h"
#include "session/kept_stores.h"
#include "widgets/value_text.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <thread>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {
namespace {

using testing::DataFolder;
using testing::failure_of;

class DataStoreTest : public ::testing::Test {
protected:
    DataStoreTest() {
        tax.open(folder.connect_string(Store::tax));
        forms.open(folder.connect_string(Store::forms));
    }

    RowSet new_row(Connection& connection, std::string_view table) {
        RowSet rows = connection.open_rows(table, RowSetUse::update);
        rows.add_new();
        return rows;
    }

    DataFolder folder;
    Connection tax;
    Connection forms;
};

TEST_F(DataStoreTest, RowsComeBackInTheOrderSavedAndNumbersStayNumbers) {
    RowSet rows = tax.open_rows("Select * From PrePaidTaxes where AssesseeNo = 17 And FY = '2014-2015'",
                                RowSetUse::update);
    EXPECT_TRUE(rows.eof());
    struct Paid {
        const char *bank, *date;
        double amount;
    };
    for (const Paid& each :
         {Paid{"Z Bank", "15/09/2014", 1250.5}, Paid{"", "", 0}, Paid{"A Bank", "2014-12-01", 7}}) {
        rows.add_new();
        rows.set("AssesseeNo", 17);
        rows.set("FY", "2014-2015");
        rows.set("bankbranchname", each.bank);
        rows.set("DateOfPayment", each.date);
        rows.set("Amount", each.amount);
        rows.update();
    }
    EXPECT_EQ(folder.rows(Store::tax, "SELECT * FROM PrePaidTaxes"), "") << "not yet committed";
    tax.commit();
    EXPECT_EQ(folder.rows(Store::tax, "SELECT BankBranchName, DateOfPayment, Amount FROM PrePaidTaxes"),
              "Z Bank|2014-09-15|1250.5; |Null|0; A Bank|2014-12-01|7");
}

TEST_F(DataStoreTest, ValuesThatDoNotFitAreRefusedByNameAndValue) {
    struct Case {
        const char *why, *table, *column;
        Value value;
        const char* failure;
    };
    const Case cases[] = {
        {"an empty mask is no date", "NetWealthComputation", "DueDate", "__/__/____",
         "13 column \"DueDate\": not a date: \"__/__/____\""},
        {"nor is an empty text here", "NetWealthComputation", "ReturnDate", "",
         "13 column \"ReturnDate\": not a date: \"\""},
        {"a day that the calendar lacks", "NetWealthComputation", "DueDate", "31/04/2014",
         "13 column \"DueDate\": not a date: \"31/04/2014\""},
        {"a number is no date", "NetWealthComputation", "DueDate", 41912,
         "13 column \"DueDate\": not a date: \"41912\""},
        {"letters behind the number", "NetWealthComputation", "Refund", "12a",
         "13 column \"Refund\": not a number: \"12a\""},
        {"the empty text is no number", "PrePaidTaxes", "Amount", "",
         "13 column \"Amount\": not a number: \"\""},
        {"no number is endless", "PrePaidTaxes", "Amount", 1e308 * 10, "6 column \"Amount\": Overflow"},
        {"an unknown column is named", "PrePaidTaxes", "Amout", 1,
         "3265 Item cannot be found in the collection corresponding to the requested name or ordinal: "
         "\"Amout\"."},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        RowSet rows = new_row(tax, each.table);
        EXPECT_EQ(failure_of([&] { rows.set(each.column, each.value); }), each.failure);
    }
}

TEST_F(DataStoreTest, ValuesAreKeptAsTheirColumnsHoldThem) {
    RowSet rows = new_row(forms, "Challan");
    rows.set("Total", 1234.5);         // whole, halves to the even neighbour
    rows.set("IncomeTax", "1,00,000"); // as people write it
    rows.set("TypeOfPayment", 300);
    rows.set("ChqNo", Value());
    rows.update();
    EXPECT_TRUE(rows.eof() == false && rows["Total"].is_whole());
    EXPECT_EQ(failure_of([&] { rows.set("Total", 1e17); }), "6 column \"Total\": Overflow");
    forms.commit();
    EXPECT_EQ(folder.rows(Store::forms, "SELECT Total, IncomeTax, typeof(TypeOfPayment), ChqNo FROM Challan"),
              "1234|100000|text|Null");
    RowSet items = new_row(tax, "jewellery");
    items.set("DescAndWeiOfPreAndSemiPreStones", 0);
    items.set("NetAmt", -12.5);
    items.update();
    items.add_new();
    items.set("DescAndWeiOfPreAndSemiPreStones", "two rubies");
    items.update();
    tax.commit();
    EXPECT_EQ(folder.rows(Store::tax,
                          "SELECT DescAndWeiOfPreAndSemiPreStones, "
                          "typeof(DescAndWeiOfPreAndSemiPreStones), NetAmt, typeof(NetAmt) FROM jewellery"),
              "0|integer|-12.5|text; two rubies|text|Null|null");

    RowSet read = tax.open_rows("Select * From [jewellery] Order By JwelleryNo");
    std::string seen;
    for (; !read.eof(); read.move_next())
        seen += read["NetAmt"].text() + ";" + number_text(read["NetAmt"].number()) + " ";
    EXPECT_EQ(seen, "-12.5;-12.5 ;0 ");
    EXPECT_EQ(failure_of([&] { read.move_next(); }), "3021 No current record.");
}

TEST_F(DataStoreTest, AReaderWaitsForAWriterAndThenSaysWhoIsInTheWay) {
    sqlite3* foreign = nullptr; // knows nothing of gates
    sqlite3_open(folder.file(Store::tax).c_str(), &foreign);
    sqlite3_exec(foreign, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    tax.set_longest_wait(std::chrono::milliseconds(60));
    const std::string gate = folder.path() + "/LVWTax.gate";
    std::filesystem::remove(gate);
    std::filesystem::create_directory(gate); // as in a folder for reading, there is no gate to be had
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(failure_of([&] { (void)tax.open_rows("Enclosure"); }),
                  "5 " + folder.file(Store::tax) +
                      ": database is locked: another program keeps it for too long");
        std::filesystem::remove(gate);
    }
    std::thread leaves([&] {
        ::usleep(20000);
        sqlite3_exec(foreign, "COMMIT", nullptr, nullptr, nullptr);
    });
    tax.set_longest_wait(std::chrono::seconds(10));
    EXPECT_TRUE(tax.open_rows("Enclosure").eof());
    leaves.join();
    sqlite3_close(foreign);
    // The turn that the reader took meanwhile is free again.
    EXPECT_NO_THROW(folder.run(Store::tax, "DELETE * FROM Enclosure"));
}

TEST_F(DataStoreTest, ChallanNumberIsKnownRightAfterAddNewAndNeverGivenTwice) {
    RowSet rows = new_row(forms, "Challan");
    EXPECT_EQ(rows["ChallanID"].text(), "1");
    rows.set("ChallanDate", "30/09/2014");
    rows.set("TypeOfPayment", 300);
    rows.update();
    EXPECT_EQ(rows["challanid"].text(), "1");
    rows.close();
    forms.execute("DELETE FROM CHALLAN Where ChallanID = 1 ;");

    RowSet next = new_row(forms, "[Challan]");
    EXPECT_EQ(next["ChallanID"].text(), "2");
    forms.commit(); // an error report has come up between
    Connection other;
    other.open(folder.connect_string(Store::forms));
    RowSet of_other = new_row(other, "Challan");
    EXPECT_EQ(of_other["ChallanID"].text(), "3");
    of_other.update();
    other.close();
    next.update();
    forms.commit();
    EXPECT_EQ(folder.rows(Store::forms, "SELECT ChallanID FROM Challan"), "2; 3");
}

TEST_F(DataStoreTest, AnUpdateInPlaceWritesTheRowThatItRead) {
    folder.run(Store::tax, "INSERT INTO NetWealthComputation (AssesseeNo, FY, LessDebt, Interest) VALUES "
                           "(1, '2014-2015', 5, NULL), (2, '2014-2015', 6, NULL)");
    RowSet rows = tax.open_rows("Select * from NetWealthComputation WHERE AssesseeNo = 2", RowSetUse::update);
    rows.set("Interest", "37.02");
    EXPECT_EQ(rows["Interest"].number(), 37.02);
    rows.update();
    tax.commit();
    EXPECT_EQ(folder.rows(Store::tax, "SELECT AssesseeNo, LessDebt, Interest FROM NetWealthComputation"),
              "1|5|Null; 2|6|37.02");
}

TEST_F(DataStoreTest, RowsHaveTheColumnsThatAnotherProgramLeftTheTable) {
    const std::string_view select = "Select * from NetWealthComputation WHERE AssesseeNo = 1";
    folder.run(Store::tax,
               "INSERT INTO NetWealthComputation (AssesseeNo, FY, Refund) VALUES (1, '2014-2015', 7)");
    EXPECT_EQ(tax.open_rows(select, RowSetUse::read)["Refund"].number(), 7);
    folder.run(Store::tax, "ALTER TABLE NetWealthComputation DROP COLUMN Interest");
    EXPECT_EQ(failure_of([&] { tax.open_rows(select, RowSetUse::update).set("Interest", 1); }).substr(0, 4),
              "3265");
    tax.commit();
    folder.run(Store::tax, "ALTER TABLE NetWealthComputation ADD COLUMN Interest NUMERIC");
    RowSet rows = tax.open_rows(select, RowSetUse::update);
    rows.set("Interest", 5);
    rows.update();
    tax.commit();
    EXPECT_EQ(folder.rows(Store::tax, "SELECT Refund, Interest FROM NetWealthComputation"), "7|5");
}

TEST_F(DataStoreTest, WhatCannotBeDoneSaysWhy) {
    folder.run(Store::tax, "INSERT INTO Enclosure (Description) VALUES ('x')");
    RowSet rows = tax.open_rows("Enclosure", RowSetUse::update);
    RowSet read = tax.open_rows("Enclosure");
    tax.commit();
    folder.run(Store::tax, "DELETE * FROM Enclosure");
    RowSet kept = tax.open_rows("Enclosure", RowSetUse::update);
    rows.set("Figure", "1");
    const auto run = [this](const char* statement) { (void)tax.execute(statement); };
    const auto open = [this](const char* select) { (void)tax.open_rows(select, RowSetUse::update); };
    struct Case {
        const char* why;
        std::function<void()> act;
        const char* failure;
    };
    const std::string elsewhere = "SELECT x FROM [" + folder.path() + "/Assessee.mdb].Nobody";
    const Case cases[] = {
        {"a row that is gone", [&] { rows.update(); }, "3167 Record is deleted."},
        {"closed rows", [&] { rows.close(), rows.add_new(); },
         "3704 Operation is not allowed when the object is closed."},
        {"reading them", [&] { (void)rows["Figure"]; },
         "3704 Operation is not allowed when the object is closed."},
        {"no row", [&] { (void)kept["Figure"]; }, "3021 No current record."},
        {"rows for reading", [&] { read.add_new(); },
         "3027 Cannot update. The rows were opened for reading."},
        {"rows of no table", [&] { open("SELECT 1 UNION SELECT 2"); },
         "3027 Cannot update. The rows are not those of one table."},
        {"an unknown table", [&] { open("Enclosures"); }, "1 no such table: Enclosures"},
        {"one of another file", [&] { open(elsewhere.c_str()); }, "1 no such table: Nobody"},
        {"an unknown column read", [&] { open("SELECT Nope FROM Enclosure"); }, "1 no such column: Nope"},
        {"and one written", [&] { run("INSERT INTO Enclosure (Descripton) VALUES ('x')"); },
         "1 table Enclosure has no column named Descripton"},
        {"a closed connection", [&] { tax.close(), kept.add_new(); }, "3709 The connection is closed."},
    };
    for (const Case& each : cases)
        EXPECT_EQ(failure_of(each.act), each.failure) << each.why;
}

TEST_F(DataStoreTest, TheStoreItselfRefusesWrongTypes) {
    struct Case {
        const char *column, *value, *failure;
    };
    constexpr Case cases[] = {
        {"LessDebt", "'abc'", "275 CHECK constraint failed: column LessDebt takes a number"},
        {"DueDate", "'2014-02-30'", "275 CHECK constraint failed: column DueDate takes a date"},
        {"DueDate", "'30/09/2014'", "275 CHECK constraint failed: column DueDate takes a date"},
        {"AssesseeNo", "1.5", "275 CHECK constraint failed: column AssesseeNo takes a whole number"},
        {"LessDebt, DueDate", "'12.50', #09/30/2014#", "none"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(failure_of([&] {
                      folder.run(Store::tax, std::string("INSERT INTO NetWealthComputation (") + each.column +
                                                 ") VALUES (" + each.value + ")");
                  }),
                  each.failure);
    EXPECT_EQ(folder.rows(Store::tax, "SELECT LessDebt, DueDate FROM NetWealthComputation"),
              "12.5|2014-09-30");
}

TEST_F(DataStoreTest, AStatementReachesATableOfAnotherFile) {
    folder.run(Store::assessee,
               "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, Pin) VALUES (17, 'A', '1')");
    const std::string from = "SELECT Assessee_Name, PIN FROM [" + folder.path() +
                             "/Assessee.mdb; PWD=l1ght3nedf4rmh0us3s].AssesseeInfo where AssesseeNo=17 ";
    for (int i = 0; i < 2; ++i) // a failure leaves nothing in the way of the next try
        EXPECT_EQ(failure_of([&] { (void)tax.open_rows("SELECT None FROM " + from.substr(from.find('['))); }),
                  "1 no such column: None");
    tax.execute("DELETE FROM Enclosure"); // also within a transaction
    for (int i = 0; i < 3; ++i) {
        const RowSet rows = tax.open_rows(from);
        EXPECT_EQ(rows["Assessee_Name"].text() + rows["pin"].text(), "A1");
        tax.commit();
    }
}

TEST_F(DataStoreTest, AConnectionThatCannotBeOpenedSaysWhy) {
    Connection connection;
    EXPECT_EQ(failure_of([&] { connection.open("Data Source=" + folder.path() + "/none/LVWTax.mdb;"); }),
              "76 Path not found: " + folder.path() + "/none");
    EXPECT_EQ(failure_of([&] { tax.open(folder.connect_string(Store::tax)); }),
              "3705 Operation is not allowed when the object is open.");
}

TEST_F(DataStoreTest, TextsAreFoundInAnyCase) {
    folder.run(Store::assessee, "INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1) VALUES ('Bank', "
                                "'Canara Bank', '0240113')");
    EXPECT_EQ(folder.rows(Store::assessee,
                          "SELECT OtherInfo1 FROM AICustomisedItems WHERE ItemGroup = 'bank' AND Item = "
                          "'CANARA BANK' AND OtherInfo1 <> '' AND NOT OtherInfo1 IS NULL "),
              "0240113");
}

TEST_F(DataStoreTest, SharesFilesWithTheGroupAndNobodyElseWhateverTheMask) {
    const mode_t old = ::umask(0077);
    const DataFolder strict;
    Connection connection;
    connection.open(strict.connect_string(Store::tax));
    connection.execute("INSERT INTO Enclosure (FY) VALUES ('x')");
    for (const char* each : {"LVWTax.db", "LVWTax.gate", "LVWTax.db-journal"}) {
        struct stat found {};
        ASSERT_EQ(::stat((strict.path() + "/" + each).c_str(), &found), 0) << each;
        EXPECT_EQ(found.st_mode & 0777U, 0660U) << each;
    }
    ::umask(old);
}

TEST_F(DataStoreTest, AKeptStoreIsTakenUpOnlyWhileItsFileIsUntouched) {
    const std::string file = folder.file(Store::forms);
    const auto write_from_outside = [&] {
        folder.run(Store::forms, "INSERT INTO Challan (AY) VALUES ('x')");
    };
    struct Case {
        const char* why;
        std::function<void()> between_two_openings;
        bool is_taken_up;
    };
    const Case cases[] = {
        {"nothing happened", [] {}, true},
        {"another program wrote", write_from_outside, false},
        {"a copy was put back in its place",
         [&] {
             std::filesystem::copy_file(file, file + ".copy");
             std::filesystem::rename(file + ".copy", file);
         },
         false},
        {"its rights were changed", [&] { ::chmod(file.c_str(), 0600); }, false},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        KeptStores kept;
        Connection one;
        one.keep_in(&kept);
        one.open(folder.connect_string(Store::forms));
        one.execute("CREATE TEMP TABLE MarkOfThisOpening (x)");
        RowSet rows = one.open_rows("Challan", RowSetUse::update);
        one.close();
        EXPECT_EQ(failure_of([&] { rows.add_new(); }), "3709 The connection is closed.");
        each.between_two_openings();
        Connection other;
        other.keep_in(&kept);
        other.open(folder.connect_string(Store::forms));
        EXPECT_EQ(failure_of([&] { (void)other.open_rows("MarkOfThisOpening"); }) == "none",
                  each.is_taken_up);
        EXPECT_EQ(number_text(other.open_rows("Select count(*) As n From Challan")["n"].number()),
                  folder.rows(Store::forms, "SELECT count(*) FROM Challan"));
        other.close();
        std::filesystem::rename(file, file + ".away");
        EXPECT_EQ(failure_of([&] { other.open(folder.connect_string(Store::forms)); }).substr(0, 4), "3024");
        std::filesystem::rename(file + ".away", file);
    }
}

} // namespace
} // namespace levora::session
