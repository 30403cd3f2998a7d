#include "schedules/assets_fixture.h"
#include "schedules/property_grid.h"

using namespace levora;
using namespace levora::schedules;

namespace {

class AnnualRentTest : public AssetsTest {
protected:
    AnnualRentTest() { own_properties("2"); }

    AnnualRentPanel& rent() { return assets().immovable.annual_rent; }
    widgets::Grid& grid() { return rent().sprAnnualRent; }
    std::string total() { return rent().txtTotalAnnualRent.text(); }
    void open(int column) { EXPECT_TRUE(properties().press(column, PropertyRow::annual_rent)); }
    std::string amounts() {
        return grid().text(1, 3) + ": " + cells(grid(), 2, {1, 2, 3, 4, 5, 6, 7, 8}) + " = " + total();
    }
};

TEST_F(AnnualRentTest, RepairsAreANinthOfTheRent) {
    struct Case {
        const char *why, *rent, *repairs;
    };
    constexpr Case cases[] = {
        {"100 / 9 = 11.1", "100", "11"},    {"13 / 9 = 1.44", "13", "1"}, {"14 / 9 = 1.56", "14", "2"},
        {"a negative rent", "-100", "-11"}, {"no rent", "", "0"},
    };
    open(2);
    EXPECT_TRUE(grid().check(1, 3, true));
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        grid().type(2, 1, each.rent);
        EXPECT_EQ(grid().text(2, 3), each.repairs);
    }
    grid().type(2, 1, "99.5");
    EXPECT_EQ(total(), "111") << "held in whole rupees";
    grid().type(2, 3, "50"); // overtyped, and computed again at once
    EXPECT_EQ(grid().text(2, 3), "11");
    grid().check(1, 3, false);
    EXPECT_EQ(amounts(), "0: 100 - 0 - 2 0 - - = 100");
}

TEST_F(AnnualRentTest, DepositAddsFifteenPerCentForItsMonthsHalvesToTheEvenNeighbour) {
    struct Case {
        const char* why;
        const char *deposit, *months, *interest;
    };
    constexpr Case cases[] = {
        {"120000 for 2 months", "120000", "2", "3000"}, {"a whole year", "120000", "12", "18000"},
        {"40 for 1 month: 0.5 to 0", "40", "1", "0"},   {"40 for 3 months: 1.5 to 2", "40", "3", "2"},
        {"200 for 1 month: 2.5 to 2", "200", "1", "2"},
    };
    open(2);
    grid().type(2, 1, "1000");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        grid().type(2, 4, each.deposit);
        EXPECT_TRUE(grid().choose(2, 5, each.months));
        EXPECT_EQ(grid().text(2, 6), each.interest);
        EXPECT_EQ(total(), number_text(1000 + val(each.interest))); // neither deposit nor months
    }
    grid().type(2, 5, "");
    EXPECT_EQ(grid().text(2, 6), "0") << "no months selected";
}

TEST_F(AnnualRentTest, APropertyWithoutARowTakesTheFiguresShownLast) {
    open(2);
    grid().type(2, 1, "900");
    grid().check(1, 3, true);
    EXPECT_TRUE(rent().cmdCancelAnnualRent.click());
    EXPECT_EQ(stored("Select * From [Annual Rent]"), "");
    EXPECT_EQ(properties().text(2, PropertyRow::annual_rent), "Details");
    open(3);
    EXPECT_EQ(amounts(), "1: 900 - 100 - 2 0 - - = 1000");
}

TEST_F(AnnualRentTest, LoadTakesNullsAsNothingAndRestoresTheComputedAmounts) {
    store("Insert Into [Annual Rent] (AssesseeNo, FY, AssetType, PropertyNo, RecievableRent, RepairByTenant, "
          "DepositAccepted, AmtDepositedformonths) Values (17, '2014-2015', 0, 1, 900, 1, 12000, 4), "
          "(17, '2014-2015', 0, 2, Null, 2, 12000, Null)");
    open(2);
    EXPECT_EQ(amounts(), "1: 900 0 100 12000 4 600 0 0 = 1600");
    open(3);
    EXPECT_EQ(amounts(), "0: 0 0 0 12000 - 0 0 0 = 0");
}

TEST_F(AnnualRentTest, AnInsertedRowShiftsWhatTheTotalLeavesOut) {
    open(2);
    for (const int row : {1, 2, 7})
        grid().type(2, row, "100");
    grid().type(2, 4, "1200"); // 2 months: 30
    EXPECT_EQ(total(), "330");
    grid().set_active(2, 1);
    grid().press_key("Ctrl+Insert");
    EXPECT_EQ(grid().rows(), 9);
    grid().type(2, 9, "1");
    // Rows 2, 3, 6 to 9; the deposit stands in row 5 and the repairs in row 4.
    EXPECT_EQ(total(), "333") << "100 + 100 + 2 months + 30 + 100 + 1";
    grid().set_active(2, 8);
    grid().press_key("Delete"); // the total waits
    EXPECT_EQ(grid().text(2, 8), "");
    EXPECT_TRUE(grid().changed());
    EXPECT_EQ(total(), "333");
}

} // namespace
