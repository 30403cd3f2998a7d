#pragma once

#include "widgets/control.h"
#include "widgets/date_text.h"
#include "widgets/reckoning.h"
#include "widgets/value_text.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace levora::widgets {

class Menu;

enum class CellKind : std::uint8_t { text, number, percent, mask, date, combo, button, check };

std::string_view name_of(CellKind kind); // "text", "number", ... as scripts see them

// How a cell is designed: its kind and what that kind accepts. Shared by all cells made from it.
struct CellDesign {
    CellKind kind = CellKind::text;
    int max_chars = 0;                                  // text: 0 is no limit
    bool figure = false;                                // text: read as a number, shown like one
    double min = std::numeric_limits<double>::lowest(); // number; percent as a fraction
    double max = std::numeric_limits<double>::max();    //
    int decimals = 0;               // number, percent of the shown figure; -1 rounds nothing
    bool grouped = false;           // number: shown with Indian grouping
    std::string mask;               // "9" digit, "U" capital letter
    Date first = {1, 1, 1};         // date: the range that typing accepts
    Date last = {9999, 12, 31};     //
    std::vector<std::string> items; // combo
    int default_index = -1;         // combo: selected while it holds no data
    bool editable = false;          // combo: may be typed in
    std::string caption;            // button
};

CellDesign text_cell(int max_chars = 0);
CellDesign number_cell(double min, double max, int decimals, bool grouped = false);
CellDesign percent_cell(int decimals); // 0 % to 100 %
CellDesign mask_cell(std::string mask);
CellDesign date_cell(Date first, Date last);
CellDesign combo_cell(std::vector<std::string> items, int default_index = -1);
CellDesign button_cell(std::string caption);
CellDesign check_cell(std::string caption = {});

// A run of cells, all bounds within.
struct CellRange {
    int first_column;
    int first_row;
    int last_column;
    int last_row;
};
constexpr CellRange cell_at(int column, int row) {
    return {column, row, column, row};
}

// What a formula cell is made of: each input is the sum of its cells, in the order in which they were
// named.
struct GridFormula {
    std::vector<CellRange> inputs;
    Reckoning how;
};

// A table of cells, columns and rows from 1; column 0 and row 0 are the headers. Every function takes
// the column first. An address outside the grid is a Failure 381, except where told.
//
// A cell holds its text: a number plain (no grouping), a percentage as "20%", a date as
// "dd/MM/yyyy", a button's caption, a combo's selected text, a tick as "1" or "0". A cell holds data
// when a person or the program put something into it; a formula's result, a list's default selection
// and the text of a label column are no data.
//
// The program's writes raise no event. A person's acts (type, choose, check, press, keys) do.
// Formula cells are current after every write.
class Grid : public Control {
public:
    Grid(Form& form, std::string name, int columns, int rows, std::string label = {});
    ~Grid() override;

    // --- counts ---
    [[nodiscard]] int columns() const;
    [[nodiscard]] int rows() const;
    // New columns and rows at the end take the column's design (see design_column) or, in a grid of
    // items by column, that of the last column.
    void set_rows(int rows);
    void set_columns(int columns);
    // The last row, column that holds data; 0 when none does.
    [[nodiscard]] int data_rows() const;
    [[nodiscard]] int data_columns() const;
    [[nodiscard]] bool row_has_data(int row) const;

    // --- design; done once, before use ---
    // Every cell of the column, and of rows to come.
    void design_column(int column, const CellDesign& design);
    // Every cell of the row from `first_column` on, in columns to come too.
    void design_row(int row, const CellDesign& design, int first_column = 1);
    // One cell; what it held goes, unless it fits.
    void design_cell(int column, int row, const CellDesign& design);
    [[nodiscard]] const CellDesign& design(int column, int row) const;
    void set_combo_editable(int column, int row, bool editable);
    // A locked, grey column of labels; its texts are no data.
    void set_label(int column, int row, std::string text);
    // The formula of a column for every row, inserted rows too; inputs are columns of the same row.
    // With `only_rows` > 0 the rows 1 to that one carry it now, and it moves with them.
    void set_column_formula(int column, std::vector<int> input_columns, const Reckoning& how,
                            int only_rows = 0);
    // The formula of one cell. Its inputs follow insertions and deletions as in a spreadsheet.
    void set_cell_formula(int column, int row, std::vector<CellRange> inputs, const Reckoning& how);
    [[nodiscard]] bool has_formula(int column, int row) const;
    // The formula that the cell has now, its inputs where they have moved to; nothing when it has none.
    [[nodiscard]] std::optional<GridFormula> formula(int column, int row) const;

    // --- headers, widths, hidden columns ---
    [[nodiscard]] const std::string& header(int column) const; // column 0 is the corner
    [[nodiscard]] std::string row_header(int row) const;       // its number, as text
    void set_header(int column, std::string text);
    [[nodiscard]] bool hidden(int column) const;
    void set_hidden(int column, bool hidden);
    [[nodiscard]] double column_width(int column) const; // in characters
    void set_column_width(int column, double characters);
    // The longest text of the column, its header too, in characters.
    [[nodiscard]] double max_text_width(int column) const;

