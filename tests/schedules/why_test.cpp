#include "schedules/assets_fixture.h"
#include "schedules/business_assets.h"
#include "schedules/deemed_assets.h"
#include "schedules/exempted_assets.h"
#include "schedules/property_grid.h"
#include "widgets/explanation.h"

namespace levora::schedules {

using Row = PropertyRow;

class SchedulesWhyTest : public AssetsTest {
protected:
    struct Case {
        const char* control;
        int column, row; // 0 for a field
        const char* told;
    };
    static void expect_told(const widgets::Form& form, std::initializer_list<Case> cases) {
        for (const Case& each : cases)
            EXPECT_EQ(explain(*form.find(each.control), each.column, each.row).sentence, each.told);
    }
    void type(int row, const char* text) { EXPECT_TRUE(properties().type(2, row, text)); }
};

TEST_F(SchedulesWhyTest, TellsEachStepOfAProperty) {
    own_properties("2");
    type(Row::annual_value, "600001");
    type(Row::unearned_increase, "100000");
    type(Row::debt_owed, "140000");
    properties().type(3, Row::annual_value, "100");
    expect_told(
        assets(),
        {{"sprImmovable", 2, Row::gross_rent,
          "Gross Maintainable Rent 6,00,001 = the higher of Annual Rent 0 and Annual Value assessed by Local "
          "Authority 6,00,001 (rule 5 of Schedule III)"},
         {"sprImmovable", 2, Row::repairs,
          "15% of Gross Maintainable Rent 90,000 = 15 % of Gross Maintainable Rent 6,00,001 (for repairs, "
          "rule 5 of Schedule III)"},
         {"sprImmovable", 2, Row::capitalised_value,
          "Capitalised Value 51,00,010 = Gross Maintainable Rent 6,00,001 less Total taxes levied by Local "
          "Authority 0 less 15% of Gross Maintainable Rent 90,000, multiplied by Property Constructed on "
          "\"Lease hold Land & Unexpired Lease period is 50 Yrs. or more = (NMR X 10)\" (rule 4 of Schedule "
          "III)"},
         {"sprImmovable", 2, Row::deduction,
          "Deduction of Unearn Increase 1,00,000 = the lower of Unearn Increase payable to the Govt. or any "
          "authority 1,00,000 and 50% of Valuation of Property 25,50,005 (rule 7 of Schedule III)"},
         {"sprImmovable", 2, Row::net_value,
          "Net Value 48,60,010 = Net Valuation of Property 50,00,010 less Debt Owed 1,40,000 (never below "
          "0)"},
         {"sprImmovable", 2, Row::annual_rent,
          "Annual Rent 0: the total of the annual rent that this button opens"},
         {"txtImmovableNetAmount", 0, 0, "Net Amount 48,60,860 = Net Value 48,60,010 (1) plus 850 (2)"},
         {"txtNetImmovableProperty", 0, 0, "Immovable Property 48,60,860 = Net Amount 48,60,860"},
         {"txtTotalNetAmount", 0, 0,
          "Total Asset 48,60,860 = Immovable Property 48,60,860 plus Movable Property 0 plus Urban Land 0 "
          "plus Interest in Firm or AOP 0 plus Business Asset 0 plus Jewellery 0"}});
}

TEST_F(SchedulesWhyTest, TellsWhereAWantedOddityLeavesAFigureBehind) {
    own_properties("1");
    type(Row::annual_value, "600000");
    type(Row::cost, "7000000");
    expect_told(assets(), {{"sprImmovable", 2, Row::higher_value,
                            "Capitalised value of NMR 51,00,000 was typed or stored, or waits for the next "
                            "change of a row that values the property; the higher of Capitalised Value "
                            "51,00,000 and Cost of Constrn./ Acquisition of house Property 70,00,000 (rule 3 "
                            "of Schedule III; the cost alone without a tenure) gives 70,00,000"}});
    EXPECT_TRUE(properties().choose(2, Row::constructed_on, 0));
    expect_told(assets(), {{"sprImmovable", 2, Row::half_valuation,
                            "50% of Valuation of Property 0 = none on Property Constructed on \"Free hold "
                            "land = (NMR X 12.5)\""}});
    assets().firm.txtTotalInterestInFirm.set_text("");
    assets().firm.sprAssetInterest.set_value(FirmColumn::value, 1, 500); // as a load does
    expect_told(assets(), {{"txtTotalInterestInFirm", 0, 0,
                            "Total Net Amount is empty and waits for the next change of an amount; Net "
                            "Amount 500 (row 1) gives 500"}});
}

TEST_F(SchedulesWhyTest, TellsPanelsMovablesAndJewellery) {
    own_properties("1");
    type(Row::premises, "Mumbai");
    properties().press(2, Row::annual_rent);
    widgets::Grid& rent = assets().immovable.annual_rent.sprAnnualRent;
    rent.type(2, 1, "600000");
    rent.check(1, 3, true);
    rent.type(2, 4, "100000");
    properties().set_active(2, Row::premium_rate);
    properties().press(2, Row::premium_rate);
    widgets::Grid& area = assets().immovable.unbuilt_area.sprUnbuiltArea;
    area.type(2, 2, "250");
    area.type(2, 1, "1000");
    assets().movable.sprMovableProp.type(MovableColumn::amount, 1, "900000");
    assets().movable.sprMovableProp.type(MovableColumn::debt, 1, "100000");
    widgets::Grid& jewels = assets().jewellery.sprJewellary;
    jewels.type(2, JewelleryRow::value, "50000");
    expect_told(
        assets(),
        {{"sprAnnualRent", 2, 3,
          "Repairs borne by the tenant 66,667 = one ninth of Annual Rent Recierved or Recievable 6,00,000, "
          "Repairs borne by the tenant ticked (rule 5 of Schedule III)"},
         {"txtTotalAnnualRent", 0, 0,
          "total of the annual rent 6,69,167 = Annual Rent Recierved or Recievable 6,00,000 plus Repairs "
          "borne by the tenant 66,667 plus Amount @ 15% p.a. of deposit 2,500"},
         {"sprUnbuiltArea", 2, 4,
          "Specified Area of Property In Mumbai 600 = 0.6 times Aggregate Area of plot 1,000 (the share for "
          "the city named as premises, rule 6 of Schedule III)"},
         {"sprUnbuiltArea", 2, 6,
          "Percentage of Excess of Unbuilt Area with Aggregrate Area 15 = Excess of Unbuilt Area over "
          "Specified Area 150 in per cent of Aggregate Area of plot 1,000"},
         {"sprUnbuiltArea", 2, 8,
          "Premium to be added @ 30% = the premium for Percentage of Excess of Unbuilt Area with Aggregrate "
          "Area 15 (rule 6 of Schedule III, which has none above 20)"},
         {"sprMovableProp", 4, 1, "Net Amount 8,00,000 = Amount 9,00,000 less Debts Owed 1,00,000"},
         {"sprMovableProp", 2, 4, "Amount 9,00,000 = Amount 9,00,000 (row 1)"},
         {"txtNetMovableProperty", 0, 0, "Movable Property 8,00,000 = Net Amount 8,00,000"},
         {"sprJewellary", 2, JewelleryRow::net,
          "Net amount 50,000 = Total value of jewellery 50,000 less Debt owed 0"},
         {"txtAggNetAmt", 0, 0, "Net amount of all jewellery 50,000 = Net amount 50,000 (Jewellary 1)"}});
}

} // namespace levora::schedules
