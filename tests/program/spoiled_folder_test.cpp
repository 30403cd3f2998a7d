#include "program/sample_run.h"

#include "session/data_folder.h"
#include "session/faulty_disk.h"
#include "session/store_check.h"
#include "session/whole_files.h"
#include "tools/sample_clients.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <list>
#include <map>
#include <regex>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::program {
namespace {

using session::Store;
using session::testing::FaultyDisk;
using testing::SampleRun;
using testing::Save;
using testing::saves;

const Save& save_named(std::string_view name) {
    return *std::ranges::find_if(saves, [&](const Save& each) { return each.name == name; });
}

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

// Another program that keeps a store, and knows nothing of gates.
class ForeignLock {
public:
    ForeignLock(const session::testing::DataFolder& folder, Store store) {
        sqlite3_open(folder.file(store).c_str(), &database_);
        sqlite3_exec(database_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    }
    ~ForeignLock() { sqlite3_close(database_); }
    ForeignLock(const ForeignLock&) = delete;
    ForeignLock& operator=(const ForeignLock&) = delete;

private:
    sqlite3* database_ = nullptr;
};

class SpoiledFolderTest : public ::testing::Test {
protected:
    SpoiledFolderTest() {
        tools::add_sample_clients(folder.path());
        folder.run(Store::tax,
                   "INSERT INTO BusinessAsset (AssesseeNo, FY, AssetType, AssetName, "
                   "BalanceSheetAmount, ValueTobeTaken) VALUES (101, '2014-2015', 1, 'Gold', 5, 5)");
    }