    // --- cells: reading ---
    [[nodiscard]] CellKind cell_kind(int column, int row) const;
    [[nodiscard]] const std::string& text(int column, int row) const;
    // The number held: the leading number of the text; of a percentage the fraction.
    [[nodiscard]] double value(int column, int row) const;
    [[nodiscard]] int index(int column, int row) const; // combo: from 0, -1 none
    [[nodiscard]] bool cell_locked(int column, int row) const;
    [[nodiscard]] Color cell_backcolor(int column, int row) const;
    [[nodiscard]] const std::string& note(int column, int row) const;

    // --- cells: the program's writes ---
    // What the cell's kind makes of a text: a number is rounded to its decimals, halves away from
    // zero; a combo finds its item without regard to case, or has no selection; a date is shown as
    // dd/MM/yyyy when it is one. The bounds of a number bind typing only. The empty text empties.
    void set_text(int column, int row, std::string_view text);
    // A number; of a percentage the fraction.
    void set_value(int column, int row, double value);
    void set_index(int column, int row, int index);
    void set_cell_locked(int column, int row, bool locked);
    void set_column_locked(int column, bool locked); // every cell, rows to come too
    void set_cell_backcolor(int column, int row, Color color);
    void set_column_backcolor(int column, Color color);
    void set_note(int column, int row, std::string note);

    // "Data only": kinds, locks, grounds, formulas, notes and labels stay; a list goes back to its
    // default selection, a button to its design caption. Bounds outside the grid are cut to it.
    void clear_data(const CellRange& range);
    void clear_data(); // all cells

    // Rows at and behind move down and the row count grows by one, or stays when `grow` is false
    // (the last row then falls off). The new row takes the cell kinds of its place, and no data.
    void insert_row(int row, bool grow = false);
    // Rows behind move up; the row count stays, an empty row follows at the end.
    void delete_rows(int row, int count = 1);
    // Adds a column behind the last: its design, without data.
    void add_column();
    // Columns behind move left; the column count stays, an empty column follows at the end.
    void delete_column(int column);

    // --- active cell and marks ---
    [[nodiscard]] int active_column() const { return active_column_; }
    [[nodiscard]] int active_row() const { return active_row_; }
    void set_active(int column, int row);
    [[nodiscard]] bool edit_mode() const { return edit_mode_; }
    void set_edit_mode(bool edit_mode) { edit_mode_ = edit_mode; }
    [[nodiscard]] bool changed() const { return changed_; }
    void set_changed(bool changed) { changed_ = changed; }

    // --- what a person does ---
    // Makes the cell active, puts the text in as one, leaves edit mode; one change event. False when
    // the cell is locked or refuses the text, which leaves it as it was. The empty text empties any
    // unlocked cell. Text of a number may be grouped.
    bool type(int column, int row, std::string_view text);
    bool choose(int column, int row, int index);
    bool choose(int column, int row, std::string_view text);
    bool check(int column, int row, bool ticked);
    bool press(int column, int row);
    // What typing this text would leave in the cell; nothing when the cell refuses it.
    [[nodiscard]] std::optional<std::string> accepted(int column, int row, std::string_view text) const;
    // A key at the active cell outside edit mode, by name ("Delete", "Ctrl+Insert", "Tab"). First the
    // screen's handlers, then, where they leave it, the grid's own: arrows, Tab, Enter, Home, End. A
    // key that also makes a character, as Escape does (27), sends both.
    void press_key(std::string_view key);
    void type_character(char32_t character);
    // Moves on past the last cell.
    void advance();
    // The menu that pops up, null for none.
    const Menu* right_click();

    // --- events; a handler of keys answers true when it has dealt with the key itself ---
    std::function<void(int column, int row)> on_change;
    std::function<void(int column, int row)> on_button_click;
    std::function<void(int column, int row)> on_combo_select; // after the change
    std::function<bool(std::string_view key)> on_key_down;
    std::function<void(char32_t character)> on_key_char;
    std::function<void()> on_advance;
    std::function<const Menu*()> on_right_click;

    // --- printed sheet ---
    std::string print_header; // "/n" is a new line, /fz"9" size 9, /fb1 bold, /r right
    std::string print_footer;
    int print_margin_left = 0;
    int print_margin_top = 0;
    int print_margin_bottom = 0;

private:
    struct Cell;
    struct Row;
    struct Storage;

    [[nodiscard]] Cell& at(int column, int row);
    [[nodiscard]] const Cell& at(int column, int row) const;
    // Puts a text into a cell as its kind holds it; tells whether anything became different.
    bool hold(int column, int row, std::string_view text);
    bool hold_number(int column, int row, double number);
    void mark_data(int column, int row, bool data);
    void written(int column, int row);
    void recompute_from(int column, int row);
    void recompute_row(int row);
    void recompute_all();
    void put_formula_result(int column, int row, double result);
    void empty_cell(int column, int row);
    [[nodiscard]] bool can_edit(int column, int row) const;
    void edited(int column, int row);
    void move_active(int columns, int rows);
    void next_cell();
    void previous_cell();

    std::unique_ptr<Storage> storage_; // cells, designs and formulas: see grid_storage.h
    int active_column_ = 1;
    int active_row_ = 1;
    bool edit_mode_ = false;
    bool changed_ = false;
};

} // namespace levora::widgets
