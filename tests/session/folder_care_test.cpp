#include "session/client_file.h"
#include "session/data_folder.h"
#include "session/faulty_disk.h"
#include "session/parts_file.h"
#include "session/store_backup.h"
#include "session/store_check.h"
#include "session/whole_files.h"
#include "session/whole_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <random>
#include <regex>
#include <set>

#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace levora::session {
namespace {

using testing::DataFolder;
using testing::failure_of;
using testing::FaultyDisk;

class FolderCareTest : public ::testing::Test {
protected:
    FolderCareTest() {
        folder.run(Store::assessee,
                   "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name) VALUES (17, 'A'), (18, 'B')");
        folder.run(Store::tax,
                   "INSERT INTO Enclosure (AssesseeNo, FY, Description) VALUES (17, '2014-2015', 'of A'), "
                   "(18, '2014-2015', 'of B')");
        folder.run(Store::tax, "INSERT INTO PreciousStones (AssesseeNo, StoneSrNo) VALUES (18, 1), (17, 2)");
        folder.run(Store::forms, "INSERT INTO Challan (AssesseeNo, Total) VALUES (18, 5), (17, 7)");
        std::filesystem::create_directory(folder.path() + "/ITR");
        std::ofstream(folder.path() + "/ITR/WT 17 2014-2015R") << "<return/>";
        std::ofstream(folder.path() + "/ITR/WT 170 2014-2015") << "another's";
    }

