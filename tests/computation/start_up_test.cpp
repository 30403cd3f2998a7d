#include "computation/sheet_fixture.h"

#include <filesystem>

namespace levora::computation {

class StartUpTest : public SheetTest {};

TEST_F(StartUpTest, JudgesTheCommandLine) {
    struct Case {
        const char *why, *line;
        bool starts;
    };
    constexpr Case cases[] = {
        {"a sixth word", "2014-2015 17 Individual x 0 0", true},
        {"empty words count", "2014-2015 17   ", true},
        {"years that do not follow", "2014-2016 17 Individual x 0", false},
        {"a letter in a year", "2014-201x 17 Individual x 0", false},
        {"a slash for the hyphen", "2014/2015 17 Individual x 0", false},
        {"a short year", "2014-15 17 Individual x 0", false},
        {"assessee 0", "2014-2015 0 Individual x 0", false},
        {"an assessee of letters", "2014-2015 17a Individual x 0", false},
        {"two blanks: word 1 is empty", "2014-2015  17 Individual x 0", false},
        {"four words", "2014-2015 17 Individual x", false},
        {"nothing", "", false},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        EXPECT_EQ(start(each.line), each.starts);
        const auto shown = fresh.desk.take_messages();
        EXPECT_EQ(shown.size(), each.starts ? 0U : 1U);
        for (const auto& each_shown : shown) {
            EXPECT_EQ(each_shown.box.text, "Improper call to 'Wealth Tax'");
            EXPECT_EQ(each_shown.box.icon, widgets::Icon::critical);
        }
        EXPECT_EQ(fresh.session().AssesseeDb.is_open(), each.starts) << "before any store is opened";
    }
    EXPECT_EQ(fresh.logged(), "");
}

TEST_F(StartUpTest, ReadsCompanyAndAddressChoice) {
    struct Case {
        const char* line;
        bool company, residential;
    };
    constexpr Case cases[] = {
        {"2014-2015 17 Public_Company x 1", true, true},
        {"2014-2015 17 Private_Company x 1.0", true, true},
        {"2014-2015 17 Foreign_Company x 2", true, false},
        {"2014-2015 17 Public_company x one", false, false},
        {"2014-2015 17 HUF x 1x", false, true},
    };
    for (const Case& each : cases) {
        EXPECT_TRUE(start(each.line)) << each.line;
        EXPECT_EQ(fresh.session().IsCompanyAssessee, each.company) << each.line;
        EXPECT_EQ(fresh.session().UseResidentialAddress, each.residential) << each.line;
    }
}

TEST_F(StartUpTest, WorksOnTheListsYearWhateverTheCallNamed) {
    fresh.run(Store::assessee,
              "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name) VALUES (17, 'A. Client')");
    EXPECT_TRUE(start("1999-2000 17 Individual x 0"));
    EXPECT_EQ(fresh.session().CurrentFY, "2014-2015");
    EXPECT_EQ(fresh.session().AYStartYear, "2014");
    EXPECT_EQ(sheet().caption(), "Wealth Tax - Ver 14.0.8 - Wealth Tax Computation");
    EXPECT_EQ(sheet().txtAssesseeName.text(), "A. Client");
    EXPECT_EQ(sheet().mskValuationDate.text(), "31/03/2014");
    EXPECT_EQ(sheet().txtExemptedAmount.text(), "3000000");
    EXPECT_FALSE(sheet().mnuWealthTax.visible());
    EXPECT_TRUE(sheet().visible());
    EXPECT_TRUE(start("2014-2015 18 Individual x 0"));
    EXPECT_EQ(sheet().txtAssesseeName.text() + fresh.logged(), "") << "an unknown assessee is no error";
    fresh.run(Store::assessee, "DROP TABLE AssesseeInfo");
    EXPECT_TRUE(start()) << "a report of the name ends that procedure alone";
    EXPECT_EQ(fresh.logged(), "frmWealthMain - InitializecontrolsAndVars");
}

TEST_F(StartUpTest, TakesTheFolderOfItsInstallation) {
    struct Case {
        const char* installation;
        bool server, client;
        std::string_view machine, computer;
    };
    constexpr Case cases[] = {
        {"", false, false, "DESK-1", ""},
        {"Server", true, false, {"  DESK-1 \0hidden", 16}, "DESK-1"},
        {"Client", false, true, "a-desk-of-16-ch.", "a-desk-of-16-ch"},
        {"server", false, false, "DESK-1", ""},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.installation);
        fresh.machine_name = each.machine;
        fresh.settings.write(session::registry::levora_it, "IT Installation", std::string(each.installation));
        const char* used = each.client ? "LVDBPathServer" : "LVDBPath";
        const char* unused = each.client ? "LVDBPath" : "LVDBPathServer";
        fresh.settings.write(session::registry::shared, used, fresh.folder.path());
        fresh.settings.write(session::registry::shared, unused, std::string("/no/such/folder"));
        EXPECT_TRUE(start());
        EXPECT_EQ(fresh.session().IsServerInstall, each.server);
        EXPECT_EQ(fresh.session().IsClientInstall, each.client);
        EXPECT_EQ(fresh.session().IsNetworkInstall, each.server || each.client);
        EXPECT_EQ(fresh.session().ComputerName, each.computer);
    }
}

TEST_F(StartUpTest, WantedOnlyALockWithAnEmptyYearIsCleared) {
    for (const char* values : {"'DESK-1', 17, ''", "'DESK-1', 17, '2014-2015'", "'DESK-2', 17, ''"})
        fresh.run(Store::tax, "INSERT INTO WTaxAssesseeLocking (ComputerName, AssesseeNo, FY) VALUES (" +
                                  std::string(values) + ")");
    EXPECT_TRUE(start());
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT count(*) FROM WTaxAssesseeLocking"), "3") << "stand-alone";
    fresh.settings.write(session::registry::levora_it, "IT Installation", std::string("Server"));
    EXPECT_TRUE(start());
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT ComputerName, FY FROM WTaxAssesseeLocking"),
              "DESK-1|2014-2015; DESK-2|");
}

TEST_F(StartUpTest, AMissingStoreIsReportedUntilThePersonGivesUp) {
    std::filesystem::remove(fresh.folder.file(Store::forms));
    fresh.desk.queue_answer(widgets::Answer::retry);
    EXPECT_FALSE(start());
    const auto shown = fresh.desk.take_messages();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].box.buttons.size(), 3U);
    EXPECT_NE(shown[0].box.text.find("LVForms"), std::string::npos) << shown[0].box.text;
    EXPECT_EQ(fresh.logged(), "frmWealthMain - Form_Load|frmWealthMain - Form_Load");
    EXPECT_FALSE(fresh.session().TaxDb.is_open());
}

} // namespace levora::computation
