#include "schedules/assets_fixture.h"

using namespace levora;
using namespace levora::schedules;

namespace {

class JewelleryTest : public AssetsTest {
protected:
    JewellerySchedule& jewellery() { return assets().jewellery; }
    widgets::Grid& grid() { return jewellery().sprJewellary; }
    widgets::Grid& stones() { return jewellery().stones.sprPreciousStone; }
    void own_items(std::string_view count) { EXPECT_TRUE(jewellery().cboNumberOfJewellery.type(count)); }
    void item(int number, std::string_view description, std::string_view value, std::string_view debt) {
        EXPECT_TRUE(grid().type(number + 1, JewelleryRow::description, description));
        EXPECT_TRUE(grid().type(number + 1, JewelleryRow::value, value));
        EXPECT_TRUE(grid().type(number + 1, JewelleryRow::debt, debt));
    }
    void open_stones(int number) { EXPECT_TRUE(grid().press(number + 1, JewelleryRow::stones)); }
    void stone(int row, std::string_view description, std::string_view weight, std::string_view value) {
        EXPECT_TRUE(stones().type(1, row, description));
        EXPECT_TRUE(stones().type(2, row, weight));
        EXPECT_TRUE(stones().type(3, row, value));
    }
    std::string descriptions() {
        std::string all;
        for (int column = 2; column <= grid().columns(); ++column)
            all += (column > 2 ? "|" : "") + grid().text(column, JewelleryRow::description);
        return all;
    }
    std::string stored_stones() {
        return stored("Select JwelleryDetailNo, Description, Weight, ValueOfStones From PreciousStones "
                      "Order By StoneSrNo");
    }
};

TEST_F(JewelleryTest, ItemsComeBackAsStoredTheOnesWithoutADescriptionDropped) {
    own_items("4");
    item(1, "Ring", "1000.555", "0.25");
    item(2, "", "700", "0");
    item(3, "Chain", "100", "300"); // a debt above the value reduces the aggregate
    EXPECT_EQ(jewellery().txtAggNetAmt.text(), "1500.31");
    for (const int row : {JewelleryRow::gross_weight, JewelleryRow::net_weight})
        EXPECT_TRUE(grid().type(2, row, "12.5"));
    EXPECT_TRUE(grid().choose(2, JewelleryRow::unit, "Carat"));
    EXPECT_TRUE(grid().type(2, JewelleryRow::valuer_name, "Valuer"));
    EXPECT_TRUE(grid().type(2, JewelleryRow::valuer_number, "R 1"));
    EXPECT_FALSE(grid().type(2, JewelleryRow::valuer_date, "31/12/1989"));
    EXPECT_TRUE(grid().type(2, JewelleryRow::valuer_date, "1/4/2014"));
    save_and_reopen();
    EXPECT_EQ(stored("Select * From jewellery Order By JwelleryNo"),
              "17|2014-2015|1|Ring|Carat|12.5|12.5|0||1000.56|0.25|1000.31|Valuer|R 1|01/04/2014\n"
              "17|2014-2015|3|Chain|Milligrams|0|0|0||100|300|-200|||\n");
    EXPECT_EQ(jewellery().cboNumberOfJewellery.text(), "2");
    EXPECT_EQ(headers(grid()), "Jewellary 1 Jewellary 2 (Jewellary 3)");
    EXPECT_EQ(descriptions(), "Ring|Chain|");
    EXPECT_EQ(cells(grid(), 2, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}),
              "Carat 12.5 12.5 Details - 1000.56 0.25 1000.31 Valuer R 1 01/04/2014");
    EXPECT_EQ(assets().txtNetJewellery.text(), "800.31");
}

TEST_F(JewelleryTest, TheActiveCellDecidesAboutTheNetAmountNotTheChangedOne) {
    own_items("1");
    item(1, "Ring", "1000", "100");
    grid().set_text(2, JewelleryRow::value, "5000");
    grid().set_active(2, JewelleryRow::unit);
    jewellery().sprJewellary_Change(2, JewelleryRow::value);
    EXPECT_EQ(jewellery().txtAggNetAmt.text(), "900");
    grid().set_active(2, JewelleryRow::debt);
    jewellery().sprJewellary_Change(1, 1);
    EXPECT_EQ(jewellery().txtAggNetAmt.text(), "4900");
}

