#include "reports/statement_report.h"

#include "reports_fixture.h"

namespace levora::reports {
namespace {

TEST_F(ReportsTest, TheStatementShowsTheUnsavedSheetObjectByObject) {
    start();
    folder.run(Store::tax, "INSERT INTO [Asset Details] (AssesseeNo, FY, AssetType, NetImmovableProperty, "
                           "NetMovableProperty, NetUrbanLand, TotalNetAsset) VALUES "
                           "(17, '2014-2015', 0, 6000000, 900000, 500000, 8000000)");
    type_on_sheet("txtLessDebt", "250000");
    auto* assets = dynamic_cast<widgets::TextField*>(sheet().find("txtAssetsSec2ea"));
    assets->set_text("9000000");
    click_on_sheet("cmdPreview");
    EXPECT_EQ(filled(previewed()),
              "Office_Name: Rao & Sons\ntxtRepFY: F.Y. 2014-2015\nAssessee_Name: Asha Rao\n"
              "Father's Name: Father's Name\nFather_Name: K Rao\ntxtRepAddress1: 12\n"
              "txtRepAddress2: MG Road\n" // no comma without a fourth line
              "txtRepCity: Pune\n"        // the city is its district: once, as written there
              "txtRepPIN: PIN: 411001\nStatus: Individual\nPAN: AAAPR1234C\nWard: Ward 3\n"
              "Date_of_Birth: 31/05/1960\nSex: Female\ntxtRepAssetsSec2ea: 9000000\n"
              "txtRepTotalAssets: 9000000\ntxtRepAssetsChargeable: 9000000\ntxtRepLessDebt: 250000\n"
              "txtRepNetWealth: 8750000\ntxtRepNetWealthRounded: 8750000\ntxtRepTaxableWealth: 5750000\n"
              "lblWealthTaxRate: Wealth Tax  @ 1% on Net Wealth in excess of Rs 30,00,000\n"
              "txtRepWealthTax: 57500\ntxtRepTaxIntPayable: 57500\ntxtRepBalance: 57500\n"
              "txtRepRefund: 0\nbarImmovable: 6000000\nbarMovable: 900000\nbarUrbanLand: 500000\n"
              "barFirm: 0\nbarBusiness: 0\nbarJewellery: 600000\n" // what the total has beyond the rest
              "barAssets: 9000000\nbarDeemedAssets: 0\nbarAssetsChargeable: 9000000\nbarDebt: 250000\n"
              "barNetWealth: 8750000\nbarTaxableWealth: 5750000\nbarWealthTax: 57500\n");
    EXPECT_EQ(previewed().caption, "Statement of Wealth Tax Preview - F.Y. 2014-2015");
}

TEST_F(ReportsTest, TheResidenceStandsWhereItIsChosenAndAMissingPinIsEmpty) {
    start("2014-2015 17 Individual x 1");
    click_on_sheet("cmdPreview");
    const document::Report& report = previewed();
    EXPECT_EQ(report.text("txtRepAddress1") + "|" + report.text("txtRepAddress2") + "|" +
                  report.text("txtRepCity") + "|" + report.text("txtRepPIN"),
              "House 9||Nagpur, |"); // a city without a district keeps its comma
}

TEST_F(ReportsTest, FathersNameShowsForAnIndividualOnlyAndTheLimitIsThatOfTheYear) {
    struct Case {
        const char *status, *shown;
        bool suppressed;
        const char *year, *limit;
    };
    constexpr Case cases[] = {{"0", "Individual", false, "2008", "15,00,000"},
                              {"1", "Hindu Undivided Family", true, "2009", "15,00,000"},
                              {"11", "Companies", true, "2010", "30,00,000"},
                              {"5", "5", true, "2014", "30,00,000"},
                              {"Null", "", true, "2014", "30,00,000"}};
    start();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.status);
        folder.run(Store::assessee, std::string("UPDATE AssesseeInfo SET Status = ") + each.status);
        session().AYStartYear = each.year;
        click_on_sheet("cmdPreview");
        EXPECT_EQ(previewed().text("Status"), each.shown);
        EXPECT_EQ(previewed().suppressed("Father_Name"), each.suppressed);
        EXPECT_EQ(previewed().suppressed("Father's Name"), each.suppressed);
        EXPECT_EQ(previewed().text("lblWealthTaxRate"),
                  std::string("Wealth Tax  @ 1% on Net Wealth in excess of Rs ") + each.limit);
    }
    click_on_sheet("cmdformBA");
    form_ba().cmdPreview.click(); // takes the place of the statement
    EXPECT_EQ(previewed().name(), "FormBB");
    EXPECT_EQ(session().screens.find("frmRepPreview")->caption(),
              "Wealth Tax Return Preview - F.Y. 2014-2015");
}

TEST(StatementTest, AddressPartsAreJoinedByTheirOwnRules) {
    EXPECT_EQ(JoinAddress("A", "B"), "A, B");
    EXPECT_EQ(JoinAddress("", "B"), "B");
    EXPECT_EQ(JoinCity("PUNE", "Pune"), "Pune");
    EXPECT_EQ(JoinCity("Nashik", "Pune"), "Nashik, Pune");
    EXPECT_EQ(JoinCity("", "Pune"), "Pune");
}

} // namespace
} // namespace levora::reports
