#include "schedules/assets_fixture.h"
#include "schedules/property_grid.h"

using namespace levora;
using namespace levora::schedules;

namespace {

class AssetsScreenTest : public AssetsTest {
protected:
    // Selected tab, captions with the disabled ones in brackets.
    std::string tabs() {
        std::string all = std::to_string(assets().SSTabAsset.tab()) + ":";
        for (int tab = 0; tab < asset_tabs; ++tab) {
            const std::string& caption = assets().SSTabAsset.caption(tab);
            all += assets().SSTabAsset.tab_enabled(tab) ? " " + caption : " ()";
        }
        return all;
    }
    std::string details() {
        return stored("Select AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand, "
                      "NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset "
                      "From [Asset Details] Order By AssetType");
    }
};

TEST_F(AssetsScreenTest, TotalsReachTheSummaryInTheMainModeAloneJewelleryInEveryMode) {
    struct Case {
        const char* why;
        bool business, deemed;
        const char* summary; // property, land, firm, jewellery
    };
    constexpr Case cases[] = {
        {"main", false, false, "10 20 30 40"},
        {"business", true, false, "0 - - 40"},
        {"deemed", false, true, "0 - - 40"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        session.BusinessAssetFlag = each.business;
        session.DeemedAssetFlag = each.deemed;
        frmImmovable& form = assets();
        for (widgets::TextField* field : {&form.txtNetUrbanLand, &form.txtNetInterestInFirm})
            field->set_text("-");
        form.immovable.txtImmovableNetAmount.set_text("10");
        form.urban_land.txtNetAmount.set_text("20");
        form.firm.txtTotalInterestInFirm.set_text("30");
        form.jewellery.txtAggNetAmt.set_text("40");
        EXPECT_EQ(form.txtNetImmovableProperty.text() + " " + form.txtNetUrbanLand.text() + " " +
                      form.txtNetInterestInFirm.text() + " " + form.txtNetJewellery.text(),
                  each.summary);
        assets().leave();
    }
}

TEST_F(AssetsScreenTest, OkOfTheMainModeStoresAndWritesTheSheet) {
    own_properties("1");
    properties().type(2, PropertyRow::annual_value, "100000");
    assets().txtNetBusinessAssets.set_text("150000");
    EXPECT_TRUE(assets().cmdOK.click());
    EXPECT_EQ(screens.find("frmImmovable"), nullptr);
    auto& sheet = static_cast<SheetStandIn&>(screens.load("frmWealthMain"));
    EXPECT_TRUE(sheet.visible());
    EXPECT_EQ(sheet.txtAssetsSec2ea.text(), "1000000");
    EXPECT_EQ(details(), "0|0|850000|0|0|0|150000|1000000\n");

    store("Update [Asset Details] Set NetBusinessAssets = Null, ImmovablePropertyDebtOwed = 9");
    screens.show("frmImmovable");
    EXPECT_EQ(assets().txtNetBusinessAssets.text(), "0");
    EXPECT_EQ(assets().txtTotalNetAmount.text(), "850000");
    assets().cmdOK.click(); // the row is updated in place
    EXPECT_EQ(details(), "0|0|850000|0|0|0|0|850000\n");
}

TEST_F(AssetsScreenTest, OpensTheTabOfARowAndLeavesItTheOnlyOneEnabled) {
    struct Case {
        const AssetParent& parent;
        const char *name, *tabs;
    };
    const Case cases[] = {
        {business_parent, "Building", "0: Immovable Property - Business Asset (Building) () () () ()"},
        {business_parent, "Others", "0: Immovable Property - Business Asset (Others) () () () ()"},
        {deemed_parent, "Residential House",
         "0: Immovable Property - Deemed Asset (Residential House) () () () ()"},
        {business_parent, "Urban Land", "1: () Urban Land - Business Asset (Urban Land) () () ()"},
        {business_parent, "Car", "2: () () Movable Property - Business Asset (Car) () ()"},
        {deemed_parent, "Furnitures with precious metal",
         "2: () () Movable Property - Deemed Asset (Furnitures with precious metal) () ()"},
        {deemed_parent, "Interest in Firm or AOP", "3: () () () Interest in Firm or AOP - Deemed Asset ()"},
        {business_parent, "Jewellery", "4: () () () () Jewellery - Business Asset"},
        {deemed_parent, "Jewellery", ""},
        {business_parent, "", ""},
        {business_parent, "building", ""},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        session.BusinessAssetFlag = &each.parent == &business_parent;
        session.DeemedAssetFlag = !session.BusinessAssetFlag;
        session.AssetRowName = each.name;
        open_assets_for_row(session, each.parent);
        EXPECT_FALSE(assets().cmdBusinessAsset.visible());
        const bool opens = *each.tabs != '\0';
        EXPECT_EQ(assets().visible(), opens);
        EXPECT_EQ(assets().frWTDetails.visible(), !opens);
        if (opens) {
            EXPECT_EQ(tabs(), each.tabs);
        }
        assets().leave();
    }
}

TEST_F(AssetsScreenTest, OkHandsTheOpenedTabsTotalToTheActiveRowOfItsParent) {
    struct Case {
        const char* why;
        const AssetParent& parent;
        const char *name, *handed;
    };
    const Case cases[] = {
        {"text of the total", business_parent, "Building", "12 rupees"},
        {"numeric value of the land", business_parent, "Urban Land", "7"},
        {"firms pass an empty total until a figure is changed", business_parent, "Interest in Firm or AOP",
         ""},
        {"text of the jewellery", business_parent, "Jewellery", "9"},
        {"deemed assets take it in column 5 too", deemed_parent, "Others", "12 rupees"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        auto& parent = static_cast<RowsStandIn&>(screens.load(each.parent.screen));
        parent.rows.set_text(5, 3, "before");
        parent.rows.set_active(1, 3);
        session.BusinessAssetFlag = &each.parent == &business_parent;
        session.DeemedAssetFlag = true; // a business asset all the same
        session.AssetRowName = each.name;
        open_assets_for_row(session, each.parent);
        assets().immovable.txtImmovableNetAmount.set_text("12 rupees");
        assets().urban_land.txtNetAmount.set_text("7 lakh");
        assets().jewellery.txtAggNetAmt.set_text("9");
        EXPECT_TRUE(assets().cmdOK.click());
        EXPECT_EQ(screens.find("frmImmovable"), nullptr);
        EXPECT_TRUE(parent.visible());
        EXPECT_EQ(parent.rows.text(5, 3), each.handed);
        EXPECT_EQ(screens.find("frmWealthMain"), nullptr);
    }
    EXPECT_EQ(stored("Select AssetType From [Asset Details] Order By AssetType"), "1\n2\n");
}

TEST_F(AssetsScreenTest, PropertiesComeBackAsStoredEachModeItsOwn) {
    own_properties("2");
    widgets::Grid* grid = &properties();
    const char* texts[] = {"",       "12 A", "Park View", "Road",    "Area", "",       "",     "",
                           "110001", "S 7",  "",          "1000",    "",     "100",    "",     "",
                           "",       "",     "20000",     "",        "",     "",       "",     "300",
                           "",       "",     "",          "50 owed", "",     "Valuer", "R 12", "5-3-2014"};
    for (int row = 1; row <= property_rows; ++row)
        if (*texts[row - 1] != '\0') {
            EXPECT_TRUE(grid->type(3, row, texts[row - 1])) << row;
        }
    for (const int row : {1, 6, 7, 8, 17})
        EXPECT_TRUE(grid->choose(3, row, row == 8 ? 0 : 2));
    save_and_reopen();
    EXPECT_EQ(
        stored("Select TypeOfProperty, Flat, Premises, Road, Area, City, State, Country, pincode, survey, "
               "AnnualRent, AnnualValueByLocalAuthority, TaxesPaid, CapitalisedValue, CostOfAcquition, "
               "PremiumAddedRate, PremiumAmountAdded, UnearnIncreasePayable, NetValueOfProperty, DebtOwed, "
               "NetValue, NameRegValuer, RegNoValuer, DateofReportByValuer, PropertyNo, AssetType "
               "From [Immovable Property Details] Where PropertyNo = 2"),
        "Guest House|12 A|Park View|Road|Area|Delhi|Arunachal Pradesh|INDIA|110001|S 7|0|1000|100|6000|"
        "20000|Details|0|300|19700|50|19650|Valuer|R 12|05/03/2014|2|0\n");
    grid = &properties();
    EXPECT_EQ(assets().immovable.cboNumberOfProperty.text(), "2");
    EXPECT_EQ(headers(*grid), "1 2 (3)");
    EXPECT_EQ(cells(*grid, 3, {1, 2, 6, 7, 8, 9, 11, 12, 13, 14, 18, 19, 20, 21, 22, 24, 26, 27, 28, 29, 32}),
              "Guest House 12 A Delhi Arunachal Pradesh INDIA 110001 Details 1000 1000 100 6000 20000 20000 "
              "Details 0 300 300 19700 50 19650 05/03/2014");
    EXPECT_EQ(cells(*grid, 2, {1, 8, 12, 29}), "Residential House - - 0");
    own_properties("0");
    save_and_reopen();
    EXPECT_EQ(stored("Select PropertyNo From [Immovable Property Details]"), "");
}

TEST_F(AssetsScreenTest, LoadLeavesNullsAndAmountsOfZeroOrLessEmpty) {
    store(
        "Insert Into [Immovable Property Details] (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, "
        "PropertyConstructedOn, AnnualRent, TaxesPaid, CostOfAcquition, CapitalisedValue, PremiumAddedRate, "
        "DebtOwed) Values (17, '2014-2015', 0, 7, 'guest house', Null, -5, 0, 1000, 77, '20', Null)");
    store("Insert Into [Immovable Property Details] (AssesseeNo, FY, AssetType, PropertyNo) "
          "Values (17, '2014-2015', 1, 1)");
    screens.show("frmImmovable");
    EXPECT_EQ(assets().immovable.cboNumberOfProperty.text(), "1");
    EXPECT_EQ(cells(properties(), 2, {1, 2, 6, 11, 12, 14, 17, 18, 19, 20, 21, 22, 23, 28, 29}),
              "Guest House - - Details - - - 77 1000 1000 20 200 1200 - 1200");
    EXPECT_EQ(assets().txtTotalNetAmount.text(), "1200");
}

} // namespace
