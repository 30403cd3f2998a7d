#include "schedules/assets_fixture.h"
#include "schedules/property_grid.h"

using namespace levora;
using namespace levora::schedules;
using Row = PropertyRow;

namespace {

class ImmovableValuationTest : public AssetsTest {
protected:
    ImmovableValuationTest() { own_properties("1"); }

    void type(int row, const char* text) {
        EXPECT_TRUE(properties().type(2, row, text)) << "row " << row << ": " << text;
    }
    void choose_tenure(int index) { EXPECT_TRUE(properties().choose(2, Row::constructed_on, index)); }
    // Rows 13, 15 and 16; 18 and 20; 22 and 23; 25 to 27; 29.
    std::string valuation() {
        const widgets::Grid& grid = properties();
        return cells(grid, 2, {13, 15, 16}) + " / " + cells(grid, 2, {18, 20}) + " / " +
               cells(grid, 2, {22, 23}) + " / " + cells(grid, 2, {25, 26, 27}) + " / " + cells(grid, 2, {29});
    }
    std::string total() { return assets().immovable.txtImmovableNetAmount.text(); }
};

constexpr int freehold = 0;
constexpr int fifty_years_or_more = 1;
constexpr int less_than_fifty_years = 2;

TEST_F(ImmovableValuationTest, ValuesByRentCostPremiumAndDeduction) {
    struct Case {
        const char* why;
        int tenure;
        const char *cost, *unearned, *value, *taxes, *debt;
        const char* valued;
    };
    constexpr Case cases[] = {
        {"neither rent nor value: the cost stands", fifty_years_or_more, "700000", "", "", "", "",
         "0 0 0 / 0 700000 / 0 700000 / 350000 0 700000 / 700000"},
        {"long lease: ten times the net rent", fifty_years_or_more, "", "", "600000", "", "",
         "600000 90000 510000 / 5100000 5100000 / 0 5100000 / 2550000 0 5100000 / 5100000"},
        {"short lease: eight times; the lower unearned increase; debt", less_than_fifty_years, "500000",
         "200000", "100000", "10000", "50000",
         "100000 15000 75000 / 600000 600000 / 0 600000 / 300000 200000 400000 / 350000"},
        {"freehold: twelve and a half times; the cost is higher; half shows as 0", freehold, "2000000", "",
         "100000", "10000", "", "100000 15000 75000 / 937500 2000000 / 0 2000000 / 0 0 2000000 / 2000000"},
        {"taxes above the rent: shown as 0, capitalised below it", fifty_years_or_more, "", "", "10000",
         "50000", "", "10000 1500 0 / -415000 0 / 0 0 / 0 0 0 / 0"},
        {"a cost below 0 is still the higher one; no valuation below 0", fifty_years_or_more, "-300000", "",
         "10000", "50000", "", "10000 1500 0 / -415000 -300000 / 0 0 / 0 0 0 / 0"},
        {"repairs of 49.95 are held as 50 and taken off as such", fifty_years_or_more, "", "", "333", "", "",
         "333 50 283 / 2830 2830 / 0 2830 / 1415 0 2830 / 2830"},
        {"112.5 is held as 113 and valued as such", freehold, "", "", "11", "", "",
         "11 2 9 / 113 113 / 0 113 / 0 0 113 / 113"},
        {"half of 101 is shown as 51 but compared and taken off as 50.5", fifty_years_or_more, "101", "51",
         "", "", "", "0 0 0 / 0 101 / 0 101 / 51 51 51 / 51"},
        {"an increase of exactly half", fifty_years_or_more, "1000", "500", "", "", "",
         "0 0 0 / 0 1000 / 0 1000 / 500 500 500 / 500"},
        {"an increase above half", fifty_years_or_more, "1000", "501", "", "", "",
         "0 0 0 / 0 1000 / 0 1000 / 500 500 500 / 500"},
        {"debt above the net valuation", fifty_years_or_more, "1000", "", "", "", "1500",
         "0 0 0 / 0 1000 / 0 1000 / 500 0 1000 / 0"},
        {"a comma ends a debt", fifty_years_or_more, "1000", "", "", "", "1,500",
         "0 0 0 / 0 1000 / 0 1000 / 500 0 1000 / 999"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        type(Row::cost, each.cost);
        type(Row::annual_value, each.value);
        type(Row::taxes, each.taxes);
        choose_tenure(fifty_years_or_more);
        type(Row::unearned_increase, each.unearned);
        choose_tenure(each.tenure);
        type(Row::debt_owed, each.debt);
        EXPECT_EQ(valuation(), each.valued);
        EXPECT_EQ(total(), cells(properties(), 2, {Row::net_value}));
    }
}

TEST_F(ImmovableValuationTest, WithoutATenureTheCapitalisedValueStaysAndCountsAsNothing) {
    type(Row::annual_value, "600000");
    type(Row::constructed_on, "");
    EXPECT_EQ(valuation(), "600000 90000 510000 / 5100000 0 / 0 0 / 0 0 0 / 0");
    EXPECT_FALSE(properties().cell_locked(2, Row::unearned_increase));
}

TEST_F(ImmovableValuationTest, OnlySomeRowsRecomputeTheirColumnTheOthersTheTotalAlone) {
    std::string recomputing;
    for (int row = 1; row <= property_rows; ++row) {
        const widgets::CellKind kind = properties().cell_kind(2, row);
        if (properties().cell_locked(2, row) || kind == widgets::CellKind::button) continue;
        type(Row::cost, "");
        type(Row::road, "");
        type(Row::cost, "9000000"); // waits
        EXPECT_NE(cells(properties(), 2, {Row::higher_value}), "9000000");
        if (kind == widgets::CellKind::combo)
            properties().choose(2, row, row == Row::constructed_on ? 1 : 0);
        else if (row != Row::cost)
            type(row, row == Row::valuer_date ? "01/04/2014" : "100");
        if (properties().value(2, Row::higher_value) == 9000000) recomputing += std::to_string(row) + " ";
    }
    EXPECT_EQ(recomputing, "4 5 6 7 8 9 10 12 14 17 28 ");
}

TEST_F(ImmovableValuationTest, TurningFreeholdLocksTheIncreaseLastSoTheDeductionFollowsARunLater) {
    type(Row::cost, "1000");
    type(Row::unearned_increase, "400");
    type(Row::area, "x");
    EXPECT_EQ(cells(properties(), 2, {24, 25, 26, 27, 29}), "400 500 400 600 600");
    choose_tenure(freehold);
    EXPECT_EQ(cells(properties(), 2, {24, 25, 26, 27, 29}), "0 0 400 600 600");
    EXPECT_TRUE(properties().cell_locked(2, Row::unearned_increase));
    EXPECT_EQ(properties().cell_backcolor(2, Row::unearned_increase), 0xE0E0E0U);
    EXPECT_FALSE(properties().type(2, Row::unearned_increase, "1"));
    type(Row::area, "y");
    EXPECT_EQ(cells(properties(), 2, {24, 25, 26, 27, 29}), "0 0 0 1000 1000");
    choose_tenure(less_than_fifty_years);
    EXPECT_FALSE(properties().cell_locked(2, Row::unearned_increase));
    EXPECT_EQ(properties().cell_backcolor(2, Row::unearned_increase), 0xFFFFFFU);
}

// The figures of the worked examples follow the wording of Part B of Schedule III step by step.
TEST_F(ImmovableValuationTest, WorkedExamplesOfScheduleIII) {
    // A house on freehold land let at 1,20,000 a year, municipal value 96,000; the tenant bears the
    // repairs (a ninth, 13,333) and has left a deposit of 2,00,000 for the whole year (15 %, 30,000):
    // rent 1,63,333. Taxes 18,000, repairs 15 % 24,500: net 1,20,833, capitalised 15,10,412.5.
    // Bought for 12,00,000; a loan of 5,10,413 is owed: 10,00,000 remain.
    type(Row::annual_value, "96000");
    type(Row::taxes, "18000");
    type(Row::cost, "1200000");
    EXPECT_TRUE(properties().press(2, Row::annual_rent));
    AnnualRentPanel& rent = assets().immovable.annual_rent;
    rent.sprAnnualRent.type(2, 1, "120000");
    rent.sprAnnualRent.check(1, 3, true);
    rent.sprAnnualRent.type(2, 4, "200000");
    rent.sprAnnualRent.choose(2, 5, "12");
    EXPECT_TRUE(rent.cmdOKAnnualRent.click());
    choose_tenure(freehold);
    type(Row::debt_owed, "510413");
    EXPECT_EQ(valuation(), "163333 24500 120833 / 1510413 1510413 / 0 1510413 / 0 0 1510413 / 1000000");
    // The same on land leased for 60 more years: 12,08,330; of the unearned increase 2,40,000 is due to
    // the authority, less than half of the valuation.
    choose_tenure(fifty_years_or_more);
    type(Row::unearned_increase, "240000");
    type(Row::road, "M.G. Road");
    EXPECT_EQ(valuation(),
              "163333 24500 120833 / 1208330 1208330 / 0 1208330 / 604165 240000 968330 / 457917");
    type(Row::annual_value, "200000");
    EXPECT_EQ(cells(properties(), 2, {Row::gross_rent}), "200000") << "higher than the rent by now";
}

} // namespace