    [[nodiscard]] std::string faults() const {
        std::string text;
        for (const std::string& each : find_faults(folder.path()))
            text += each + "\n";
        return text;
    }
    // As a foreign program can: without the store's own checks.
    void spoil(Store store, const std::string& statement) const { spoil(folder.file(store), statement); }
    static void spoil(const std::string& store, const std::string& statement) {
        sqlite3* database = nullptr;
        sqlite3_open(store.c_str(), &database);
        sqlite3_exec(database, "PRAGMA ignore_check_constraints = ON", nullptr, nullptr, nullptr);
        EXPECT_EQ(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }

    DataFolder folder;
    DataFolder elsewhere;
    std::string file = elsewhere.path() + "/out";
};

TEST_F(FolderCareTest, ASoundFolderHasNoFaultsAndRentOfADeletedPropertyIsNone) {
    folder.run(
        Store::tax,
        "INSERT INTO [Annual Rent] (AssesseeNo, FY, AssetType, PropertyNo) VALUES (17, '2014-2015', 0, 3)");
    EXPECT_EQ(faults(), "");
}

TEST_F(FolderCareTest, EachFaultIsToldInPlainWords) {
    spoil(Store::tax, "INSERT INTO NetWealthComputation (AssesseeNo, FY, LessDebt, DueDate) "
                      "VALUES (17, '2014-2015', 'much', '2014-02-30'), (17, '2014-2015', 1, NULL)");
    spoil(Store::tax, "UPDATE Enclosure SET AssesseeNo = 99 WHERE Description = 'of B'");
    spoil(Store::tax, "UPDATE Enclosure SET AssesseeNo = NULL, Description = CAST(x'41'||char(7)||"
                      "printf('%.90c', 'B') AS BLOB) WHERE Description = 'of A'");
    spoil(Store::tax,
          "INSERT INTO jewellery (AssesseeNo, DescAndWeiOfPreAndSemiPreStones) VALUES (17.5, x'42')");
    spoil(Store::forms, "UPDATE Challan SET ChallanDate = 41912 WHERE AssesseeNo = 17");
    spoil(Store::tax, "ALTER TABLE TempPrint DROP COLUMN Col13");
    spoil(Store::income_tax, "DROP TABLE AYRetDate");
    EXPECT_EQ(
        faults(),
        "LVWTax: table \"NetWealthComputation\", row 1, column \"LessDebt\": not a number: \"much\"\n"
        "LVWTax: table \"NetWealthComputation\", row 1, column \"DueDate\": not a date: \"2014-02-30\"\n"
        "LVWTax: table \"NetWealthComputation\" has 2 rows of one key: AssesseeNo 17, FY 2014-2015\n"
        "LVWTax: table \"Enclosure\", row 1, column \"Description\": not a text: "
        "\"A?BBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBB\"...\n"
        "LVWTax: table \"jewellery\", row 1, column \"AssesseeNo\": not a whole number: \"17.5\"\n"
        "LVWTax: table \"jewellery\", row 1, column \"DescAndWeiOfPreAndSemiPreStones\": not a text or "
        "number: \"B\"\n"
        "LVWTax: table \"TempPrint\" lacks the column \"Col13\"\n"
        "LVIT: table \"AYRetDate\" is missing\n"
        "LVForms: table \"Challan\", row 2, column \"ChallanDate\": not a date: \"41912\"\n"
        "LVWTax: table \"Enclosure\" has 1 row(s) of no assessee\n"
        "LVWTax: table \"Enclosure\" has 1 row(s) of assessee 99, whom the master does not have\n"
        "LVWTax: table \"jewellery\" has 1 row(s) of assessee 17.5, whom the master does not have\n");
}

TEST_F(FolderCareTest, AForeignAMissingAndADamagedStoreAreFaults) {
    std::ofstream(folder.file(Store::income_tax)) << "this is no store, though it has its name";
    std::filesystem::remove(folder.file(Store::forms));
    std::string image = read_whole_file(folder.file(Store::tax));
    for (std::size_t i = 4096; i < image.size(); i += 512)
        image[i] = static_cast<char>(~image[i]);
    std::ofstream(folder.file(Store::tax), std::ios::binary) << image;
    const std::string told = faults();
    EXPECT_NE(told.find("LVIT: " + folder.file(Store::income_tax) + ": file is not a database"),
              std::string::npos);
    EXPECT_NE(told.find("LVForms: Could not find file '" + folder.file(Store::forms)), std::string::npos);
    EXPECT_NE(told.find("LVWTax: " + folder.file(Store::tax) + ": database disk image is malformed"),
              std::string::npos)
        << told;
    EXPECT_EQ(read_whole_file(folder.file(Store::tax)), image) << "looking changes nothing";
}

TEST_F(FolderCareTest, ABackupBringsBackTheFolderAsItStood) {
    back_up_folder(folder.path(), file);
    folder.run(Store::tax, "DELETE * FROM Enclosure");
    const std::string restored = elsewhere.path() + "/new/one";
    restore_folder(file, restored);
    EXPECT_EQ(find_faults(restored).size(), 0U);
    EXPECT_EQ(run_statement(restored, Store::tax, "SELECT Description FROM Enclosure").rows.size(), 2U);
    EXPECT_EQ(read_whole_file(restored + "/ITR/WT 17 2014-2015R"), "<return/>");
    EXPECT_EQ(failure_of([&] { restore_folder(file, restored); }),
              "75 " + restored + "/LVWTax.db: there is a store already");
    EXPECT_EQ(failure_of([&] { back_up_folder(folder.path(), file); }), "75 " + file + ": File exists");
}

TEST_F(FolderCareTest, ADamagedBackupRestoresNothing) {
    back_up_folder(folder.path(), file);
    std::string image = read_whole_file(file);
    const std::size_t at = image.find("of A");
    ASSERT_NE(at, std::string::npos);
    for (std::size_t i = at - 3000; i < at + 500; ++i)
        image[i] = 'x';
    std::ofstream(file, std::ios::binary) << image;
    const std::string restored = elsewhere.path() + "/new";
    EXPECT_NE(failure_of([&] { restore_folder(file, restored); }), "none");
    std::filesystem::remove(file);
    back_up_folder(folder.path(), file);
    spoil(file, "DELETE FROM part WHERE name = 'LVIT.db'");
    EXPECT_EQ(failure_of([&] { restore_folder(file, restored); }),
              "75 " + file + ": " + restored + "/LVIT.db is not in it");
    EXPECT_FALSE(std::filesystem::exists(restored + "/LVWTax.db"));
}

// What makes a file or folder of another, each into the same place.
class FolderWorkTest : public FolderCareTest {
protected:
    struct Work {
        const char* why;
        std::function<void()> act;
        bool into_a_folder = false; // that has its stores
    };
    FolderWorkTest() {
        back_up_folder(folder.path(), file);
        export_client(folder.path(), 17, file + "17");
    }
    void start_anew(const Work& work) const {
        std::filesystem::remove_all(to);
        for (const char* each : {".part", ".part-journal"})
            std::filesystem::remove(to + each);
        if (work.into_a_folder) create_data_folder(to);
    }
    // Stores with what is in them, and the other files.
    [[nodiscard]] std::string state() const {
        const std::regex aside(R"(\.gate$|\.db-)"); // what the engine itself clears away
        std::set<std::string> names;
        for (const auto& each : std::filesystem::recursive_directory_iterator(elsewhere.path()))
            if (each.is_regular_file() && !std::regex_search(each.path().string(), aside))
                names.insert(each.path());
        std::string text;
        for (const std::string& each : names)
            text += each + "\n";
        for (const Store each : all_stores) {
            if (!names.contains(store_path(to, each))) continue;
            const char* table = each == Store::forms ? "Challan"
                                : each == Store::tax ? "Enclosure"
                                                     : "sqlite_schema";
            const auto found = run_statement(to, each, "SELECT count(*) FROM " + std::string(table));
            text += std::string(table) + " " + found.rows[0][0].text() + "\n";
        }
        return text;
    }

