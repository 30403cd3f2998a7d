#include "session/settings.h"

#include "session/data_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

namespace levora::session {
namespace {

const std::string shared_key = R"(Software\Meridew Data Works\Shared)";
const std::string forms_key = R"(Software\Meridew Data Works\Levora Forms)";

class SettingsTest : public ::testing::Test {
protected:
    void put(const std::string& text) const {
        std::filesystem::create_directories(folder + "/below");
        std::ofstream(path, std::ios::binary) << text;
    }
    [[nodiscard]] std::string text() const {
        std::ostringstream read;
        read << std::ifstream(path, std::ios::binary).rdbuf();
        return read.str();
    }
    [[nodiscard]] static std::string shown(const std::optional<Settings::Setting>& setting) {
        if (!setting) return "none";
        if (const auto* number = std::get_if<std::int64_t>(&*setting))
            return "number " + std::to_string(*number);
        return std::get<std::string>(*setting);
    }

    testing::DataFolder made;
    const std::string& folder = made.path();
    std::string path = folder + "/below/settings.toml";
};

TEST_F(SettingsTest, MakesTheFileAndReadsItBackFromAnotherRun) {
    Settings settings(path);
    EXPECT_EQ(shown(settings.read(shared_key, "LVDBPath")), "none");
    EXPECT_TRUE(settings.write(shared_key, "LVDBPath", "/srv/levora \"data\"\\\n\x01"));
    EXPECT_TRUE(settings.write(forms_key, "Challan282 Top Margin", std::int64_t{12}));
    EXPECT_TRUE(settings.write(shared_key, "It's", "an apostrophe in the name"));
    const Settings again(path);
    EXPECT_EQ(shown(again.read(shared_key, "LVDBPath")), "/srv/levora \"data\"\\\n\x01");
    EXPECT_EQ(shown(again.read(forms_key, "Challan282 Top Margin")), "number 12");
    EXPECT_EQ(text(), "[\"Software\\\\Meridew Data Works\\\\Shared\"]\n"
                      "\"LVDBPath\" = \"/srv/levora \\\"data\\\"\\\\\\u000A\\u0001\"\n"
                      "\"It's\" = \"an apostrophe in the name\"\n"
                      "\n"
                      "[\"Software\\\\Meridew Data Works\\\\Levora Forms\"]\n"
                      "\"Challan282 Top Margin\" = 12\n");
}

TEST_F(SettingsTest, AWriteKeepsCommentsOrderAndAllElse) {
    put("# ours\n"
        "other = [1, 2] # left alone\n"
        "\n"
        "['software\\meridew data works\\SHARED'] # where things lie\n"
        "lvdbpath = '/old # not a comment'   # the server's\n"
        "flag = true\n"
        "\n"
        "# the last table\n"
        "[empty]\n"
        "[long]\n"
        "text = '''one\ntwo'''");
    Settings settings(path);
    EXPECT_EQ(shown(settings.read(shared_key, "LVDBPath")), "/old # not a comment");
    EXPECT_EQ(shown(settings.read(shared_key, "flag")), "none") << "neither a text nor a number";
    EXPECT_TRUE(settings.write(shared_key, "LVDBPath", "/new"));
    EXPECT_TRUE(settings.write("empty", "a", std::int64_t{-1}));
    EXPECT_TRUE(settings.write("long", "text", "short"));
    EXPECT_TRUE(settings.write(shared_key, "flag", "no"));
    EXPECT_TRUE(settings.remove(shared_key, "nothing such"));
    EXPECT_EQ(text(), "# ours\n"
                      "other = [1, 2] # left alone\n"
                      "\n"
                      "['software\\meridew data works\\SHARED'] # where things lie\n"
                      "\"LVDBPath\" = \"/new\"  # the server's\n"
                      "\"flag\" = \"no\"\n"
                      "\n"
                      "# the last table\n"
                      "[empty]\n"
                      "\"a\" = -1\n"
                      "[long]\n"
                      "\"text\" = \"short\"\n");
    EXPECT_TRUE(settings.remove(shared_key, "LVDBPATH"));
    EXPECT_EQ(shown(settings.read(shared_key, "LVDBPath")), "none");
}

TEST_F(SettingsTest, WhatItCannotWriteSafelyItLeavesAsItWas) {
    struct Case {
        const char *why, *text, *value;
    };
    constexpr Case cases[] = {
        {"a file that does not read is never overwritten", "[a]\nb = \n", "x"},
        {"a table on one line has no room for a line", "a = { b = 1 }\n", "x"},
        {"text that is not UTF-8 would not read back", "[a]\n", "\xFF\xFE"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        put(each.text);
        Settings settings(path);
        EXPECT_FALSE(settings.write("a", "c", each.value));
        EXPECT_EQ(text(), each.text);
    }
    put("[a]\nb = \n");
    EXPECT_EQ(Settings(path).fault().substr(0, path.size() + 9), path + ", line 2:");
    put("");
    Settings below(path + "/no folder/settings.toml");
    EXPECT_FALSE(below.write("a", "b", "c"));
    std::filesystem::remove(path);
    std::filesystem::create_directories(path); // a folder stands in its place
    EXPECT_EQ(Settings(path).fault(), path + ": Is a directory");
    EXPECT_FALSE(Settings(path).write("a", "b", "c"));
}

TEST_F(SettingsTest, SeesWhatAnotherProgramHasWritten) {
    Settings mine(path);
    Settings theirs(path);
    EXPECT_EQ(shown(mine.read("a", "b")), "none");
    theirs.write("a", "b", "1");
    EXPECT_EQ(shown(mine.read("a", "b")), "1");
    theirs.write("a", "b", "2");
    mine.write("a", "c", "3");
    EXPECT_EQ(shown(mine.read("A", "B")) + shown(theirs.read("a", "C")), "23");
    mine.hold("A", "B", "for this run");
    EXPECT_EQ(shown(mine.read("a", "b")) + shown(theirs.read("a", "b")), "for this run2");
    EXPECT_TRUE(mine.remove("a", "b"));
    EXPECT_EQ(shown(mine.read("a", "b")) + shown(theirs.read("a", "b")), "nonenone");
    std::filesystem::remove(path);
    EXPECT_EQ(shown(mine.read("a", "c")), "none");
}

TEST_F(SettingsTest, LiesInTheUsersConfigurationFolder) {
    ::setenv("HOME", "/home/user", 1);
    ::setenv("XDG_CONFIG_HOME", "relative is not meant", 1);
    EXPECT_EQ(Settings::default_path(), "/home/user/.config/levora-wealth-tax/settings.toml");
    ::setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    EXPECT_EQ(Settings::default_path(), folder + "/levora-wealth-tax/settings.toml");
    ::unsetenv("XDG_CONFIG_HOME");
}

TEST_F(SettingsTest, SeveralProgramsWriteWithoutLosingOneAnothersValues) {
    constexpr int programs = 4;
    constexpr int writes = 25;
    for (int program = 0; program < programs; ++program) {
        if (::fork() != 0) continue;
        Settings settings(path);
        bool written = true;
        for (int i = 0; i < writes; ++i)
            written = settings.write("program " + std::to_string(program), std::to_string(i), "x") && written;
        ::_exit(written ? 0 : 1);
    }
    for (int program = 0; program < programs; ++program) {
        int status = 0;
        ::wait(&status);
        EXPECT_EQ(status, 0);
    }
    const Settings settings(path);
    int found = 0;
    for (int program = 0; program < programs; ++program)
        for (int i = 0; i < writes; ++i)
            found += settings.read("program " + std::to_string(program), std::to_string(i)) ? 1 : 0;
    EXPECT_EQ(found, programs * writes);
}

} // namespace
} // namespace levora::session