TEST_F(JewelleryTest, ALoadClearsOnlyAsManyColumnsAsThereAreProperties) {
    own_items("5");
    for (int number = 1; number <= 5; ++number)
        item(number, std::string(1, static_cast<char>('A' + number - 1)), "10", "0");
    EXPECT_EQ(properties().columns(), 4);
    assets().LoadAssetComputation(); // nothing is stored: columns 2 and 3 are cleared
    EXPECT_EQ(descriptions(), "||C|D|E");
    EXPECT_EQ(jewellery().txtAggNetAmt.text(), "30");
}

TEST_F(JewelleryTest, ARecordWithoutAStonesEntryOrWithOneOfItsOwn) {
    store("Insert Into jewellery (AssesseeNo, FY, JwelleryNo, ItemDesc, DescAndWeiOfPreAndSemiPreStones) "
          "Values (17, '2014-2015', 4, 'A', 0), (17, '2014-2015', 9, 'B', 'two rubies')");
    EXPECT_EQ(cells(grid(), 2, {1, 2, 5, 7}), "A - Details -");
    EXPECT_EQ(cells(grid(), 3, {1, 5}), "B two rubies");
    save_and_reopen();
    EXPECT_EQ(stored("Select JwelleryNo, DescAndWeiOfPreAndSemiPreStones From jewellery Order By JwelleryNo"),
              "1|0\n2|two rubies\n");
}

TEST_F(JewelleryTest, StonesAreStoredUnderTheirItemAndTheirTotalIsForInformationOnly) {
    own_items("2");
    item(2, "Ring", "1000", "0");
    open_stones(2);
    EXPECT_TRUE(jewellery().stones.frPreciousStone.visible());
    EXPECT_EQ(jewellery().stones.lblJR.caption(), "2");
    stone(1, "Ruby", "2.5 ct", "300");
    stone(2, "", "1", "50"); // no description: counted, not stored
    stones().set_active(3, 10);
    stones().press_key("Enter"); // past the last cell
    EXPECT_EQ(stones().active_column() * 100 + stones().active_row(), 111);
    stone(11, "Opal", "", "-20");
    EXPECT_EQ(jewellery().stones.txtTotal.text(), "330");
    EXPECT_TRUE(jewellery().stones.btnOK.click());
    EXPECT_FALSE(jewellery().stones.frPreciousStone.visible());
    EXPECT_EQ(cells(grid(), 3, {5, 6, 7, 9}), "Details 330 1000 1000");
    EXPECT_EQ(stored_stones(), "2|Ruby|2.5|300\n2|Opal|0|-20\n");
    open_stones(1);
    EXPECT_EQ(jewellery().stones.txtTotal.text(), "0");
    open_stones(2);
    EXPECT_EQ(table(stones(), {1, 1, 3, 3}), "Ruby|2.5|300\nOpal|0|-20\n||\n");
    EXPECT_EQ(jewellery().stones.txtTotal.text(), "280");
}

TEST_F(JewelleryTest, AnEmptiedGridDeletesNoStonesAndATotalOfZeroKeepsTheValue) {
    own_items("1");
    open_stones(1);
    stone(1, "Ruby", "1", "300");
    jewellery().stones.btnOK.click();
    grid().set_text(2, JewelleryRow::stones, "something");
    open_stones(1);
    for (const int column : {1, 2, 3})
        EXPECT_TRUE(stones().type(column, 1, ""));
    jewellery().stones.btnOK.click();
    EXPECT_EQ(cells(grid(), 2, {5, 6}), "Details 300");
    EXPECT_EQ(stored_stones(), "1|Ruby|1|300\n");
    open_stones(1);
    EXPECT_EQ(stones().text(1, 1), "Ruby");
}

} // namespace
