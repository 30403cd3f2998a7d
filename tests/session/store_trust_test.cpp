#include "session/common_services.h"
#include "session/data_folder.h"
#include "session/faulty_disk.h"
#include "session/session_state.h"
#include "session/store_check.h"
#include "widgets/headless_desk.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace levora::session {
namespace {

using testing::DataFolder;
using testing::FaultyDisk;

constexpr int rows_of_a_save = 6;

// One save as the screens do it: a row updated in place, the rows of a grid replaced. Its figure
// stands in every row, so that half a save shows.
void save(Connection& tax, const Attempt& attempt, int assessee, int figure) {
    const std::string key = " where AssesseeNo = " + std::to_string(assessee) + " And FY = '2014-2015'";
    RowSet sheet =
        attempt([&] { return tax.open_rows("Select * From NetWealthComputation" + key, RowSetUse::update); });
    attempt([&] {
        if (sheet.eof()) {
            sheet.add_new();
            sheet.set("AssesseeNo", assessee);
            sheet.set("FY", "2014-2015");
        }
        sheet.set("LessDebt", figure);
        sheet.update();
    });
    attempt([&] { tax.execute("Delete From PrePaidTaxes" + key); });
    RowSet paid =
        attempt([&] { return tax.open_rows("Select * From PrePaidTaxes" + key, RowSetUse::update); });
    for (int row = 0; row < rows_of_a_save; ++row)
        attempt([&] {
            paid.add_new();
            paid.set("AssesseeNo", assessee);
            paid.set("FY", "2014-2015");
            paid.set("BankBranchName", std::string(600, 'x')); // several pages
            paid.set("Amount", figure);
            paid.update();
        });
}

// The figure of a whole save; -1 when what stands there is no whole one.
int figure_in(const DataFolder& folder, int assessee) {
    const std::string key = " WHERE AssesseeNo = " + std::to_string(assessee);
    const StatementResult found =
        folder.run(Store::tax, "SELECT LessDebt FROM NetWealthComputation" + key +
                                   " UNION ALL SELECT Amount FROM PrePaidTaxes" + key);
    if (found.rows.size() != rows_of_a_save + 1) return -1;
    for (const auto& row : found.rows)
        if (row[0].number() != found.rows[0][0].number()) return -1;
    return static_cast<int>(found.rows[0][0].number());
}

// Presses the first button of so many boxes, and dismisses the others.
class PressingDesk : public widgets::HeadlessDesk {
public:
    int presses = 0;
    std::function<void()> meanwhile; // before the button is pressed

    std::optional<widgets::Answer> show_message(const widgets::MessageBox& box) override {
        if (meanwhile) meanwhile();
        if (presses-- > 0) queue_answer(box.buttons.front());
        return HeadlessDesk::show_message(box);
    }
};

// A program of its own with a person before it, who presses a button of every report, or dismisses it.
struct Program {
    explicit Program(const DataFolder& folder)
        : settings(folder.path() + "/settings.toml"), session({desk, settings, folder.path(), "", "OFFICE"}) {
        session.TaxDb.open(folder.connect_string(Store::tax));
    }
    void save_as_event(int assessee, int figure) {
        session.screens.run_event("frmX - cmdSave_Click", [&] {
            procedure(session, "frmX - Save",
                      [&](const Attempt& attempt) { save(session.TaxDb, attempt, assessee, figure); });
        });
    }

    PressingDesk desk;
    Settings settings;
    Session session;
};

class StoreTrustTest : public ::testing::Test {
protected:
    StoreTrustTest() {
        folder.run(Store::assessee, "INSERT INTO AssesseeInfo (AssesseeNo) VALUES (1), (2), (3), (4), (5)");
        Program(folder).save_as_event(1, 1);
        EXPECT_EQ(figure_in(folder, 1), 1);
    }

    DataFolder folder;
};

TEST_F(StoreTrustTest, AFaultOfTheDiskAtAnyPointLeavesTheOldRowsOrTheNew) {
    struct Case {
        const char* why;
        FaultyDisk::Fault fault;
        FaultyDisk::Lasting lasting;
        int presses; // of the report's button, before it is dismissed
    };
    constexpr Case cases[] = {
        {"one operation fails", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::once, 0},
        {"and the statement is tried again", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::once, 1},
        {"a broken disk", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on, 0},
        {"which helps nothing", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on, 2},
        {"a full disk", FaultyDisk::Fault::disk_full, FaultyDisk::Lasting::from_then_on, 0},
        {"room is made before the button", FaultyDisk::Fault::disk_full, FaultyDisk::Lasting::once, 1},
    };
    int figure = 1;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        bool reached_the_end = false;
        for (int n = 1; !reached_the_end; ++n) {
            ASSERT_LT(n, 500);
            const int old_figure = figure_in(folder, 1);
            ++figure;
            std::size_t reports = 0;
            {
                Program program(folder);
                program.desk.presses = each.presses;
                FaultyDisk::fail_at(n, each.fault, each.lasting);
                program.save_as_event(1, figure);
                reached_the_end = !FaultyDisk::has_failed();
                FaultyDisk::mend();
                reports = program.desk.take_messages().size();
            }
            const int now = figure_in(folder, 1);
            EXPECT_TRUE(now == old_figure || now == figure) << "operation " << n << " left " << now;
            if (reports == 0) {
                EXPECT_EQ(now, figure) << "operation " << n << ": nothing was told";
            }
            if (each.lasting == FaultyDisk::Lasting::once && each.presses > 0) {
                EXPECT_EQ(now, figure) << "operation " << n << ": the button brings all rows back";
            }
        }
    }
    EXPECT_TRUE(find_faults(folder.path()).empty());
}