    // All files, byte by byte; what the program keeps for itself aside.
    [[nodiscard]] std::string bytes() const {
        std::map<std::string, std::string> files;
        for (const auto& each : std::filesystem::recursive_directory_iterator(folder.path()))
            if (each.is_regular_file() && each.path().extension() != ".gate" &&
                each.path().filename() != "ErrorLog.txt" && each.path().filename() != "settings.toml")
                files[each.path()] = session::read_whole_file(each.path());
        std::string text;
        for (const auto& [name, content] : files)
            text += name + "\n" + content;
        return text;
    }
    // As a foreign program can: without the store's own checks.
    void run(Store store, const std::string& statement) const {
        sqlite3* database = nullptr;
        sqlite3_open(folder.file(store).c_str(), &database);
        sqlite3_exec(database, "PRAGMA ignore_check_constraints = ON", nullptr, nullptr, nullptr);
        EXPECT_EQ(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << statement << ": " << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
    // The rows of a table, a line each, or why they can't be read; nothing where it is not there.
    [[nodiscard]] std::string rows_of(Store store, const std::string& table) const {
        try {
            return std::regex_replace(folder.rows(store, "SELECT * FROM [" + table + "]"), std::regex("; "),
                                      "\n") +
                   "\n";
        } catch (const Failure& failure) {
            return failure.number == 1 ? "" : failure.what();
        }
    }
    // The first page of a table, beyond reading.
    void spoil_page(const std::string& table) const {
        constexpr int page = 4096;
        const std::string number = folder.rows(
            Store::tax, "SELECT rootpage FROM sqlite_schema WHERE type = 'table' AND name = '" + table + "'");
        std::fstream(folder.file(Store::tax), std::ios::binary | std::ios::in | std::ios::out)
                .seekp((std::stol(number) - 1) * page)
            << std::string(page, '\xff');
    }
    void keep() { std::filesystem::copy(folder.path(), kept.path(), over_all); }
    void bring_back() { std::filesystem::copy(kept.path(), folder.path(), over_all); }
    std::string told(const SampleRun& run) const { return replaced(run.person.told, folder.path(), ".."); }

    static constexpr auto over_all =
        std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing;
    session::testing::DataFolder folder;
    session::testing::DataFolder kept;
};

// A table behind a screen, and a column of it.
struct Place {
    const char* save; // by its name among the saves or the sub-screens below
    const char *table, *column;
};

constexpr Place places[] = {
    {"sheet", "NetWealthComputation", "LessDebt"},
    {"sheet", "PrePaidTaxes", "Amount"},
    {"exit", "NetWealthComputation", "LessDebt"},
    {"assets", "Immovable Property Details", "CostOfAcquition"},
    {"assets", "Urban Land", "DebtOwed"},
    {"assets", "Movable Property Details", "DebtOwed"},
    {"assets", "InterestInFirmOrAOP", "DebtOwed"},
    {"assets", "jewellery", "GrossWeight"},
    {"assets", "Asset Details", "NetUrbanLand"},
    {"rent", "Annual Rent", "DepositAccepted"},
    {"plot", "Unbuilt Area", "BuiltUpAreaOfPlot"},
    {"stones", "PreciousStones", "ValueOfStones"},
    {"deemed", "DeemedAssetDetails", "DebtOwed"},
    {"business", "BusinessAsset", "BalanceSheetAmount"},
    {"exempted", "AssetUnderExemption", "DebtOwed"},
};

// The sub-screens of the assets, which save by themselves.
const Save sub_screens[] = {
    {"rent",
     [](SampleRun& run, const std::string& figure) {
         run.click("frmWealthMain", "cmdAssets");
         run.grid("frmImmovable", "sprImmovable").press(2, 11);
         run.grid("frmImmovable", "sprAnnualRent").type(2, 1, figure);
     },
     [](SampleRun& run) { run.click("frmImmovable", "cmdOKAnnualRent"); }},
    {"plot",
     [](SampleRun& run, const std::string& figure) {
         run.click("frmWealthMain", "cmdAssets");
         run.grid("frmImmovable", "sprImmovable").press(2, 21);
         run.grid("frmImmovable", "sprUnbuiltArea").type(2, 1, figure);
     },
     [](SampleRun& run) { run.click("frmImmovable", "cmdUnbuiltAreaOk"); }},
    {"stones",
     [](SampleRun& run, const std::string& figure) {
         run.click("frmWealthMain", "cmdAssets");
         run.grid("frmImmovable", "sprJewellary").press(2, 5);
         run.grid("frmImmovable", "sprPreciousStone").type(1, 1, "F" + figure);
     },
     [](SampleRun& run) { run.click("frmImmovable", "btnOK"); }},
};

const Save& save_of(const Place& place) {
    for (const Save& each : sub_screens)
        if (std::string_view(each.name) == place.save) return each;
    return save_named(place.save);
}

// A text about "[T]" and "{C}", for a place.
std::string here(const std::string& text, const Place& place) {
    return replaced(replaced(text, "[T]", place.table), "{C}", place.column);
}

constexpr std::string_view asks = "The stored rows of ... were not read and would be lost by saving. Replace "
                                  "them by what is on the screen ?\n";

TEST_F(SpoiledFolderTest, RowsThatAScreenCannotReadAreToldAndNeverSavedOver) {
    struct Fault {
        const char *why, *statement;
        std::string on_opening, on_saving;
    };
    const Fault faults[] = {
        {"a missing table", "DROP TABLE '[T]'", "Error: 1 no such table: [T]\n",
         "Error: 1 no such table: [T]\n"},
        {"a missing column", "ALTER TABLE '[T]' DROP COLUMN {C}",
         "Error: 3265 Item cannot be found in the collection corresponding to the requested name or "
         "ordinal: \"{C}\".\n",
         "Error: 3265 Item cannot be found in the collection corresponding to the requested name or "
         "ordinal: \"{C}\".\n"},
        {"a text for a number", "UPDATE '[T]' SET {C} = 'much'",
         "Error: 13 table \"[T]\", column \"{C}\": not a number: \"much\"\n", std::string(asks)},
        {"bytes", "UPDATE '[T]' SET {C} = x'4142'",
         "Error: 13 table \"[T]\", column \"{C}\": not a number: \"AB\"\n", std::string(asks)},
        {"a number of digits without end, and no number, are shown", "UPDATE '[T]' SET {C} = 1e300", "", ""},
        {"Null", "UPDATE '[T]' SET {C} = NULL", "", ""},
        {"a damaged page", nullptr, "Error: 11 ../LVWTax.db: database disk image is malformed\n",
         "Error: 11 ../LVWTax.db: database disk image is malformed\n"},
    };
    keep();
    for (const Fault& fault : faults)
        for (const Place& place : places) {
            SCOPED_TRACE(std::string(place.save) + ", " + place.table + ": " + fault.why);
            bring_back();
            if (fault.statement)
                run(Store::tax, here(fault.statement, place));
            else
                spoil_page(place.table);
            const std::string before = rows_of(Store::tax, place.table);
            SampleRun sample(folder.path());
            sample.person.to_replace = widgets::Answer::no;
            ASSERT_TRUE(sample.start());
            save_of(place).enter(sample, "27");
            EXPECT_EQ(told(sample), here(fault.on_opening, place));
            sample.person.told.clear();
            save_of(place).save(sample);
            if (fault.on_saving == asks) { // and names no table that was read before
                EXPECT_EQ(told(sample).find(std::string("rows of ") + place.table),
                          std::string("The stored ").size());
            }
            EXPECT_EQ(std::regex_replace(replaced(told(sample), " (nothing of this save is stored)", ""),
                                         std::regex("rows of .* were"), "rows of ... were"),
                      here(fault.on_saving, place));
            if (!fault.on_saving.empty()) {
                EXPECT_EQ(rows_of(Store::tax, place.table), before);
            }
            if (!sample.running()) continue;
            // The other screens go on.
            const bool is_exempted = std::string_view(place.save) == "exempted";
            const Save& other = save_named(is_exempted ? "deemed" : "exempted");
            other.enter(sample, "31");
            other.save(sample);
            EXPECT_NE(
                rows_of(Store::tax, is_exempted ? "DeemedAssetDetails" : "AssetUnderExemption").find("|31|"),
                std::string::npos);
        }
}

TEST_F(SpoiledFolderTest, AQuestionAboutUnreadRowsThatIsDismissedLeavesTheScreenAndYesReplacesThem) {
    const Place place{"deemed", "DeemedAssetDetails", "DebtOwed"};
    run(Store::tax, "UPDATE DeemedAssetDetails SET DebtOwed = 'much' WHERE AssesseeNo = 101");
    run(Store::tax, "UPDATE NetWealthComputation SET LessDebt = 'much' WHERE AssesseeNo = 101");
    const std::string before = rows_of(Store::tax, place.table);
    SampleRun sample(folder.path());
    ASSERT_TRUE(sample.start());
    save_of(place).enter(sample, "27");
    save_of(place).save(sample);
    EXPECT_EQ(rows_of(Store::tax, place.table), before);
    EXPECT_EQ(sample.grid("frmDeemedAsset", "sprDeemedAsset").text(6, 1), "27") << "what was typed stays";
    sample.click("frmWealthMain", "cmdMainExit");
    EXPECT_TRUE(sample.running());
    sample.person.to_replace = widgets::Answer::yes;
    sample.click("frmWealthMain", "cmdSave1");
    save_of(place).save(sample);
    EXPECT_NE(rows_of(Store::tax, place.table), before);
    EXPECT_EQ(session::find_faults(folder.path()), std::vector<std::string>());
}

TEST_F(SpoiledFolderTest, AnEnclosureChallanOrReturnThatWasNotReadWholeIsNotSavedOver) {
    run(Store::tax, "DELETE FROM PrePaidTaxes"); // which the sheet would save
    run(Store::tax, "UPDATE Enclosure SET Description = x'4142'");
    run(Store::forms, "UPDATE Challan SET DrawnOnBank = x'4142'");
    std::filesystem::create_directory(folder.path() + "/ITR");
    std::ofstream(folder.path() + "/ITR/WT 101 2014-2015") << "<FORMP2:Form>cut off in the mid";
    const std::string before = bytes();
    SampleRun sample(folder.path());
    sample.person.to_replace = widgets::Answer::no;
    ASSERT_TRUE(sample.start());
    sample.click("frmWealthMain", "cmdSave1");
    save_named("challan").enter(sample, "27");
    save_named("challan").save(sample);
    save_named("working copy").enter(sample, "27");
    sample.control<widgets::ListField>("frmFormBA", "cboReturnType").choose("Original");
    save_named("working copy").save(sample);
    const std::string would_be_lost =
        " were not read and would be lost by saving. Replace them by what is on the screen ?\n";
    EXPECT_EQ(told(sample), "Error: 13 table \"Enclosure\", column \"Description\": not a text: \"AB\"\n"
                            "The stored rows of Enclosure" +
                                would_be_lost +
                                "Error: 13 table \"Challan\", column \"DrawnOnBank\": not a text: \"AB\"\n"
                                "Overwrite the changes to existing challan of the same date ?\n"
                                "Parts of the stored challan" +
                                would_be_lost +
                                "Blank or Invalid XML file, could not load the file\n"
                                "The saved data in ../ITR/WT 101 2014-2015" +
                                would_be_lost);
    EXPECT_TRUE(bytes() == before);
}

TEST_F(SpoiledFolderTest, AStoreThatIsNoneIsToldAtTheStartAndLeftAsItIs) {
    struct Case {
        const char* why;
        Store store;
        std::function<void(const std::string& file)> spoil;
        const char* told;
        bool starts = false;
    };
    const auto overwrite = [](const std::string& file, std::size_t at, const std::string& text) {
        std::fstream(file, std::ios::binary | std::ios::in | std::ios::out).seekp(static_cast<long>(at))
            << text;
    };
    const auto replace = [](const std::string& file, const std::string& text) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    };
    std::unique_ptr<ForeignLock> lock;
    const Case cases[] = {
        {"missing", Store::forms, [](const auto& file) { std::filesystem::remove(file); },
         "Error: Could not find file '../LVForms.db': No such file or directory.\n"},
        {"a folder", Store::assessee,
         [](const auto& file) { std::filesystem::remove(file), std::filesystem::create_directory(file); },
         "Error: 75 ../Assessee.db: Is a directory\n"},
        {"garbage", Store::income_tax, [&](const auto& file) { replace(file, std::string(9000, '\x9d')); },
         "Error: 26 ../LVIT.db: file is not a database\n"},
        {"a broken header", Store::tax, [&](const auto& file) { overwrite(file, 4, "????"); },
         "Error: 26 ../LVWTax.db: file is not a database\n"},
        {"cut in the middle", Store::tax,
         [](const auto& file) { std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2); },
         "Error: 11 ../LVWTax.db: database disk image is malformed\n"},
        {"a text file", Store::assessee,
         [&](const auto& file) {
             replace(file, "Minutes of the meeting of 14 August, kept by the office\n");
         },
         "Error: 26 ../Assessee.db: file is not a database\n"},
        {"empty", Store::assessee, [&](const auto& file) { replace(file, ""); },
         "Error: 1 no such table: AssesseeInfo\n", true},
        {"another program's store", Store::income_tax,
         [&](const auto& file) {
             std::filesystem::remove(file);
             run(Store::income_tax, "CREATE TABLE Songs (Title)");
         },
         "Error: 1 no such table: AYRetDate\n", true},
        {"locked", Store::assessee,
         [&](const auto&) { lock = std::make_unique<ForeignLock>(folder, Store::assessee); },
         "Error: 5 ../Assessee.db: database is locked: another program keeps it for too long\n"},
    };
    keep();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        std::filesystem::remove_all(folder.path());
        bring_back();
        each.spoil(folder.file(each.store));
        const std::string before = bytes();
        SampleRun sample(folder.path());
        sample.session().AssesseeDb.set_longest_wait(std::chrono::milliseconds(20));
        EXPECT_EQ(sample.start(), each.starts);
        EXPECT_EQ(told(sample), each.told);
        sample.end();
        EXPECT_TRUE(bytes() == before);
    }
}

TEST_F(SpoiledFolderTest, AFolderThatTakesNoSaveIsToldByEveryScreenAndLeftAsItIs) {
    const uid_t user = ::geteuid();
    const auto rights = [&](mode_t of_folders, mode_t of_files) {
        ::chmod(folder.path().c_str(), of_folders);
        for (const auto& each : std::filesystem::recursive_directory_iterator(folder.path()))
            ::chmod(each.path().c_str(), each.is_directory() ? of_folders : of_files);
    };
    std::list<ForeignLock> locks;
    struct Case {
        const char* why;
        std::function<void()> spoil, mend;
        std::string of_store, of_file; // told; none where a file is not concerned
        bool from_the_start = false;
    };
    const Case cases[] = {
        {"for reading only",
         [&] {
             rights(0555, 0444);
             (void)!::seteuid(65534); // the machine's own user may do everything
         },
         [&] {
             (void)!::seteuid(user);
             rights(0770, 0660);
         },
         "Error: 70 ../[S].gate: Permission denied (nothing of this save is stored)\n",
         "Error: 70 ../[F]: Permission denied\n"},
        {"stores for reading only",
         [&] {
             for (const Store each : session::all_stores)
                 std::filesystem::remove(folder.path() + "/" + std::string(base_name(each)) + ".gate");
             rights(0777, 0444);
             (void)!::seteuid(65534);
         },
         [&] {
             (void)!::seteuid(user);
             rights(0770, 0660);
         },
         "Error: 70 ../[S].db: attempt to write a readonly database (nothing of this save is stored)\n", "",
         true},
        {"a full disk",
         [] { FaultyDisk::fail_at(1, FaultyDisk::Fault::disk_full, FaultyDisk::Lasting::from_then_on); },
         FaultyDisk::mend, "Error: Disk is full. Continue?\n", "Error: Disk is full. Continue?\n"},
        {"locked",
         [&] {
             for (const Store each : session::all_stores)
                 locks.emplace_back(folder, each);
         },
         [&] { locks.clear(); },
         "Error: 5 ../[S].db: database is locked: another program keeps it for too long (nothing of this "
         "save is stored)\n",
         ""},
    };
    for (const Case& each : cases)
        for (const Save& save : saves) {
            const std::string_view name = save.name;
            const bool of_file = name == "XML file" || name == "working copy";
            if (!save.told || (of_file && each.of_file.empty())) continue;
            SCOPED_TRACE(std::string(name) + ": " + each.why);
            const std::string before = bytes();
            if (each.from_the_start) each.spoil();
            SampleRun sample(folder.path());
            ASSERT_TRUE(sample.start());
            sample.session().TaxDb.set_longest_wait(std::chrono::milliseconds(20));
            sample.session().FormsDb.set_longest_wait(std::chrono::milliseconds(20));
            save.enter(sample, "27");
            sample.person.told.clear();
            if (!each.from_the_start) each.spoil();
            const std::string locks_told =
                locks.empty()
                    ? ""
                    : "Error: 5 ../LVWTax.db: database is locked: another program keeps it for too long\n";
            save.save(sample);
            sample.end();
            each.mend();
            std::string expected =
                of_file ? replaced(each.of_file, "[F]", name == "XML file" ? "out.xml" : "ITR")
                        : replaced(each.of_store, "[S]", name == "challan" ? "LVForms" : "LVWTax");
            if (name == "sheet" || name == "exit") expected += expected; // its row, and the prepaid taxes
            if (name == "business") expected += locks_told;              // the assets read anew
            EXPECT_EQ(
                replaced(told(sample), "Overwrite the changes to existing challan of the same date ?\n", ""),
                expected);
            EXPECT_TRUE(bytes() == before);
        }
}

} // namespace
} // namespace levora::program
