#include "session/data_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <string>

#include <sys/wait.h>

namespace {

struct Ending {
    int status = -1;
    std::string output; // both streams
};

// Runs levora-wealth-script with a data folder, settings and a program folder of its own.
class ScriptTest : public testing::Test {
protected:
    Ending run(const std::string& words) { return run(words, data_.path()); }
    static Ending run(const std::string& words, const std::string& folder) {
        const std::string command = LEVORA_BIN "/levora-wealth-script --settings " + folder +
                                    "/settings.toml --data " + folder + "/ --program-folder " + folder + " " +
                                    words + " 2>&1";
        Ending ending;
        FILE* pipe = popen(command.c_str(), "r");
        if (!pipe) return ending;
        std::array<char, 4096> part{};
        while (const std::size_t read = fread(part.data(), 1, part.size(), pipe))
            ending.output.append(part.data(), read);
        const int status = pclose(pipe);
        if (WIFEXITED(status)) ending.status = WEXITSTATUS(status);
        return ending;
    }
    // A script of these lines, in the data folder.
    std::string script(const std::string& lines) {
        std::ofstream(data_.path() + "/case.lua") << lines;
        return data_.path() + "/case.lua";
    }

    levora::session::testing::DataFolder data_;
};

TEST_F(ScriptTest, ScriptsOfTheRunControlsGridsBoxesAndProxiesPass) {
    for (const char* name : {"run", "controls", "grids", "boxes", "proxies"}) {
        const levora::session::testing::DataFolder folder;
        const Ending ending = run(LEVORA_SCRIPTS "/" + std::string(name) + ".lua", folder.path());
        EXPECT_EQ(ending.status, 0) << name << ": " << ending.output;
    }
}

TEST_F(ScriptTest, EndsWithTheStatusOfItsKind) {
    struct Case {
        const char *why, *words;
        int status;
        const char* said;
    };
    const std::string fine = script("assert(arg[1] == 'a' and select('#', ...) == 2)");
    const std::string fine_call = fine + " a 'b c'";
    const Case cases[] = {
        {"arguments reach the script", fine_call.c_str(), 0, ""},
        {"a script that comes through a pipe", "/dev/stdin < /dev/null", 0, ""},
        {"a folder", "/", 2, "there is no script /"},
        {"no script", "", 2, "no script named"},
        {"an unknown option", "--dat x y.lua", 2, "unknown option --dat"},
        {"an option without its value", "--today", 2, "--today needs a value"},
        {"a date that the calendar does not have", "--today 2014-02-30 x.lua", 2,
         "no date YYYY-MM-DD: 2014-02-30"},
        {"a day-first date", "--today 15/09/2014 x.lua", 2, "no date YYYY-MM-DD"},
        {"a script that is not there", "/nowhere/x.lua", 2, "there is no script /nowhere/x.lua"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        const Ending ending = run(each.words);
        EXPECT_EQ(ending.status, each.status) << ending.output;
        EXPECT_NE(ending.output.find(each.said), std::string::npos) << ending.output;
    }
}

TEST_F(ScriptTest, AnErrorNamesFileLineAndControl) {
    struct Case {
        const char *why, *lines, *said;
    };
    const Case cases[] = {
        {"the script's own error", "\nerror('why')", "case.lua:2: why"},
        {"a syntax error", "local = 1", "case.lua:1: "},
        {"a screen that is not loaded", "\n\nprint(frmWealthMain.txtNetWealth)",
         "case.lua:3: frmWealthMain.txtNetWealth: the screen frmWealthMain is not loaded"},
        {"an unknown button", "answer('Maybe')", "case.lua:1: answer: no button is named \"Maybe\""},
        {"an unknown store", "store('LVX', 'Select 1')", "no store is named \"LVX\""},
        {"a failing statement", "store('LVWTax', 'Select * From Nowhere')", "case.lua:1: "},
        {"a missing argument", "registry('a')", "argument 2: a text expected, got no value"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        const Ending ending = run(script(each.lines));
        EXPECT_EQ(ending.status, 1);
        EXPECT_NE(ending.output.find(each.said), std::string::npos) << ending.output;
    }
}

} // namespace
