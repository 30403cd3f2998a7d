#include "schedules/assets_fixture.h"
#include "schedules/business_assets.h"
#include "schedules/deemed_assets.h"
#include "schedules/exempted_assets.h"

using namespace levora;
using namespace levora::schedules;
using widgets::Answer;

namespace {

class RowScreensTest : public AssetsTest {
protected:
    RowScreensTest() {
        screens.define("frmDeemedAsset", [this] { return std::make_unique<frmDeemedAsset>(session); });
        screens.define("frmBusinessAssets", [this] { return std::make_unique<frmBusinessAssets>(session); });
        screens.define("frmAssetExempt", [this] { return std::make_unique<frmAssetExempt>(session); });
    }
    SheetStandIn& sheet() { return screens.get<SheetStandIn>("frmWealthMain"); }
    frmDeemedAsset& deemed() { return screens.get<frmDeemedAsset>("frmDeemedAsset"); }
    frmBusinessAssets& business() { return screens.get<frmBusinessAssets>("frmBusinessAssets"); }
    frmAssetExempt& exempt() { return screens.get<frmAssetExempt>("frmAssetExempt"); }
    void deemed_row(int row, std::string_view amount, std::string_view debt) {
        EXPECT_TRUE(deemed().sprDeemedAsset.type(DeemedColumn::amount, row, amount));
        EXPECT_TRUE(deemed().sprDeemedAsset.type(DeemedColumn::debt, row, debt));
    }
};

using DeemedAssetsTest = RowScreensTest;
using BusinessAssetsTest = RowScreensTest;
using ExemptedAssetsTest = RowScreensTest;

TEST_F(DeemedAssetsTest, TheTotalIsTheFlooredDifferenceOfTheTotals) {
    deemed_row(1, "100", "30");
    deemed_row(12, "50", "90");
    EXPECT_EQ(cells(deemed().sprDeemedAsset, 9, {1, 2, 12, 13}), "70 0 0 30");
    deemed_row(2, "0", "31");
    EXPECT_EQ(deemed().sprDeemedAsset.text(9, 13), "0");
    EXPECT_FALSE(deemed().sprDeemedAsset.type(DeemedColumn::amount, 13, "5"));
    deemed().sprDeemedAsset.set_active(DeemedColumn::debt, 2);
    deemed().sprDeemedAsset.press_key("Delete");
    EXPECT_EQ(deemed().sprDeemedAsset.text(9, 13), "30");
}

TEST_F(DeemedAssetsTest, OkStoresRowsWithAnAmountAndHandsTheTotalToTheSheet) {
    session.DeemedAssetFlag = true;
    widgets::Grid& grid = deemed().sprDeemedAsset;
    deemed_row(1, "1000", "100");
    EXPECT_TRUE(grid.choose(1, 1, "transferred under revocable transfers"));
    EXPECT_FALSE(grid.choose(1, 2, "transferred under revocable transfers"));
    EXPECT_TRUE(grid.choose(2, 1, "Gold"));
    EXPECT_TRUE(grid.type(3, 1, "Asha"));
    EXPECT_TRUE(grid.type(4, 1, "Wife"));
    EXPECT_FALSE(grid.type(5, 1, "1234"));
    EXPECT_TRUE(grid.type(5, 1, "abcde1234f"));
    deemed_row(2, "0", "5000"); // dropped
    deemed_row(3, "-40", "0");
    EXPECT_TRUE(deemed().cmdDeemedAssetOk.click());
    EXPECT_EQ(sheet().txtDeemedAssets.text(), "0"); // 960 less 5100
    EXPECT_TRUE(sheet().visible());
    EXPECT_EQ(screens.find("frmDeemedAsset"), nullptr);
    EXPECT_FALSE(session.DeemedAssetFlag);
    EXPECT_EQ(stored("Select * From DeemedAssetDetails"),
              "17|2014-2015|transferred under revocable transfers|Gold|Asha|Wife|ABCDE1234F|1000|100|900\n"
              "17|2014-2015||||||-40|0|0\n");
    EXPECT_EQ(table(deemed().sprDeemedAsset, {1, 1, 9, 2}),
              "transferred under revocable transfers|Gold|Asha|Wife|ABCDE1234F|1000|Details|100|900\n"
              "|||||-40|Details|0|0\n");
    EXPECT_EQ(deemed().sprDeemedAsset.text(9, 13), "860");
}

TEST_F(DeemedAssetsTest, RowsGoByTheirNumbersWhateverMovedOrRanOver) {
    deemed_row(1, "100", "0");
    deemed_row(12, "7", "0");
    deemed().sprDeemedAsset.set_active(1, 2);
    deemed().sprDeemedAsset.press_key("Ctrl+Insert");
    EXPECT_EQ(cells(deemed().sprDeemedAsset, 9, {13, 14}), "7 107");
    deemed().cmdDeemedAssetOk.click(); // row 13 for the sheet, rows 1 to 12 for the store
    EXPECT_EQ(sheet().txtDeemedAssets.text(), "7");
    EXPECT_EQ(stored("Select DeemedAssetValue From DeemedAssetDetails"), "100\n");
    for (int record = 2; record <= 14; ++record)
        store("Insert Into DeemedAssetDetails (AssesseeNo, FY, Relationship, DeemedAssetValue) Values "
              "(17, '2014-2015', 'r" +
              std::to_string(record) + "', 10)");
    EXPECT_EQ(cells(deemed().sprDeemedAsset, DeemedColumn::relationship, {2, 12, 13}), "r2 r12 r13");
    EXPECT_EQ(cells(deemed().sprDeemedAsset, DeemedColumn::amount, {12, 13}), "10 210");
    EXPECT_TRUE(unanswered.empty());
}

TEST_F(DeemedAssetsTest, DetailsDoesNothingWhileAClickOfColumnSixWouldOpenTheTab) {
    widgets::Grid& grid = deemed().sprDeemedAsset;
    grid.choose(DeemedColumn::type_of_asset, 3, "Urban Land");
    EXPECT_TRUE(grid.press(DeemedColumn::details, 3));
    EXPECT_FALSE(grid.press(DeemedColumn::details, 9));
    EXPECT_EQ(screens.find("frmImmovable"), nullptr);
    deemed().sprDeemedAsset_ButtonClicked(DeemedColumn::amount, 3);
    EXPECT_TRUE(session.DeemedAssetFlag);
    EXPECT_EQ(assets().SSTabAsset.caption(AssetTab::urban_land), "Urban Land - Deemed Asset (Urban Land)");
    assets().urban_land.sprUrbanLand.type(LandColumn::valuation, 1, "77");
    assets().cmdOK.click();
    EXPECT_EQ(grid.text(DeemedColumn::pan, 3), "77"); // the grid's former numbering
}

TEST_F(BusinessAssetsTest, TheSingleValueIsTakenOnlyAboveAFifthMore) {
    struct Case {
        const char *why, *balance_sheet, *individual, *row;
    };
    constexpr Case cases[] = {
        {"exactly 120 %", "1000", "1200", "200|1200|1200|Details|1000"},
        {"exactly 120 % of a figure with paise", "3.01", "3.612", "0.602|3.612|3.612|Details|3.01"},
        {"just above", "1000", "1201", "200|1200|1201|Details|1201"},
        {"nothing single", "1000", "", "200|1200||Details|1000"},
        {"the limit is not rounded", "1003", "1204", "200.6|1203.6|1204|Details|1204"},
        {"a negative sheet", "-100", "-110", "-20|-120|-110|Details|-110"},
    };
    widgets::Grid& grid = business().sprAssetOfBusiness;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        EXPECT_TRUE(grid.type(BusinessColumn::balance_sheet, 1, each.balance_sheet));
        EXPECT_TRUE(grid.type(BusinessColumn::individual, 1, each.individual));
        EXPECT_EQ(table(grid, {3, 1, 7, 1}), std::string(each.row) + "\n");
        EXPECT_EQ(business().txtTotalBusinessAsset.text(), grid.text(BusinessColumn::taken, 1));
    }
}

