#include "session/common_services.h"

#include "session/fresh_start.h"
#include "widgets/value_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include <sqlite3.h>
#include <stdlib.h>

namespace levora::session {
namespace {

TEST(AmountInWordsTest, FollowsTheIndianSystem) {
    struct Case {
        const char* why;
        std::int32_t amount;
        const char* words;
    };
    constexpr Case cases[] = {
        {"nothing to pay", 0, "Nil"},
        {"below nothing", -5, "Nil"},
        {"a blank stays behind a unit", 100, "One Hundred "},
        {"the last of the small numbers", 19, "Nineteen"},
        {"units that are missing", 1'20'000, "One Lakh Twenty Thousand "},
        {"all units", 12'34'56'789,
         "Twelve Crore Thirty Four Lakh Fifty Six Thousand Seven Hundred Eighty Nine"},
        {"the largest with words for its crores", 99'99'99'999,
         "Ninety Nine Crore Ninety Nine Lakh Ninety Nine Thousand Nine Hundred Ninety Nine"},
        {"wanted: three digits of crores have no word", 100'00'00'000, " Crore "},
        {"the largest of all", 2147483647,
         " Crore Seventy Four Lakh Eighty Three Thousand Six Hundred Forty Seven"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(AmtToWords(each.amount), each.words) << each.why;
    EXPECT_EQ(AmtPartToWords(0), "Zero");
    EXPECT_EQ(AmtPartToWords(100), "");
}

TEST(RoundToHundredTest, TakesTheNearestHundredAndARemainderOfFiftyGoesUp) {
    EXPECT_EQ(RoundToHundred(3000049.5), 3000100); // 50 first
    EXPECT_EQ(RoundToHundred(3000049.4), 3000000);
    EXPECT_EQ(RoundToHundred(-30), 0);
    EXPECT_EQ(RoundToHundred(-51), -100);
}

TEST(CodeTablesTest, FindCountriesExactlyAndStatesInAnyCase) {
    EXPECT_EQ(CountryToISD("  INDIA "), "11");
    EXPECT_EQ(CountryToISD("India"), "");
    EXPECT_EQ(CountryToISD("BOSNIA & HERZEGOVINA"), "387");
    EXPECT_EQ(CountryToISD("YEMEN"), "967");
    EXPECT_EQ(country_names().size(), 241U);
    EXPECT_EQ(StateToCode("goa"), "10");
    EXPECT_EQ(StateToCode("Nowhere"), "99");
    EXPECT_EQ(StateToCode("Chhattisgarh"), "33");
    EXPECT_EQ(CodeToState("33"), "CHHATISHGARH");
    EXPECT_EQ(CodeToState("1"), "OTHERS");
    const auto states = state_names();
    EXPECT_EQ(states.size(), 38U);
    EXPECT_EQ(states.at(35) + ", " + states.at(36) + ", " + states.at(37), "TELANGANA, CHHATTISGARH, OTHERS");
}

class ErrorPathTest : public ::testing::Test, protected testing::FreshStart {
protected:
    ErrorPathTest() { session.TaxDb.open(folder.connect_string(Store::tax)); }

    // The log without its times: "name,number,description" a line.
    [[nodiscard]] std::string log() const {
        std::ostringstream text;
        text << std::ifstream(folder.path() + "/ErrorLog.txt").rdbuf();
        return std::regex_replace(text.str(), std::regex(R"(#\d{4}-\d\d-\d\d \d\d:\d\d:\d\d#,)"), "");
    }

    Session& session = new_session("2014-2015 17 Individual x 0");
};

TEST_F(ErrorPathTest, ShowsTheToldTextAndButtonsOfEachNumber) {
    struct Case {
        int number;
        const char *text, *buttons;
    };
    constexpr Case cases[] = {
        {64, "That filename is illegal.", "OK Cancel "},
        {54, "Can't open your file for that type of access.", "OK "},
        {61, "Disk is full. Continue?", "Abort Retry Ignore "},
        {62,
         "This file has a nonstandard end-of-file marker, or an attempt was made to read beyond the "
         "end-of-file marker.",
         "Abort Retry Ignore "},
        {3022, "why", "OK "},
        {3024, "why", "Abort Retry Ignore "},
        {13, "13 why", "OK "},
    };
    for (const Case& each : cases) {
        ShowFileError(session, Failure(each.number, "why"));
        const auto shown = desk.take_messages();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].box.text, each.text);
        EXPECT_EQ(shown[0].box.title, "Levora Wealth Tax - Error");
        EXPECT_EQ(shown[0].box.icon, widgets::Icon::exclamation);
        std::string buttons;
        for (const widgets::Answer button : shown[0].box.buttons)
            buttons += widgets::caption_of(button) + " ";
        EXPECT_EQ(buttons, each.buttons);
    }
}

TEST_F(ErrorPathTest, AStepIsTriedAgainForEachAnswerUntilTheReportIsDismissed) {
    desk.queue_answer(widgets::Answer::ok);
    desk.queue_answer(widgets::Answer::ok);
    int tries = 0;
    const bool ended = procedure(session, "frmX - Try", [&](const Attempt& attempt) {
        const int value = attempt([&]() -> int {
            if (++tries < 3) throw Failure(13, "say \"when\"\nplease");
            return tries;
        });
        EXPECT_EQ(value, 3);
    });
    EXPECT_TRUE(ended);
    EXPECT_EQ(log(), "\"frmX - Try\",13,\"say \"\"when\"\" please\"\n"
                     "\"frmX - Try\",13,\"say \"\"when\"\" please\"\n");

    tries = 0;
    bool went_on = false;
    EXPECT_FALSE(procedure(session, "frmX - Dismiss", [&](const Attempt& attempt) {
        attempt([&] {
            ++tries;
            throw Failure(61, "full");
        });
        went_on = true;
    }));
    EXPECT_EQ(tries, 1);
    EXPECT_FALSE(went_on);
}

TEST_F(ErrorPathTest, RowsGoDownBeforeAReportWaitsForAnAnswer) {
    session.screens.run_event("frmX - cmdSave_Click", [&] {
        session.TaxDb.execute("INSERT INTO Enclosure (Description) VALUES ('as far as it went')");
        throw Failure(3704, "closed");
    });
    EXPECT_EQ(folder.rows(Store::tax, "SELECT Description FROM Enclosure"), "as far as it went");
    EXPECT_EQ(log(), "\"frmX - cmdSave_Click\",3704,\"closed\"\n");
    EXPECT_EQ(desk.take_messages().at(0).box.text, "3704 closed");
    session.screens.run_event("frmX - cmdSave_Click",
                              [&] { session.TaxDb.execute("DELETE * FROM Enclosure"); });
    EXPECT_EQ(folder.rows(Store::tax, "SELECT Description FROM Enclosure"), "");
}

TEST_F(ErrorPathTest, TheRegistryGivesTextsAndNumbersAsText) {
    const std::string key = registry::levora_forms;
    EXPECT_EQ(RegReadValue(session, key, "Challan282 Top Margin"), "");
    EXPECT_TRUE(RegWriteString(session, key, "Challan282 Top Margin", ""));
    EXPECT_EQ(RegReadValue(session, key, "challan282 top margin"), " ");
    settings.write(key, "number", std::int64_t{300});
    EXPECT_EQ(RegReadValue(session, key, "number"), "300");
    settings.write(key, "long", std::string(1024, 'x'));
    EXPECT_EQ(RegReadValue(session, key, "long"), "") << "longer than its buffer";
    settings.write(key, "cut", std::string("a\0b", 3));
    EXPECT_EQ(RegReadValue(session, key, "cut"), "a");
}

TEST_F(ErrorPathTest, VariablesAreFoundByTheirNames) {
    session.AssesseeNo = 17;
    session.IsCompanyAssessee = true;
    session.CurrentFY = "2014-2015";
    session.OriFillInterestRate = 1.25F;
    std::string seen;
    std::istringstream names(
        "SqlText CurrentFY AYStartYear AssesseeNo DataFolder TaxConnectString AssesseeConnectString "
        "ITConnectString FormsConnectString TaxDb AssesseeDb ITDb FormsDb ComputerName IsServerInstall "
        "IsClientInstall IsNetworkInstall IsCompanyAssessee UseResidentialAddress BusinessAssetFlag "
        "DeemedAssetFlag AssetRowName OriFillMonthsLate OriFillInterestRate ChallanReport FormBBReport "
        "WealthReport SheetRowCount SheetGridName PrintSource PreviewSource XmlIndent XmlTagStack XmlTagTop "
        "assesseeno");
    for (std::string name; names >> name;) {
        const Session::Variable variable = session.variable(name);
        const auto& value = variable.value;
        if (!variable.found) seen += "no " + name;
        if (const auto* text = std::get_if<std::string>(&value)) seen += "'" + *text + "' ";
        if (const auto* number = std::get_if<double>(&value)) seen += number_text(*number) + " ";
        if (const auto* truth = std::get_if<bool>(&value)) seen += *truth ? "true " : "false ";
        if (variable.found && std::holds_alternative<std::monostate>(value)) seen += "object ";
    }
    EXPECT_EQ(seen,
              "'' '2014-2015' '' 17 '' '' '' '' '' object object object object '' false false false true "
              "false false false '' 0 1.25 object object object 0 '' 0 0 0 object 0 no assesseeno");
}

TEST_F(ErrorPathTest, TheLogGoesToTheUserWhereTheProgramsFolderTakesNone) {
    ::setenv("XDG_STATE_HOME", folder.path().c_str(), 1);
    Session installed({desk, settings, folder.path() + "/no such folder", "", ""});
    LogError(installed, "frmX - Y", Failure(5, "z"));
    ::unsetenv("XDG_STATE_HOME");
    std::ostringstream text;
    text << std::ifstream(folder.path() + "/levora-wealth-tax/ErrorLog.txt").rdbuf();
    EXPECT_TRUE(text.str().ends_with("#,\"frmX - Y\",5,\"z\"\n")) << text.str();
}

TEST_F(ErrorPathTest, EveryStoreGoesDownThoughOneFails) {
    session.FormsDb.open(folder.connect_string(Store::forms));
    session.TaxDb.execute("INSERT INTO Enclosure (Description) VALUES ('x')");
    session.FormsDb.execute("INSERT INTO Challan (Total) VALUES (1)");
    sqlite3* reader = nullptr; // keeps the first store from being written
    sqlite3_open(folder.file(Store::tax).c_str(), &reader);
    sqlite3_exec(reader, "BEGIN; SELECT * FROM Enclosure", nullptr, nullptr, nullptr);
    session.TaxDb.set_longest_wait(std::chrono::milliseconds(10));
    EXPECT_EQ(testing::failure_of([&] { session.commit_all(); }).substr(0, 2), "5 ");
    EXPECT_EQ(folder.rows(Store::forms, "SELECT Total FROM Challan"), "1");
    sqlite3_close(reader);
    session.commit_all();
    EXPECT_EQ(folder.rows(Store::tax, "SELECT Description FROM Enclosure"), "x");
}

} // namespace
} // namespace levora::session
