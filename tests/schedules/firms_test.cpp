#include "schedules/assets_fixture.h"

using namespace levora;
using namespace levora::schedules;
using widgets::Answer;

namespace {

class FirmsTest : public AssetsTest {
protected:
    widgets::Grid& grid() { return assets().firm.sprAssetInterest; }
    const std::string& total() { return assets().firm.txtTotalInterestInFirm.text(); }
    void firms(std::string_view names) { // a letter each, "-" for an empty name
        for (int row = 1; const char name : names) {
            if (row > grid().rows()) grid().advance();
            if (name != '-') {
                EXPECT_TRUE(grid().type(FirmColumn::name, row, std::string(1, name)));
            }
            EXPECT_TRUE(grid().type(FirmColumn::value, row, "10"));
            ++row;
        }
    }
    std::string names() {
        std::string all;
        for (int row = 1; row <= grid().data_rows(); ++row)
            all += grid().text(FirmColumn::name, row).empty() ? "-" : grid().text(FirmColumn::name, row);
        return all;
    }
};

TEST_F(FirmsTest, OnlyTheFirstFiveRowsComputeANetAmount) {
    firms("ABCDEF");
    EXPECT_TRUE(grid().type(FirmColumn::debt, 1, "25")); // the bound of 0 is for typing only
    EXPECT_FALSE(grid().type(FirmColumn::debt, 1, "-1"));
    EXPECT_FALSE(grid().type(FirmColumn::net, 6, "10"));
    EXPECT_EQ(table(grid(), {6, 1, 8, 6}), "10|25|-15\n10||10\n10||10\n10||10\n10||10\n10||\n");
    EXPECT_EQ(total() + "/" + assets().txtNetInterestInFirm.text(), "25/25");
    assets().txtNetInterestInFirm.set_text("7");
    EXPECT_TRUE(grid().type(FirmColumn::ratio, 1, "33.25"));
    EXPECT_EQ(grid().text(FirmColumn::ratio, 1), "33.3");
    EXPECT_EQ(assets().txtNetInterestInFirm.text(), "7") << "only amounts run the total";
    EXPECT_TRUE(grid().type(FirmColumn::value, 2, "10")); // it passes 0, so the summary follows
    EXPECT_EQ(assets().txtNetInterestInFirm.text(), "25");
}

TEST_F(FirmsTest, AfterALoadTheTotalIsEmptyAndTheSummaryHasTheStoredFigure) {
    firms("ABCDEF");
    EXPECT_TRUE(grid().type(FirmColumn::address, 6, "Pune"));
    EXPECT_TRUE(grid().type(FirmColumn::pan, 6, "aaafj1234k"));
    EXPECT_TRUE(grid().type(FirmColumn::partners, 7 - 1, "B, C"));
    grid().advance();
    EXPECT_TRUE(grid().type(FirmColumn::name, 7, "name alone"));
    save_and_reopen();
    EXPECT_EQ(grid().rows(), 7);
    EXPECT_EQ(table(grid(), {1, 5, 8, 7}),
              "E||||0|10|0|10\nF|Pune|AAAFJ1234K|B, C|0|10|0|0\nname alone||||0|0|0|0\n");
    EXPECT_EQ(total() + "/" + assets().txtNetInterestInFirm.text(), "/50");
    save_and_reopen();
    EXPECT_EQ(stored("Select Count(*), Sum(NetAmount) From InterestInFirmOrAOP"), "7|50\n");
}

TEST_F(FirmsTest, DeletionTakesABlockOfOneRowAndOneMoreForEachPairOfEqualNames) {
    struct Case {
        const char *why, *before;
        int active;
        const char* after;
    };
    constexpr Case cases[] = {
        {"a name of its own", "ABCD", 2, "ACD"},
        {"its twin stands further down, the block does not", "ABCA", 1, "CA"},
        {"a pair below the active row counts too", "ABCBD", 1, "CBD"},
        {"a pair above does not", "AABCD", 3, "AACD"},
        {"three equal names are three pairs", "AAAXY", 1, "Y"},
        {"empty names are equal", "A--B", 1, "-B"},
        {"more than there are", "AAAA", 1, ""},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        firms(each.before);
        const std::string before = total();
        grid().set_active(1, each.active);
        answer(Answer::yes);
        grid().type_character(U'\x1b');
        EXPECT_EQ(asked(), "Do you want to delete the selected row(s) ??\n");
        EXPECT_EQ(names(), each.after);
        EXPECT_EQ(grid().rows(), 5);
        EXPECT_EQ(total(), before); // waits
        assets().cmdOK.click();
        store("Delete From InterestInFirmOrAOP");
    }
}

TEST_F(FirmsTest, KeysAskForDeletionsAndAddRows) {
    for (const char32_t character : {U'\x1b', U'.', U'-'})
        grid().type_character(character);
    EXPECT_EQ(asked(), "") << "an empty grid";
    firms("AB");
    answer(Answer::no);
    grid().type_character(U'.');
    EXPECT_EQ(asked(), "Do you want to delete the selected row(s) ??\n");
    grid().type_character(U'-');
    EXPECT_EQ(asked() + names(), "AB");
    struct Case {
        const char *why, *key;
        int column, row, rows;
    };
    constexpr Case cases[] = {
        {"not yet", "Tab", 1, 3, 5},
        {"the last row but one", "Right", 1, 4, 6},
        {"past the last cell", "Tab", 8, 6, 7},
    };
    for (const Case& each : cases) {
        grid().set_active(each.column, each.row);
        grid().press_key(each.key);
        EXPECT_EQ(grid().rows(), each.rows) << each.why;
    }
}

} // namespace