TEST_F(BusinessAssetsTest, ARowOpensItsTabAndItsValueComesBackWhileTheTotalWaits) {
    widgets::Grid& grid = business().sprAssetOfBusiness;
    grid.type(BusinessColumn::balance_sheet, 2, "1000");
    for (const int row : {2, 11})
        EXPECT_FALSE(grid.type(BusinessColumn::individual, row, "5000")) << "locked until a value arrives";
    for (const int row : {1, 12})
        EXPECT_FALSE(grid.cell_locked(BusinessColumn::individual, row));
    grid.choose(BusinessColumn::asset, 2, "Car");
    EXPECT_TRUE(grid.press(BusinessColumn::details, 2));
    EXPECT_TRUE(session.BusinessAssetFlag);
    EXPECT_EQ(session.AssetRowName, "Car");
    EXPECT_FALSE(assets().cmdBusinessAsset.visible() || assets().frWTDetails.visible());
    assets().movable.sprMovableProp.type(2, 1, "4000");
    assets().cmdOK.click();
    EXPECT_EQ(table(grid, {5, 2, 7, 2}), "4000|Details|4000\n");
    EXPECT_EQ(business().txtTotalBusinessAsset.text(), "1000");
    EXPECT_TRUE(grid.type(BusinessColumn::individual, 2, "4001"));
    EXPECT_EQ(business().txtTotalBusinessAsset.text(), "4001");
}

