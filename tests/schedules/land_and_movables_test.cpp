#include "schedules/assets_fixture.h"

using namespace levora;
using namespace levora::schedules;
using widgets::Answer;

namespace {

class LandTest : public AssetsTest {
protected:
    UrbanLandSchedule& land() { return assets().urban_land; }
    widgets::Grid& grid() { return land().sprUrbanLand; }
    void plot(int row, std::string_view description, std::string_view valuation, std::string_view debt) {
        EXPECT_TRUE(grid().type(LandColumn::description, row, description));
        EXPECT_TRUE(grid().type(LandColumn::valuation, row, valuation));
        EXPECT_TRUE(grid().type(LandColumn::debt, row, debt));
    }
    std::string totals() {
        return land().txtNetValuation.text() + " " + land().txtNetDebtsOwed.text() + " " +
               land().txtNetAmount.text() + ", " + assets().txtNetUrbanLand.text();
    }
    std::string plots(int last) {
        std::string all;
        for (int row = 1; row <= last; ++row)
            all += grid().text(LandColumn::description, row) + "|" + grid().text(LandColumn::net, row) + "\n";
        return all;
    }
};

TEST_F(LandTest, OnlyPlotsWithANetAmountAreStoredAndComeBackPacked) {
    plot(1, "even", "500", "500");
    plot(2, "below", "100", "400");
    plot(4, "kept", "12,34,567", "67");
    EXPECT_EQ(totals(), "1235167 967 1234200, 1234200");
    EXPECT_TRUE(grid().choose(LandColumn::city, 4, "Pune"));
    EXPECT_TRUE(grid().choose(LandColumn::state, 4, "Maharashtra"));
    EXPECT_TRUE(grid().choose(LandColumn::country, 4, "india"));
    for (const int column : {LandColumn::flat, LandColumn::premises, LandColumn::road, LandColumn::area,
                             LandColumn::survey, LandColumn::valuer_name, LandColumn::valuer_number})
        EXPECT_TRUE(grid().type(column, 4, "text " + number_text(column)));
    EXPECT_TRUE(grid().type(LandColumn::pincode, 4, "411004"));
    EXPECT_TRUE(grid().type(LandColumn::valuer_date, 4, "5-3-1900"));
    save_and_reopen();
    const std::string row = "kept|text 2|text 3|text 4|text 5|Pune|Maharashtra|INDIA|411004|text 10|"
                            "1234567|67|1234500|text 14|text 15|05/03/1900\n";
    EXPECT_EQ(table(grid(), {1, 1, 16, 1}), row);
    EXPECT_EQ(
        stored("Select UrbanLandDescription, Flat, Premises, Road, Area, City, State, Country, pincode, "
               "survey, ValueOfUrbanLand, DebtOwed, NetAmount, NameRegValuer, RegNoValuer, "
               "DateofReportByValuer From [Urban Land] Where AssetType = 0"),
        row);
    EXPECT_EQ(grid().data_rows(), 1);
    // The summary takes its stored figure, in which the dropped plot still counts.
    EXPECT_EQ(totals(), "1234567 67 1234500, 1234200");
}

TEST_F(LandTest, NullsAreEmptyTextsAndZeroAmountsAndRowsGrowInTheOrderStored) {
    for (int number = 1; number <= 14; ++number)
        store("Insert Into [Urban Land] (AssesseeNo, FY, AssetType, UrbanLandDescription, NetAmount) Values "
              "(17, '2014-2015', 0, 'plot " +
              std::to_string(15 - number) + "', 5)");
    EXPECT_EQ(grid().rows(), 14);
    EXPECT_EQ(table(grid(), {1, 1, 16, 1}), "plot 14||||||||||0|0|0|||\n");
    EXPECT_EQ(grid().text(LandColumn::description, 14), "plot 1");
}

TEST_F(LandTest, KeysClearCellsAndRowsWhileTheTotalsWait) {
    plot(1, "A", "1000", "300");
    plot(2, "B", "50", "0");
    grid().set_active(LandColumn::debt, 1);
    grid().press_key("Delete");
    EXPECT_EQ(plots(2), "A|1000\nB|50\n");
    EXPECT_EQ(totals(), "1050 300 750, 750");
    answer(Answer::no);
    grid().set_active(LandColumn::description, 1);
    grid().press_key("Escape"); // the key empties the cell, its character asks for the row
    EXPECT_EQ(asked(), "Do you want to delete the Selected row(s) ??\n");
    EXPECT_EQ(plots(2), "|1000\nB|50\n");
    grid().type_character(U'\x1b'); // dismissed
    EXPECT_EQ(plots(2), "|1000\nB|50\n");
    answer(Answer::yes);
    grid().type_character(U'\x1b');
    EXPECT_EQ(plots(2), "|0\nB|50\n");
    EXPECT_EQ(totals(), "1050 300 750, 750");
    EXPECT_EQ(grid().rows(), 12);
    grid().press_key("Ctrl+Insert");
    EXPECT_EQ(plots(3), "|0\n|0\nB|50\n");
    EXPECT_EQ(grid().rows(), 13);
    grid().type(LandColumn::debt, 3, "20"); // the next change
    EXPECT_EQ(totals(), "50 20 30, 30");
}

class MovablesTest : public AssetsTest {
protected:
    widgets::Grid& grid() { return assets().movable.sprMovableProp; }
    std::string amounts() { return table(grid(), {2, 1, 4, grid().rows()}); }
};

TEST_F(MovablesTest, SumsFollowChangesAndTheSummaryTakesTheMainModeOnly) {
    EXPECT_TRUE(grid().type(2, 1, "900"));
    EXPECT_TRUE(grid().type(3, 1, "1000"));
    EXPECT_TRUE(grid().type(2, 3, "250"));
    EXPECT_EQ(amounts(), "900|1000|-100\n||\n250||250\n1150|1000|150\n");
    EXPECT_EQ(assets().txtNetMovableProperty.text(), "150");
    EXPECT_FALSE(grid().type(2, 4, "1"));
    grid().set_active(3, 1);
    grid().press_key("Delete"); // the sums are live, the item's net amount waits
    EXPECT_EQ(amounts(), "900||-100\n||\n250||250\n1150|0|150\n");
}

TEST_F(MovablesTest, AnItemWhoseDebtReachesItsAmountIsDroppedWhileTheStoredTotalRemains) {
    grid().type(2, 1, "100");
    grid().type(3, 1, "400");
    grid().type(2, 2, "60");
    grid().type(3, 2, "60");
    grid().type(2, 3, "500");
    EXPECT_EQ(assets().txtNetMovableProperty.text(), "200");
    save_and_reopen();
    EXPECT_EQ(
        stored("Select SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount From [Movable Property Details]"),
        "3|Cash-in-Hand|500|0|500\n");
    EXPECT_EQ(amounts(), "||\n||\n500|0|500\n500|0|500\n");
    EXPECT_EQ(assets().txtNetMovableProperty.text(), "200");
    grid().type(3, 3, "1");
    EXPECT_EQ(assets().txtNetMovableProperty.text(), "499");
}

TEST_F(MovablesTest, AnInsertedRowMovesTheTotalDownWhileRowFourIsStillWrittenByNumber) {
    grid().type(2, 3, "500");
    grid().set_active(2, 2);
    grid().press_key("Ctrl+Insert");
    grid().type(2, 2, "40");
    EXPECT_EQ(amounts(), "||\n40||40\n||\n40|0|500\n80|0|540\n");
    save_and_reopen();
    EXPECT_EQ(stored("Select SrNo, NetAmount From [Movable Property Details]"), "2|40\n4|500\n");
}

} // namespace