    const std::string to = elsewhere.path() + "/new";
    const Work create{"create", [this] { create_data_folder(to); }};
    const Work back_up{"back up", [this] { back_up_folder(folder.path(), to); }};
    const Work restore{"restore", [this] { restore_folder(file, to); }};
    const Work export_one{"export", [this] { export_client(folder.path(), 17, to); }};
    const Work import_one{"import", [this] { import_client(file + "17", to); }, true};
};

TEST_F(FolderWorkTest, AFaultAnywhereInItLeavesTheWholeOrNothing) {
    enum class Kind { once, full_disk, memory };
    for (const Work* work : {&create, &back_up, &restore, &export_one, &import_one}) {
        start_anew(*work);
        const std::string nothing = state();
        work->act();
        const std::string whole = state();
        EXPECT_NE(whole, nothing);
        for (const Kind kind : {Kind::once, Kind::full_disk, Kind::memory}) {
            bool reached_the_end = false;
            for (int n = 1; !reached_the_end; n += kind == Kind::memory ? 1 + n / 4 : 1 + n / 20) {
                SCOPED_TRACE(work->why + std::string(", fault ") + std::to_string(n));
                start_anew(*work);
                if (kind == Kind::memory)
                    FaultyDisk::fail_allocation_at(n, FaultyDisk::Lasting::once);
                else if (kind == Kind::once)
                    FaultyDisk::fail_at(n, FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::once);
                else
                    FaultyDisk::fail_at(n, FaultyDisk::Fault::disk_full, FaultyDisk::Lasting::from_then_on);
                bool told = true;
                try {
                    work->act();
                    told = false;
                } catch (const std::exception&) { // which the tool tells
                }
                reached_the_end = !FaultyDisk::has_failed();
                FaultyDisk::mend();
                const std::string now = state();
                EXPECT_TRUE(now == whole || (told && now == nothing)) << now;
            }
        }
    }
}

TEST_F(FolderWorkTest, AKillAnywhereInItLeavesWhatASecondRunBringsToItsEnd) {
    // Thousands by hand: LEVORA_KILLS=4000.
    const char* told = std::getenv("LEVORA_KILLS");
    const int kills = told ? std::atoi(told) : 100;
    std::mt19937 random(20141231);
    for (const Work* work : {&create, &back_up, &restore, &export_one, &import_one}) {
        using Clock = std::chrono::steady_clock;
        start_anew(*work);
        const auto start = Clock::now();
        work->act();
        const auto longest = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
        const std::string whole = state();
        int finished = 0;
        for (int kill = 0; kill < kills / 5; ++kill) {
            SCOPED_TRACE(work->why + std::string(", kill ") + std::to_string(kill));
            start_anew(*work);
            const pid_t child = ::fork();
            if (child == 0) {
                work->act();
                ::pause();
            }
            ::usleep(static_cast<useconds_t>(random() % static_cast<unsigned>(longest.count())));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const std::string second_run = failure_of(work->act);
            std::string now = state();
            if (second_run != "none") {
                ++finished;
                EXPECT_EQ(second_run.substr(0, 3), "75 ") << "refused only where all is there";
                // The last file may still stand under both its names.
                now = std::regex_replace(now, std::regex(R"(.*\.(writing|part)\n)"), "");
            }
            ASSERT_EQ(now, whole) << second_run;
        }
        if (told) std::printf("%s: %d kills, %d of them at the end\n", work->why, kills / 5, finished);
    }
}

TEST_F(FolderCareTest, OneClientMovesToAnotherFolderWithNumbersOfItsOwnThere) {
    elsewhere.run(Store::forms, "INSERT INTO Challan (ChallanID, AssesseeNo) VALUES (2, 5)");
    export_client(folder.path(), 17, file);
    EXPECT_EQ(import_client(file, elsewhere.path()), 17);
    EXPECT_EQ(elsewhere.rows(Store::assessee, "SELECT AssesseeNo, Assessee_Name FROM AssesseeInfo"), "17|A");
    EXPECT_EQ(elsewhere.rows(Store::tax, "SELECT Description FROM Enclosure"), "of A");
    EXPECT_EQ(elsewhere.rows(Store::tax, "SELECT AssesseeNo, StoneSrNo FROM PreciousStones"), "17|1");
    EXPECT_EQ(elsewhere.rows(Store::forms, "SELECT ChallanID, AssesseeNo, Total FROM Challan"),
              "2|5|Null; 3|17|7");
    EXPECT_EQ(read_whole_file(elsewhere.path() + "/ITR/WT 17 2014-2015R"), "<return/>");
    EXPECT_FALSE(std::filesystem::exists(elsewhere.path() + "/ITR/WT 170 2014-2015")) << "another client's";
    EXPECT_EQ(failure_of([&] { import_client(file, elsewhere.path()); }),
              "75 " + elsewhere.path() + ": assessee 17 is there already");
    EXPECT_EQ(failure_of([&] { export_client(folder.path(), 4, file + "2"); }),
              "53 " + folder.path() + ": there is no assessee 4");
    EXPECT_FALSE(std::filesystem::exists(file + "2"));
    EXPECT_FALSE(std::filesystem::exists(file + "2.part"));
}

TEST_F(FolderCareTest, AnImportThatFailsLeavesNothing) {
    folder.run(Store::tax, "UPDATE Enclosure SET Description = 'again' WHERE AssesseeNo = 17");
    export_client(folder.path(), 17, file);
    elsewhere.run(Store::forms, "DROP TABLE Challan"); // the last of the stores
    EXPECT_EQ(failure_of([&] { import_client(file, elsewhere.path()); }), "1 no such table: Challan");
    EXPECT_EQ(elsewhere.rows(Store::tax, "SELECT * FROM Enclosure"), "");
    EXPECT_FALSE(std::filesystem::exists(elsewhere.path() + "/ITR/WT 17 2014-2015R"));
}

TEST_F(FolderCareTest, WorkingCopiesThatAreThereAlreadyAreNotWrittenOver) {
    std::ofstream(folder.path() + "/ITR/WT 17 2014-2015") << "first";
    export_client(folder.path(), 17, file);
    std::filesystem::create_directory(elsewhere.path() + "/ITR");
    std::ofstream(elsewhere.path() + "/ITR/WT 17 2014-2015R") << "kept";
    EXPECT_EQ(failure_of([&] { import_client(file, elsewhere.path()); }),
              "75 " + elsewhere.path() + "/ITR/WT 17 2014-2015R: File exists");
    EXPECT_EQ(read_whole_file(elsewhere.path() + "/ITR/WT 17 2014-2015R"), "kept");
    EXPECT_FALSE(std::filesystem::exists(elsewhere.path() + "/ITR/WT 17 2014-2015")) << "taken back";
    EXPECT_EQ(elsewhere.rows(Store::tax, "SELECT * FROM Enclosure"), "");
    EXPECT_EQ(failure_of([&] { restore_folder(file, elsewhere.path() + "/x"); }),
              "75 " + file + ": this is no file of the kind \"Levora Wealth Tax backup 1\"");
}

TEST_F(FolderCareTest, AFileThatAKillLeftUnderBothItsNamesIsNotWrittenInto) {
    const std::string copy = folder.path() + "/ITR/WT 17 2014-2015R";
    bool reached_the_end = false;
    for (int n = 1; !reached_the_end; ++n) {
        replace_whole_file(copy, "old", 0660);
        std::filesystem::create_hard_link(copy, copy + ".writing");
        FaultyDisk::fail_at(n, FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on);
        const std::string failure = failure_of([&] { replace_whole_file(copy, "new", 0660); });
        reached_the_end = !FaultyDisk::has_failed();
        FaultyDisk::mend();
        const std::string now = read_whole_file(copy);
        EXPECT_TRUE(now == "new" || (failure != "none" && now == "old")) << n << now;
        std::filesystem::remove(copy + ".writing");
    }
    back_up_folder(folder.path(), file);
    std::filesystem::rename(file, file + ".last");
    std::filesystem::create_hard_link(file + ".last", file + ".part");
    const std::string last = read_whole_file(file + ".last");
    back_up_folder(folder.path(), file);
    EXPECT_TRUE(read_whole_file(file + ".last") == last);
}

TEST_F(FolderCareTest, OfTwoBackupsIntoOneFileTheFirstDoneStands) {
    {
        PartsFile slow(file, PartsFile::Kind::backup);
        back_up_folder(folder.path(), file);
        EXPECT_NE(failure_of([&] { slow.finish(); }), "none");
    }
    EXPECT_EQ(failure_of([&] { restore_folder(file, elsewhere.path() + "/new"); }), "none");
    EXPECT_FALSE(std::filesystem::exists(file + ".part"));
}

TEST(CreateDataFolderTest, LeavesWhatIsThereAlone) {
    const DataFolder folder;
    std::filesystem::remove(folder.file(Store::tax));
    folder.run(Store::income_tax, "INSERT INTO AYRetDate (AY) VALUES ('2014')");
    EXPECT_EQ(failure_of([&] { create_data_folder(folder.path()); }),
              "75 " + folder.file(Store::income_tax) + ": there is a store already");
    EXPECT_FALSE(std::filesystem::exists(folder.file(Store::tax)));
    EXPECT_EQ(failure_of([&] { create_data_folder(folder.file(Store::forms) + "/below"); }).substr(0, 3),
              "76 ");
}

} // namespace
} // namespace levora::session