TEST_F(StoreTrustTest, RowsTakenBackAreNotBroughtBackOverThoseOfAnotherProgram) {
    Program program(folder);
    program.desk.presses = 1;
    program.desk.meanwhile = [&] {
        FaultyDisk::mend();
        Program(folder).save_as_event(2, 7);
    };
    // At the commit, when all rows are written.
    FaultyDisk::fail_at(1, FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on);
    program.session.screens.run_event("frmX - cmdSave_Click", [&] {
        procedure(program.session, "frmX - Save", [&](const Attempt& attempt) {
            FaultyDisk::mend();
            save(program.session.TaxDb, attempt, 1, 2);
            FaultyDisk::fail_at(1, FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on);
        });
    });
    const auto shown = program.desk.take_messages();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].box.text,
              "4 " + folder.file(Store::tax) +
                  ": another program has changed these rows meanwhile (nothing of this save is "
                  "stored)");
    EXPECT_EQ(figure_in(folder, 1), 1);
    EXPECT_EQ(figure_in(folder, 2), 7);
    program.desk.meanwhile = nullptr;
    program.save_as_event(1, 3);
    EXPECT_EQ(figure_in(folder, 1), 3);
}

TEST_F(StoreTrustTest, APowerCutAtAnyPointLeavesTheOldRowsOrTheNew) {
    int figure = 1;
    bool reached_the_end = false;
    for (int n = 1; !reached_the_end; ++n) {
        ASSERT_LT(n, 500);
        for (unsigned seed = 0; seed < 4; ++seed) {
            const int old_figure = figure_in(folder, 1);
            ++figure;
            FaultyDisk::follow_files();
            {
                Program program(folder);
                FaultyDisk::fail_at(n, FaultyDisk::Fault::power_cut, FaultyDisk::Lasting::from_then_on);
                program.save_as_event(1, figure);
                reached_the_end = !FaultyDisk::has_failed();
            }
            FaultyDisk::mend();
            if (!reached_the_end)
                FaultyDisk::leave_after_power_cut(folder.path(), seed + 4U * static_cast<unsigned>(n));
            const int now = figure_in(folder, 1);
            EXPECT_TRUE(now == old_figure || now == figure) << "operation " << n << " left " << now;
        }
    }
    EXPECT_TRUE(find_faults(folder.path()).empty());
}

TEST_F(StoreTrustTest, AConnectionThatCannotCommitAtItsEndTakesItsRowsBack) {
    {
        Connection tax;
        tax.open(folder.connect_string(Store::tax));
        tax.execute("DELETE * FROM PrePaidTaxes");
        FaultyDisk::fail_at(1, FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::from_then_on);
    }
    FaultyDisk::mend();
    EXPECT_EQ(figure_in(folder, 1), 1);
}

TEST_F(StoreTrustTest, SeveralProgramsSaveAtOnceAndNobodyIsTurnedAway) {
    // A minute by hand, with the longest wait told: LEVORA_SECONDS=60.
    using Clock = std::chrono::steady_clock;
    const char* told = std::getenv("LEVORA_SECONDS");
    const auto until = Clock::now() + std::chrono::seconds(told ? std::atoi(told) : 0);
    constexpr int programs = 5;
    constexpr int saves = 60;
    for (int number = 1; number <= programs; ++number) {
        if (::fork() != 0) continue;
        Program program(folder);
        auto longest = Clock::duration::zero();
        int rounds = 0;
        for (; rounds < saves || Clock::now() < until; ++rounds) {
            const auto start = Clock::now();
            program.save_as_event(number, rounds + 1);
            program.save_as_event(1, number); // the same client in all programs
            longest = std::max(longest, Clock::now() - start);
        }
        program.save_as_event(number, saves);
        if (told)
            std::printf("program %d: %d rounds of two saves, the longest %ld ms\n", number, rounds,
                        static_cast<long>(longest / std::chrono::milliseconds(1)));
        std::fflush(stdout);
        ::_exit(program.desk.take_messages().empty() ? 0 : 1);
    }
    for (int number = 1; number <= programs; ++number) {
        int status = -1;
        ::wait(&status);
        EXPECT_EQ(status, 0) << "no report of a busy store";
    }
    for (int number = 2; number <= programs; ++number)
        EXPECT_EQ(figure_in(folder, number), saves);
    EXPECT_GT(figure_in(folder, 1), 0);
    EXPECT_TRUE(find_faults(folder.path()).empty());
}

TEST_F(StoreTrustTest, AStoreThatIsKeptTooLongIsReportedAndTheButtonTriesAgain) {
    Program keeper(folder);
    keeper.session.TaxDb.execute("DELETE * FROM Enclosure");
    Program program(folder);
    program.session.TaxDb.set_longest_wait(std::chrono::milliseconds(20));
    program.save_as_event(1, 2);
    const auto shown = program.desk.take_messages();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].box.text, "5 " + folder.file(Store::tax) +
                                     ": database is locked: another program keeps it for too long "
                                     "(nothing of this save is stored)");
    EXPECT_EQ(figure_in(folder, 1), 1);
    keeper.session.commit_all();
    program.save_as_event(1, 3);
    EXPECT_EQ(figure_in(folder, 1), 3);
}

[[maybe_unused]] const bool installed = (FaultyDisk::install(), true);

} // namespace
} // namespace levora::session
