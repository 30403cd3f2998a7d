#include "schedules/assets_fixture.h"
#include "schedules/property_grid.h"

using namespace levora;
using namespace levora::schedules;

namespace {

class UnbuiltAreaTest : public AssetsTest {
protected:
    UnbuiltAreaTest() { own_properties("1"); }

    UnbuiltAreaPanel& panel() { return assets().immovable.unbuilt_area; }
    widgets::Grid& grid() { return panel().sprUnbuiltArea; }
    void open(const char* premises) {
        properties().type(2, PropertyRow::premises, premises);
        EXPECT_TRUE(properties().press(2, PropertyRow::premium_rate));
    }
    std::string areas() { return cells(grid(), 2, {1, 2, 3, 4, 5, 6, 7, 8}); }
};

TEST_F(UnbuiltAreaTest, PremiumFollowsTheCityTypedAsThePremisesNotTheTownRow) {
    struct Case {
        const char* why;
        const char *premises, *plot, *built;
        const char* areas;
    };
    constexpr Case cases[] = {
        {"no city: 0.7", "", "1000", "200", "1000 200 800 700 100 10 10 20%"},
        {"a city of the first group: 0.6", "Mumbai", "1000", "200", "1000 200 800 600 200 20 20 40%"},
        {"a city of the second group: 0.65", "Pune", "1000", "200", "1000 200 800 650 150 15 15 30%"},
        {"compared exactly", "mumbai", "1000", "200", "1000 200 800 700 100 10 10 20%"},
        {"Raipur is in neither group", "Raipur", "1000", "249", "1000 249 751 700 51 5.1 5.1 20%"},
        {"exactly 5: no premium", "Other", "1000", "250", "1000 250 750 700 50 5 5 0%"},
        {"no excess", "Delhi", "1000", "900", "1000 900 100 600 0 0 0 0%"},
        {"above 10", "", "1000", "199", "1000 199 801 700 101 10.1 10.1 30%"},
        {"above 15", "", "1000", "149", "1000 149 851 700 151 15.1 15.1 40%"},
        {"no plot", "", "", "10", "- 10 -10 0 0 0 0 0%"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        open(each.premises);
        grid().type(2, 2, each.built);
        grid().type(2, 1, each.plot);
        EXPECT_EQ(areas(), each.areas);
    }
    EXPECT_EQ(properties().text(2, PropertyRow::city), "Delhi");
}

TEST_F(UnbuiltAreaTest, AboveTheLastStepThePremiumShownBeforeStays) {
    open("");
    grid().type(2, 1, "1000");
    grid().type(2, 2, "200");
    EXPECT_EQ(grid().text(2, 8), "20%");
    grid().type(2, 2, "50"); // 25 per cent
    EXPECT_EQ(areas(), "1000 50 950 700 250 25 25 20%");
    grid().type(2, 7, "3"); // overwritten: the premium follows row 6
    EXPECT_EQ(grid().text(2, 7), "25");
    EXPECT_TRUE(panel().cmdUnbuiltAreaOk.click());
    open(""); // a cleared grid has none to keep
    EXPECT_EQ(areas(), "1000 50 950 700 250 25 25 -");
    EXPECT_TRUE(panel().cmdUnbuiltAreaOk.click());
    EXPECT_EQ(properties().text(2, PropertyRow::premium_rate), "0");
}

TEST_F(UnbuiltAreaTest, SpecifiedAreaFollowsTheAggregateAreaAlone) {
    open("Other");
    EXPECT_EQ(grid().text(1, 4), "Specified Area of Property In Other(City)");
    grid().type(2, 1, "1000");
    properties().type(2, PropertyRow::premises, "Mumbai");
    grid().type(2, 2, "200");
    EXPECT_EQ(grid().text(2, 4), "700");
    grid().set_active(2, 4);
    grid().press_key("Delete");
    EXPECT_EQ(grid().text(2, 4), "700") << "locked";
    grid().type(2, 1, "1000");
    EXPECT_EQ(grid().text(2, 4), "600");
    grid().set_active(2, 1);
    grid().press_key("Tab");
    EXPECT_EQ(grid().active_row(), 2);
    grid().set_active(2, 1);
    grid().press_key("Delete");
    EXPECT_EQ(areas(), "- 200 -200 600 0 0 20 40%") << "formulas follow, the specified area waits";
}

TEST_F(UnbuiltAreaTest, SheetOfTheUnearnedIncreaseFollowsItsFormulas) {
    widgets::Grid& sheet = assets().immovable.unearned_increase.sprUnearnedIncrease;
    EXPECT_FALSE(assets().immovable.unearned_increase.frUnearnedIncrease.visible());
    EXPECT_EQ(cells(sheet, 2, {4, 7, 8}), "- - 0") << "no rate yet";
    sheet.type(2, 1, "99");
    sheet.type(2, 2, "12");
    sheet.type(2, 3, "1000");
    sheet.type(2, 5, "39");
    sheet.type(2, 6, "50000");
    EXPECT_EQ(cells(sheet, 2, {4, 7, 8, 9}), "8250 250000 241750 -");
}

} // namespace
