#include "schedules/assets_fixture.h"
#include "schedules/property_grid.h"

using namespace levora;
using namespace levora::schedules;

namespace {

using AssetsColumnsTest = AssetsTest;

TEST_F(AssetsColumnsTest, CountsTypedShowHideAndAddColumns) {
    struct Case {
        const char *why, *typed;
        const char* headers; // hidden ones in brackets
    };
    constexpr Case cases[] = {
        {"the design's columns that were not counted stay on view", "1", "1 2 3"},
        {"two more are added", "5", "1 2 3 4 5"},
        {"hidden, not deleted", "2", "1 2 (3) (4) (5)"},
        {"shown again", "4", "1 2 3 4 (5)"},
        {"nothing numeric", "none", "(1) (2) (3) (4) (5)"},
        {"halves to the even neighbour", "2.5", "1 2 (3) (4) (5)"},
        {"a second text of the same count", "2", "1 2 (3) (4) (5)"},
        {"below 0 the labels go too", "-1", "(1) (2) (3) (4) (5)"},
        {"and come back", "1", "1 (2) (3) (4) (5)"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        own_properties(each.typed);
        EXPECT_EQ(headers(properties()), each.headers);
        EXPECT_EQ(properties().hidden(1), std::string(each.typed) == "-1");
    }
    EXPECT_TRUE(unanswered.empty());
    own_properties("40000");
    EXPECT_EQ(unanswered, std::vector<std::string>{"frmImmovable - cboNumberOfProperty_Change: Overflow"});
}

TEST_F(AssetsColumnsTest, DeletingTheSecondOfThreeLeavesItsRentUnderTheOldNumber) {
    own_properties("3");
    for (int column = 2; column <= 4; ++column) {
        properties().type(column, PropertyRow::flat, "Flat " + std::to_string(column - 1));
        properties().press(column, PropertyRow::annual_rent);
        assets().immovable.annual_rent.sprAnnualRent.type(2, 1, std::to_string(column) + "000");
        assets().immovable.annual_rent.cmdOKAnnualRent.click();
    }
    EXPECT_EQ(assets().txtTotalNetAmount.text(), "76500"); // 17000, 25500, 34000
    properties().set_active(3, 1);
    EXPECT_EQ(properties().right_click(), &assets().mnuContextMenu);
    EXPECT_TRUE(assets().mnuDeleteColumn.click());
    EXPECT_EQ(assets().immovable.cboNumberOfProperty.text(), "2");
    EXPECT_EQ(headers(properties()), "1 2");
    EXPECT_EQ(cells(properties(), 3, {2, 11}), "Flat 3 4000");
    EXPECT_EQ(assets().txtTotalNetAmount.text(), "51000");
    assets().cmdOK.click();
    EXPECT_EQ(
        stored("Select PropertyNo, Flat, AnnualRent From [Immovable Property Details] Order By PropertyNo"),
        "1|Flat 1|2000\n2|Flat 3|4000\n");
    EXPECT_EQ(stored("Select PropertyNo, RecievableRent From [Annual Rent] Order By PropertyNo"),
              "1|2000\n2|3000\n3|4000\n");
}

TEST_F(AssetsColumnsTest, DeletingUnderACountWithAFractionKeepsTheLastProperty) {
    own_properties("3.6");
    properties().type(5, PropertyRow::flat, "Flat 4");
    properties().set_active(3, 1);
    assets().mnuDeleteColumn.click();
    EXPECT_EQ(headers(properties()), "1 2 3");
    EXPECT_EQ(cells(properties(), 4, {2}), "Flat 4");
}

TEST_F(AssetsColumnsTest, AddColumnNeedsACountAboveTheColumns) {
    properties().enter();
    for (const char* count : {"0", "3"}) {
        own_properties(count);
        properties().enter();
        assets().mnuAddColumn.click();
        EXPECT_EQ(headers(properties()), "1 2 3");
    }
    own_properties("3.4"); // three columns suffice for the count, not for its text
    properties().enter();
    assets().mnuAddColumn.click();
    EXPECT_EQ(headers(properties()), "1 2 3 4");
    EXPECT_EQ(assets().immovable.cboNumberOfProperty.text(), "4");
}

TEST_F(AssetsColumnsTest, JewelleryColumnsAreAddedAndDeletedFromTheMenu) {
    widgets::Grid& items = assets().jewellery.sprJewellary;
    widgets::ListField& count = assets().jewellery.cboNumberOfJewellery;
    EXPECT_TRUE(count.type("2"));
    EXPECT_EQ(headers(items), "Jewellary 1 Jewellary 2");
    items.set_active(3, 1);
    EXPECT_EQ(items.right_click(), &assets().mnuContextMenu);
    assets().mnuAddColumn.click();
    EXPECT_EQ(count.text(), "3");
    EXPECT_EQ(headers(items), "Jewellary 1 Jewellary 2 Jewellary 3");
    EXPECT_EQ(items.active_column(), 4);
    items.type(3, 1, "Ring");
    items.type(4, 1, "Bangle");
    items.set_active(3, 1);
    assets().mnuDeleteColumn.click();
    EXPECT_EQ(count.text(), "2");
    EXPECT_EQ(headers(items), "Jewellary 1 Jewellary 2");
    EXPECT_EQ(items.text(3, 1), "Bangle");
    items.set_active(1, 1);
    assets().mnuDeleteColumn.click();
    EXPECT_EQ(count.text(), "2");
}

TEST_F(AssetsColumnsTest, KeysOfThePropertyGrid) {
    own_properties("3");
    widgets::Grid& grid = properties();
    grid.set_active(2, 2); // the number of properties less 1
    grid.press_key("Tab");
    EXPECT_EQ(std::pair(grid.active_column(), grid.active_row()), std::pair(2, 3));
    grid.press_key("Right");
    EXPECT_EQ(std::pair(grid.active_column(), grid.active_row()), std::pair(2, 4));
    grid.set_active(3, 4);
    grid.press_key("Right");
    EXPECT_EQ(std::pair(grid.active_column(), grid.active_row()), std::pair(4, 4));

    grid.type(2, PropertyRow::annual_value, "100000");
    grid.set_changed(false);
    grid.set_active(2, PropertyRow::annual_value);
    grid.press_key("Delete"); // the recomputation waits
    EXPECT_EQ(cells(grid, 2, {12, 13, 29}), "- 100000 850000");
    EXPECT_TRUE(grid.changed());
    grid.set_active(2, PropertyRow::gross_rent);
    grid.press_key("Delete");
    EXPECT_EQ(cells(grid, 2, {13}), "100000") << "locked";
    grid.set_active(2, 1);
    grid.press_key("Ctrl+Insert");
    EXPECT_EQ(grid.rows(), 33);
    EXPECT_EQ(cells(grid, 2, {14, 30}), "100000 850000");
}

} // namespace
