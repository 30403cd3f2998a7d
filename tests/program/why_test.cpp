#include "challan/challan282.h"
#include "computation/wealth_sheet.h"
#include "program/program.h"
#include "return/return_screen.h"
#include "schedules/assets_screen.h"
#include "session/fresh_start.h"
#include "widgets/explanation.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace levora::program {

using computation::frmWealthMain;
using widgets::explain;
using widgets::Grid;

class WhyEverywhereTest : public testing::Test {
protected:
    WhyEverywhereTest()
        : program({fresh.desk, fresh.settings, fresh.folder.path(), "2014-2015 17 Individual x 0",
                   fresh.machine_name}) {
        EXPECT_TRUE(program.start());
    }
    widgets::Form& screen(const std::string& name) { return program.session().screens.load(name); }
    Grid& grid(const std::string& on, const char* name) { return static_cast<Grid&>(*screen(on).find(name)); }
    void click(const std::string& on, const char* name) {
        EXPECT_TRUE(static_cast<widgets::Button&>(*screen(on).find(name)).click());
    }
    void type(const std::string& on, const char* name, const char* text) {
        EXPECT_TRUE(static_cast<widgets::TextField&>(*screen(on).find(name)).type(text)) << name;
    }

    struct Case {
        const char* control;
        int column, row; // 0 for a field
        const char* told;
    };
    void expect_told(const std::string& on, std::initializer_list<Case> cases) {
        for (const Case& each : cases)
            EXPECT_EQ(explain(*screen(on).find(each.control), each.column, each.row).sentence, each.told);
    }

    session::testing::FreshStart fresh;
    Program program;
};

// A figure that a person can't type, or that stands on the ground of computed cells.
bool is_computed(const Grid& grid, int column, int row) {
    if (grid.has_formula(column, row)) return true;
    const widgets::CellKind kind = grid.cell_kind(column, row);
    if (kind != widgets::CellKind::number && kind != widgets::CellKind::percent) return false;
    constexpr unsigned white = 0xFFFFFF;
    return grid.cell_locked(column, row) || grid.cell_backcolor(column, row).value_or(white) != white;
}

TEST_F(WhyEverywhereTest, EveryComputedFieldAndCellOfEveryScreenIsExplained) {
    std::string unexplained;
    int explained = 0;
    for (const std::string& name : Program::screen_names()) {
        for (const widgets::Control* control : screen(name).controls()) {
            if (const auto* field = dynamic_cast<const widgets::TextField*>(control)) {
                if (!field->locked()) continue;
                ++explained;
                if (explain(*field).sentence.empty()) unexplained += name + "." + field->name() + "\n";
            } else if (const auto* cells = dynamic_cast<const Grid*>(control)) {
                for (int row = 1; row <= cells->rows(); ++row)
                    for (int column = 1; column <= cells->columns(); ++column) {
                        if (!is_computed(*cells, column, row)) continue;
                        ++explained;
                        if (explain(*cells, column, row).sentence.empty())
                            unexplained += name + "." + cells->name() + " " + cells->header(column) + ", " +
                                           cells->row_header(row) + "\n";
                    }
            }
        }
    }
    EXPECT_EQ(unexplained, "");
    EXPECT_GT(explained, 100);
}

TEST_F(WhyEverywhereTest, TellsWhatOneScreenHandsToAnother) {
    click("frmWealthMain", "cmdAssets");
    grid("frmImmovable", "sprMovableProp").type(2, 1, "800000");
    expect_told("frmWealthMain", {{"txtAssetsSec2ea", 0, 0,
                                   "Assets 0: the total of the assets screen, which is 8,00,000 now and has "
                                   "not been handed over"}});
    click("frmImmovable", "cmdOK");
    expect_told("frmWealthMain",
                {{"txtAssetsSec2ea", 0, 0, "Assets 8,00,000: the total of the assets screen"}});
    grid("frmDeemedAsset", "sprDeemedAsset").type(6, 1, "400000");
    grid("frmDeemedAsset", "sprDeemedAsset").type(8, 1, "100000");
    expect_told("frmDeemedAsset",
                {{"sprDeemedAsset", 6, 13, "Amount 4,00,000 = Amount 4,00,000 (row 1)"},
                 {"sprDeemedAsset", 9, 13,
                  "Net Amount 3,00,000 = Amount 4,00,000 less Debt Owed 1,00,000 (never below 0)"}});
    grid("frmBusinessAssets", "sprAssetOfBusiness").type(2, 1, "100");
    grid("frmBusinessAssets", "sprAssetOfBusiness").type(5, 1, "150");
    expect_told(
        "frmBusinessAssets",
        {{"sprAssetOfBusiness", 7, 1,
          "Value to be taken for Wealth Tax purpose 150 = Individual Asset Value 150 where that is "
          "above 120 % of Balance sheet Amount 120, else Balance sheet Amount 100 (Part D of Schedule "
          "III)"},
         {"txtTotalBusinessAsset", 0, 0,
          "Value of Busines Asset 150 = Value to be taken for Wealth Tax purpose 150 (row 1)"}});
}

