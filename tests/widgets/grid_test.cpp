#include "widgets/test_form.h"

#include "widgets/failure.h"

#include <gtest/gtest.h>

using namespace levora;
using namespace levora::widgets;

namespace {

class GridTest : public testing::Test {
protected:
    GridTest() {
        grid.on_change = [this](int column, int row) { record("change", column, row); };
        grid.on_button_click = [this](int column, int row) { record("button", column, row); };
        grid.on_combo_select = [this](int column, int row) { record("combo", column, row); };
        grid.on_key_down = [this](std::string_view key) {
            form.events.push_back("key " + std::string(key));
            return false;
        };
        grid.on_key_char = [this](char32_t c) {
            form.events.push_back("char " + std::to_string(static_cast<int>(c)));
        };
        grid.on_advance = [this] { form.events.push_back("advance"); };
    }
    void record(const char* what, int column, int row) {
        form.events.push_back(std::string(what) + " " + std::to_string(column) + "," + std::to_string(row));
    }
    // One column's texts, rows 1 to `last`.
    std::string column(int column, int last) {
        std::string all;
        for (int row = 1; row <= last; ++row)
            all += grid.text(column, row) + "|";
        return all;
    }

    TestScreens screens;
    TestForm& form = screens.form();
    Grid& grid = form.grid;
};

TEST_F(GridTest, TypingIsAcceptedOrRefusedByKind) {
    grid.design_column(1, text_cell(5));
    grid.design_column(2, number_cell(0, 1000, 2));
    grid.design_column(3, percent_cell(2));
    grid.design_column(4, mask_cell("UUUUU9999U"));
    grid.design_column(5, date_cell({1990, 1, 1}, {2100, 12, 31}));
    grid.design_column(6, combo_cell({"Goa", "Delhi"}, 1));
    grid.design_column(7, button_cell("Details"));
    grid.design_column(8, check_cell());
    struct Case {
        const char* why;
        int column;
        const char* typed;
        const char* held; // null: refused
    };
    constexpr Case cases[] = {
        {"past the limit is dropped", 1, "abcdefg", "abcde"},
        {"rounded away from zero", 2, "12.345", "12.35"},
        {"grouped figures are read whole", 2, "1,000", "1000"},
        {"above the bound", 2, "1000.01", nullptr},
        {"below the bound", 2, "-1", nullptr},
        {"no number", 2, "12a", nullptr},
        {"a percentage by its figure", 3, "20", "20%"},
        {"or with its sign", 3, "12.5%", "12.5%"},
        {"above 100 %", 3, "101", nullptr},
        {"capitals are made", 4, "abcde1234f", "ABCDE1234F"},
        {"a digit for a letter", 4, "12345", nullptr},
        {"a date is written in full", 5, "1/2/2014", "01/02/2014"},
        {"no day of the calendar", 5, "31/04/2014", nullptr},
        {"before the first", 5, "31/12/1989", nullptr},
        {"a list is chosen from, not typed in", 6, "Goa", nullptr},
        {"a button takes no text", 7, "x", nullptr},
        {"the empty text empties", 2, "", ""},
        {"and leaves a list without selection", 6, "", ""},
    };
    int row = 0;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        const std::string before = grid.text(each.column, ++row % 13 + 1);
        const bool taken = grid.type(each.column, row % 13 + 1, each.typed);
        EXPECT_EQ(taken, each.held != nullptr);
        EXPECT_EQ(grid.text(each.column, row % 13 + 1), each.held ? each.held : before);
    }
    EXPECT_EQ(grid.value(3, 9), 0.125); // the row of "12.5%"
}

TEST_F(GridTest, APersonsActsFireOnceTheProgramsNever) {
    grid.design_column(2, combo_cell({"Goa", "Delhi"}, 1));
    grid.design_column(3, button_cell("Details"));
    grid.set_text(1, 1, "by code");
    grid.set_index(2, 1, 0);
    EXPECT_EQ(form.take_events(), "");
    grid.type(1, 2, "typed");
    grid.choose(2, 2, "GOA");
    grid.press(3, 2);
    EXPECT_EQ(form.take_events(), "change 1,2; change 2,2; combo 2,2; button 3,2");
    grid.set_cell_locked(1, 2, true);
    EXPECT_FALSE(grid.type(1, 2, "again"));
    grid.press_key("Escape");
    EXPECT_EQ(form.take_events(), "key Escape; char 27");
    EXPECT_TRUE(grid.changed());
}

