#include "program/sample_run.h"

#include "session/data_folder.h"
#include "session/faulty_disk.h"
#include "session/store_check.h"
#include "session/store_tables.h"
#include "session/whole_files.h"
#include "tools/sample_clients.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <sstream>

#include <dlfcn.h>
#include <execinfo.h>
#include <libxml/xmlmemory.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace levora::program {
namespace {

using session::testing::FaultyDisk;
using testing::SampleRun;
using testing::Save;
using testing::saves;

// How a trial in a process of its own ended.
enum Outcome : int { reached_the_end = 1, reported = 2, out_of_memory = 4, strange = 64 };

// The libraries that read settings and documents end the program at some of the points where memory runs
// out in the midst of them; nothing else may.
void end_in_a_library(int signal) {
    void* callers[32];
    const int count = ::backtrace(callers, static_cast<int>(std::size(callers)));
    for (int at = 0; at < count; ++at) {
        Dl_info place;
        if (::dladdr(callers[at], &place) == 0 || place.dli_fname == nullptr) continue;
        if (std::strstr(place.dli_fname, "libtomlplusplus") || std::strstr(place.dli_fname, "libxml2"))
            ::_exit(out_of_memory);
    }
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

int in_child(const std::function<int()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        for (const int each : {SIGABRT, SIGSEGV})
            ::signal(each, end_in_a_library);
        ::_exit(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

// Every trial starts from the old state, with the figures entered: the save alone meets the fault.
class TrustTest : public ::testing::Test {
protected:
    TrustTest() {
        tools::add_sample_clients(folder.path());
        session::Settings(folder.path() + "/settings.toml")
            .write(session::registry::levora_forms, "Challan282 Top Margin", "5");
        for (const Save& each : saves) { // so that an old document and copy are there
            if (!each.told) continue;
            SampleRun run(folder.path());
            run.start();
            each.enter(run, "5");
            each.save(run);
        }
    }

    // All that the program keeps, as one text.
    [[nodiscard]] std::string state() const {
        std::string text;
        for (const session::Store store : session::all_stores) {
            session::Connection connection;
            connection.open(folder.connect_string(store));
            for (const session::TableRule& table : session::store_tables())
                if (table.store == store) text += rows_of(connection, table.name);
        }
        for (const char* each : {"/out.xml", "/ITR/WT 101 2014-2015", "/settings.toml"})
            text += session::read_whole_file(folder.path() + each);
        return text;
    }
    static std::string rows_of(session::Connection& connection, std::string_view table) {
        std::string text;
        auto rows = connection.open_rows("Select * From [" + std::string(table) + "]");
        for (; !rows.eof(); rows.move_next()) {
            text += table;
            for (const std::string& column : rows.columns())
                text += "|" + rows[column].text();
            text += "\n";
        }
        return text;
    }
    void keep_old() {
        kept_ = folder.path() + ".old";
        std::filesystem::remove_all(kept_);
        std::filesystem::copy(folder.path(), kept_, std::filesystem::copy_options::recursive);
    }
    void bring_old_back() const {
        for (const auto& each : std::filesystem::recursive_directory_iterator(folder.path()))
            if (each.path().extension() == ".db-journal") std::filesystem::remove(each);
        std::filesystem::copy(kept_, folder.path(),
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
    }
    ~TrustTest() override { std::filesystem::remove_all(kept_); }

    // Runs a trial for each save: `trial` has the run with the figures entered.
    void for_each_save(const std::function<void(const Save&, SampleRun&)>& trial) {
        for (const Save& each : saves) {
            SCOPED_TRACE(each.name);
            keep_old();
            FaultyDisk::follow_files();
            SampleRun run(folder.path());
            ASSERT_TRUE(run.start());
            each.enter(run, "27");
            old_state = state();
            EXPECT_EQ(in_child([&] { return each.save(run), run.end(), 0; }), 0);
            new_state = state();
            EXPECT_NE(new_state, old_state);
            bring_old_back();
            trial(each, run);
            FaultyDisk::mend();
        }
        EXPECT_EQ(session::find_faults(folder.path()), std::vector<std::string>());
    }

    // What stands there is the old state or the new, and the old one only where that was told.
    void expect_old_or_new(const Save& save, int outcome) {
        EXPECT_LT(outcome, strange) << "it crashed";
        const std::string now = state();
        EXPECT_EQ(neither_old_nor_new(now), "");
        if ((outcome & (reported | out_of_memory)) == 0 && save.told) {
            EXPECT_TRUE(now == new_state) << "nothing was told";
        }
        if (now != old_state) bring_old_back();
    }
    // The lines of a state that is half one and half the other.
    [[nodiscard]] std::string neither_old_nor_new(const std::string& now) const {
        if (now == old_state || now == new_state) return "";
        std::istringstream lines(now);
        std::string text = "in between:\n";
        for (std::string line; std::getline(lines, line);) {
            const bool of_old = old_state.find(line + "\n") != std::string::npos;
            const bool of_new = new_state.find(line + "\n") != std::string::npos;
            if (!of_old || !of_new) text += (of_old ? "old " : of_new ? "new " : "? ") + line + "\n";
        }
        return text;
    }

    session::testing::DataFolder folder;
    std::string old_state;
    std::string new_state;

private:
    std::string kept_;
};

// By hand every one of them: LEVORA_EVERY=1.
int stride(int otherwise) {
    return std::getenv("LEVORA_EVERY") ? 1 : otherwise;
}

int outcome_of(const SampleRun& run) {
    return (FaultyDisk::has_failed() ? 0 : reached_the_end) | (run.person.reports > 0 ? reported : 0);
}

TEST_F(TrustTest, AFaultOfTheDiskInAnySaveLeavesTheOldStateOrTheNew) {
    struct Case {
        const char* why;
        FaultyDisk::Fault fault;
        FaultyDisk::Lasting lasting;
        int presses;
    };
    constexpr Case cases[] = {
        {"once", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::once, 0},
        {"once, and tried again", FaultyDisk::Fault::disk_error, FaultyDisk::Lasting::once, 1},
        {"a full disk", FaultyDisk::Fault::disk_full, FaultyDisk::Lasting::from_then_on, 1},
        {"a power cut", FaultyDisk::Fault::power_cut, FaultyDisk::Lasting::from_then_on, 0},
    };
    for_each_save([&](const Save& save, SampleRun& run) {
        for (const Case& each : cases) {
            SCOPED_TRACE(each.why);
            int outcome = 0;
            for (int n = 1; (outcome & reached_the_end) == 0; n += stride(5)) {
                ASSERT_LT(n, 2000);
                SCOPED_TRACE(n);
                outcome = in_child([&] {
                    run.person.presses = each.presses;
                    FaultyDisk::fail_at(n, each.fault, each.lasting);
                    save.save(run);
                    const int result = outcome_of(run);
                    if (each.fault != FaultyDisk::Fault::power_cut || !FaultyDisk::has_failed())
                        return result;
                    FaultyDisk::leave_after_power_cut(folder.path(), static_cast<unsigned>(n));
                    return result | reported; // nobody is left to be told
                });
                expect_old_or_new(save, outcome);
            }
        }
    });
}

TEST_F(TrustTest, MemoryThatRunsOutInAnySaveLeavesTheOldStateOrTheNew) {
    for_each_save([&](const Save& save, SampleRun& run) {
        for (const auto lasting : {FaultyDisk::Lasting::once, FaultyDisk::Lasting::from_then_on}) {
            int outcome = 0;
            for (int n = 1; (outcome & reached_the_end) == 0; n += stride(1 + n / 4)) {
                ASSERT_LT(n, 200000);
                SCOPED_TRACE(n);
                outcome = in_child([&] {
                    FaultyDisk::fail_allocation_at(n, lasting);
                    int result = 0;
                    try {
                        save.save(run);
                    } catch (const std::bad_alloc&) {
                        result = out_of_memory; // for a report too: the program ends
                    }
                    result |= outcome_of(run);
                    run.end();
                    return result;
                });
                expect_old_or_new(save, outcome);
            }
        }
    });
}

TEST_F(TrustTest, MemoryThatRunsOutWhileAScreenOpensChangesNothing) {
    keep_old();
    const std::string before = state();
    for (const Save& each : saves) {
        SCOPED_TRACE(each.name);
        for (const auto lasting : {FaultyDisk::Lasting::once, FaultyDisk::Lasting::from_then_on}) {
            int outcome = 0;
            for (int n = 1; (outcome & reached_the_end) == 0; n += stride(1 + n / 2)) {
                SCOPED_TRACE(n);
                outcome = in_child([&] {
                    SampleRun run(folder.path());
                    FaultyDisk::fail_allocation_at(n, lasting);
                    int result = 0;
                    try {
                        if (run.start()) each.enter(run, "27");
                    } catch (const std::bad_alloc&) {
                        result = out_of_memory;
                    } catch (const std::exception&) {
                        result = reported; // a screen that did not open can't be typed into
                    }
                    result |= outcome_of(run);
                    run.end();
                    return result;
                });
                EXPECT_LT(outcome, strange) << "it crashed";
                EXPECT_EQ(state(), before);
            }
        }
    }
}

TEST_F(TrustTest, AKillInAnySaveLeavesTheOldStateOrTheNew) {
    // Thousands by hand: LEVORA_KILLS=10000.
    const char* told = std::getenv("LEVORA_KILLS");
    const int kills = told ? std::atoi(told) : 500;
    std::mt19937 random(20141231);
    int old_ones = 0;
    for_each_save([&](const Save& save, SampleRun& run) {
        using Clock = std::chrono::steady_clock;
        const auto start = Clock::now();
        in_child([&] { return save.save(run), 0; });
        const auto longest = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
        bring_old_back();
        for (int kill = 0; kill < kills / static_cast<int>(std::size(saves)); ++kill) {
            const pid_t child = ::fork();
            if (child == 0) {
                save.save(run);
                ::pause();
            }
            ::usleep(static_cast<useconds_t>(random() % static_cast<unsigned>(longest.count())));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const std::string now = state();
            ASSERT_EQ(neither_old_nor_new(now), "") << "after kill " << kill;
            old_ones += now == old_state ? 1 : 0;
            if (kill % 50 == 0) {
                ASSERT_EQ(session::find_faults(folder.path()), std::vector<std::string>());
            }
            bring_old_back();
        }
    });
    std::printf("%d kills, %d of them before the save went down\n", kills, old_ones);
}

// The XML library's memory runs out with all other.
[[maybe_unused]] const bool installed = [] {
    FaultyDisk::install();
    return xmlMemSetup(
               std::free,
               [](std::size_t size) { return FaultyDisk::refuses_memory() ? nullptr : std::malloc(size); },
               [](void* old, std::size_t size) {
                   return FaultyDisk::refuses_memory() ? nullptr : std::realloc(old, size);
               },
               [](const char* text) { return FaultyDisk::refuses_memory() ? nullptr : ::strdup(text); }) == 0;
}();

} // namespace
} // namespace levora::program