TEST_F(WhyEverywhereTest, TellsTheReturn) {
    static_cast<frmWealthMain&>(screen("frmWealthMain")).txtAssetsSec2ea.set_text("4512349");
    click("frmWealthMain", "cmdformBA");
    Grid& movables = grid("frmFormBA", "sprMovableProperty");
    movables.type(2, 1, "900000");
    movables.type(3, 1, "100000");
    expect_told(
        "frmFormBA",
        {{"sprMovableProperty", 2, 1,
          "Value 9,00,000: an amount of the movable property, unless typed or loaded here"},
         {"sprMovableProperty", 4, 1, "Net Amount 8,00,000 = Value 9,00,000 less Debts owed 1,00,000"},
         {"TotalValMovableProp", 0, 0,
          "Total of the movable property 8,00,000 = Net Amount 8,00,000 (row 1)"},
         {"txtAggMovableProperty", 0, 0,
          "Aggregate value of movable property 8,00,000 = Total of the movable property 8,00,000"},
         {"txtNETWEALTHInFigure", 0, 0,
          "Net wealth 8,00,000 = Aggregate value of immovable property 0 plus Aggregate value of movable "
          "property 8,00,000 plus Aggregate value of jewellery, etc 0 plus Includible net wealth of other "
          "persons 0 plus Aggregate value of interest in firms 0"},
         {"txtNetWealthTax", 0, 0,
          "Tax payable on net wealth 15,123: the tax on net wealth of the computation"}});
    type("frmFormBA", "txtNetWealthTax", "100");
    type("frmFormBA", "txtMovTotalDeposit", "500");
    grid("frmFormBA", "sprScheduleOPR").type(2, 1, "1000");
    expect_told(
        "frmFormBA",
        {{"txtNetWealthTax", 0, 0,
          "Tax payable on net wealth 100: the tax on net wealth of the computation, which is 15,123 now and "
          "has not been handed over"},
         {"txtAmtPayable", 0, 0,
          "Amount payable 100 = Total tax and interest payable 100 less Tax and interest paid 0 (never below "
          "0)"},
         {"txtTotalValOtherProperty", 0, 0,
          "Total value at cost of other properties 1,500 = Deposits 500 plus Bonds and shares 0 plus Postal "
          "savings and insurance 0 plus Loans and advances 0 plus Other property 0 plus 1,000 from the costs "
          "of Schedule OPR"}});
}

TEST_F(WhyEverywhereTest, TellsTheChallan) {
    auto& challan = static_cast<challan::frmChallan282&>(screen("frmChallan282"));
    challan.cboAssessmentYear.choose("2008-2009");
    type("frmChallan282", "txtIncomeTax", "10050");
    expect_told("frmChallan282",
                {{"txtEducationCess", 0, 0,
                  "Education Cess 302 = 0.03 times the sum of Tax 10,050 and Surcharge 0 (the rate of the "
                  "assessment year)"},
                 {"txtTotal", 0, 0,
                  "Total 10,352 = Tax 10,050 plus Surcharge 0 plus Education Cess 302 plus Interest 0 plus "
                  "Penalty 0 plus Other 0"}});
    challan.cboAssessmentYear.choose("2014-2015");
    expect_told("frmChallan282", {{"txtEducationCess", 0, 0, "Education Cess 302: typed here"}});
}

} // namespace levora::program