TEST_F(GridTest, DefaultsResultsAndLabelsAreNoData) {
    grid.design_column(1, combo_cell({"Goa", "Delhi"}, 1));
    grid.design_column(2, number_cell(0, 1e9, 0));
    grid.design_column(3, number_cell(-1e9, 1e9, 0));
    grid.set_column_formula(3, {2, 2}, difference_formula);
    grid.set_label(4, 7, "Total");
    EXPECT_EQ(grid.text(1, 1), "Delhi");
    EXPECT_EQ(grid.data_rows(), 0);
    grid.type(2, 3, "5");
    EXPECT_EQ(grid.data_rows(), 3);
    EXPECT_EQ(grid.data_columns(), 2);
    grid.choose(1, 4, 1); // the default, but chosen
    EXPECT_EQ(grid.data_rows(), 4);
    grid.set_text(3, 9, "77"); // a formula's cell keeps its formula
    EXPECT_EQ(grid.text(3, 9), "0");
    grid.clear_data();
    EXPECT_EQ(grid.data_rows(), 0);
    EXPECT_EQ(grid.text(1, 4), "Delhi");
    EXPECT_EQ(grid.text(4, 7), "Total");
}

TEST_F(GridTest, FormulasFollowEveryWriteAndMoveWithTheirRows) {
    for (const int column : {6, 8, 9})
        grid.design_column(column, number_cell(-1e9, 1e11, 0));
    grid.set_column_formula(9, {6, 8}, floored_difference_formula);
    grid.set_cell_formula(6, 13, {{6, 1, 6, 12}}, sum_formula);
    grid.set_cell_formula(8, 13, {{8, 1, 8, 12}}, sum_formula);
    grid.set_text(6, 1, "100");
    grid.set_text(8, 1, "30");
    grid.set_text(6, 2, "50");
    grid.set_text(8, 2, "90");
    EXPECT_EQ(grid.text(9, 1) + "|" + grid.text(9, 2) + "|" + grid.text(9, 13), "70|0|30");
    grid.set_rows(14);
    grid.insert_row(2); // the total row moves down whole, and its sum has grown
    grid.set_text(6, 2, "1000");
    EXPECT_EQ(grid.text(9, 2) + "|" + grid.text(9, 14), "1000|1030");
    grid.delete_rows(1);
    EXPECT_EQ(grid.text(6, 13) + "|" + grid.text(9, 13) + "|" + std::to_string(grid.rows()), "1050|960|14");
}

TEST_F(GridTest, InsertedRowsTakeTheKindsOfTheirPlaceAndTheLastFallsOff) {
    grid.design_column(1, combo_cell({"Goa", "Delhi"}, 0));
    for (int row = 1; row <= 13; ++row)
        grid.set_text(2, row, std::to_string(row));
    grid.insert_row(3);
    EXPECT_EQ(column(2, 5), "1|2||3|4|");
    EXPECT_EQ(grid.text(1, 3), "Goa");
    EXPECT_EQ(grid.rows(), 13);
    EXPECT_EQ(grid.text(2, 13), "12");
    grid.delete_rows(4, 2);
    EXPECT_EQ(column(2, 5), "1|2||5|6|");
    EXPECT_EQ(grid.data_rows(), 11);
}

TEST_F(GridTest, AddedColumnCopiesTheDesignOfItsNeighbour) {
    grid.design_row(1, combo_cell({"Goa", "Delhi"}, 1), 2);
    grid.design_row(2, button_cell("Details"), 2);
    grid.set_text(9, 1, "Goa");
    grid.set_text(9, 2, "500");
    grid.set_cell_locked(9, 3, true);
    grid.add_column();
    EXPECT_EQ(grid.text(10, 1) + "|" + grid.text(10, 2), "Delhi|Details");
    EXPECT_TRUE(grid.cell_locked(10, 3));
    EXPECT_EQ(grid.data_columns(), 9);
    grid.delete_column(9);
    EXPECT_EQ(grid.text(9, 1) + "|" + std::to_string(grid.columns()), "Delhi|10");
    EXPECT_EQ(grid.data_columns(), 0);
}

TEST_F(GridTest, KeysMoveTheActiveCellOverHiddenColumnsAndPastTheEnd) {
    grid.set_hidden(2, true);
    grid.set_active(1, 13);
    grid.press_key("Tab");
    EXPECT_EQ(grid.active_column(), 3);
    grid.set_active(9, 12);
    grid.press_key("Enter");
    EXPECT_EQ(grid.active_column() * 100 + grid.active_row(), 113);
    grid.set_active(9, 13);
    form.take_events();
    grid.press_key("Tab");
    EXPECT_EQ(form.take_events(), "key Tab; advance");
    EXPECT_THROW(grid.set_active(10, 1), Failure);
}

} // namespace