TEST_F(ExemptedAssetsTest, EveryRowDownToTheLastIsStoredBlankOnesToo) {
    widgets::Grid& grid = exempt().sprAssetExempt;
    EXPECT_TRUE(grid.choose(1, 1, "Other (Specify)"));
    EXPECT_TRUE(grid.type(2, 1, "100"));
    EXPECT_TRUE(grid.type(3, 1, "350"));
    EXPECT_TRUE(grid.type(2, 3, "50"));
    EXPECT_EQ(exempt().txtTotalAssetExempt.text(), "-200");
    exempt().txtTotalAssetExempt.set_text("unmoved");
    EXPECT_TRUE(grid.type(5, 3, "Section 5(vi)")); // the reasons run no total
    EXPECT_TRUE(exempt().cmdOK.click());
    EXPECT_EQ(sheet().txtExemptedAssets.text(), "unmoved");
    EXPECT_EQ(stored("Select * From AssetUnderExemption"),
              "17|2014-2015|Other (Specify)|100|350|-250|\n17|2014-2015||0|0|0|\n"
              "17|2014-2015||50|0|50|Section 5(vi)\n");
    EXPECT_EQ(table(exempt().sprAssetExempt, {1, 1, 5, 3}),
              "Other (Specify)|100|350|-250|\n|0|0|0|\n|50|0|50|Section 5(vi)\n");
    EXPECT_EQ(exempt().txtTotalAssetExempt.text(), "-200");
    exempt().sprAssetExempt.type(2, 1, "9");
    exempt().cmdCancel.click();
    EXPECT_EQ(sheet().txtExemptedAssets.text(), "unmoved");
}

TEST_F(ExemptedAssetsTest, KeysAndMenuWorkOnTheActiveRow) {
    widgets::Grid& grid = exempt().sprAssetExempt;
    const auto amounts = [&] {
        std::string all = std::to_string(grid.rows()) + ":";
        for (int row = 1; row <= grid.data_rows(); ++row)
            all += " " + (grid.text(2, row).empty() ? "-" : grid.text(2, row));
        return all;
    };
    grid.type(2, 1, "1");
    grid.type(2, 2, "2");
    answer(Answer::no);
    EXPECT_EQ(grid.right_click(), &exempt().mnuSpread);
    EXPECT_TRUE(exempt().mnuDeleteRow.click()); // sends Escape
    EXPECT_EQ(asked(), "Do you want to delete the selected row(s) ??\n");
    EXPECT_EQ(amounts(), "6: 1 2");
    EXPECT_TRUE(exempt().mnuInsertRow.click()); // sends Insert, which needs Ctrl
    EXPECT_EQ(amounts(), "6: 1 2");
    grid.type_character(U'-');
    EXPECT_EQ(amounts(), "6: 1 - 2");
    EXPECT_TRUE(grid.choose(1, 2, 0)); // the list came along
    grid.press_key("Ctrl+Insert");
    EXPECT_EQ(amounts(), "7: 1 - - 2");
    grid.set_active(2, 4);
    answer(Answer::yes);
    grid.press_key("Escape");
    EXPECT_EQ(amounts(), "7: 1 - -");
    grid.type(2, 7, "9");
    grid.type_character(U'-'); // the last row's data don't fall off
    EXPECT_EQ(amounts(), "8: 1 - - - - - - 9");
    grid.set_active(5, 8);
    grid.press_key("Tab");
    EXPECT_EQ(grid.rows(), 9);
    EXPECT_EQ(grid.design(1, 9).items.size(), 7U);
    EXPECT_EQ(exempt().txtTotalAssetExempt.text(), "10"); // since the last change
    grid.set_active(2, 8);
    grid.press_key("Delete");
    EXPECT_TRUE(grid.changed());
    EXPECT_EQ(exempt().txtTotalAssetExempt.text(), "10");
}

TEST_F(RowScreensTest, ASheetThatCannotBeHadEndsWithoutAWordAndWithoutATotalRow) {
    desk.has_paper = false;
    exempt().sprAssetExempt.enter();
    exempt().mnuPrintSheet.click();
    exempt().mnuPreviewSheet.click();
    widgets::Grid& land = assets().urban_land.sprUrbanLand;
    land.enter();
    const int rows = land.rows();
    assets().mnuPrint.click();
    assets().mnuPreview.click();
    EXPECT_EQ(land.rows(), rows);
    EXPECT_EQ(session.SheetGridName + asked(), "");
    EXPECT_TRUE(unanswered.empty());
}

TEST_F(RowScreensTest, TheCloseBoxLeavesNobodyWithoutAScreen) {
    sheet();
    for (const char* name : {"frmDeemedAsset", "frmAssetExempt"}) {
        sheet().set_visible(false);
        screens.show(name);
        EXPECT_TRUE(screens.close(name));
        EXPECT_TRUE(sheet().visible()) << name;
    }
    for (const bool cancel : {false, true}) { // the close box only leaves so while no assets are on view
        session.BusinessAssetFlag = true;
        screens.show("frmBusinessAssets");
        business().sprAssetOfBusiness.type(BusinessColumn::balance_sheet, 1, "500");
        EXPECT_TRUE(cancel ? business().cmdCancel.click() : screens.close("frmBusinessAssets"));
        EXPECT_TRUE(screens.find("frmImmovable")->visible());
        EXPECT_FALSE(session.BusinessAssetFlag);
        // Cancel keeps the rows on the screen; neither stores them.
        EXPECT_EQ(business().sprAssetOfBusiness.text(BusinessColumn::balance_sheet, 1), cancel ? "500" : "");
        EXPECT_EQ(stored("Select * From BusinessAsset"), "");
    }
}

} // namespace
