#include "widgets/failure.h"
#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/grid_storage.h"
#include "widgets/utf8.h"

#include <algorithm>

namespace levora::widgets {

namespace {

std::optional<std::string> masked(const std::string& mask, std::string_view text) {
    if (text.size() > mask.size()) return std::nullopt;
    std::string held;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool digit = c >= '0' && c <= '9';
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (mask[i] == '9' ? !digit : mask[i] == 'U' ? !letter : c != mask[i]) return std::nullopt;
        held += mask[i] == 'U' ? upper_case({&c, 1}) : std::string(1, c);
    }
    return held;
}

std::optional<std::string> bounded_number(const CellDesign& design, std::string_view text) {
    const std::optional<double> number = strict_number(text);
    if (!number) return std::nullopt;
    const double held = design.decimals < 0 ? *number : round_half_away(*number, design.decimals);
    if (held < design.min || held > design.max) return std::nullopt;
    return number_text(held);
}

std::optional<std::string> bounded_percent(const CellDesign& design, std::string_view text) {
    std::string_view figure = trimmed(text);
    if (figure.ends_with('%')) figure.remove_suffix(1);
    const std::optional<double> number = strict_number(figure);
    if (!number) return std::nullopt;
    const double fraction = *number / 100;
    if (fraction < design.min || fraction > design.max) return std::nullopt;
    return percent_text(fraction, design.decimals);
}

} // namespace

void Grid::set_active(int column, int row) {
    (void)at(column, row);
    if (active_column_ == column && active_row_ == row) return;
    active_column_ = column;
    active_row_ = row;
    if (form().view) form().view->active_cell_changed(*this);
}

bool Grid::can_edit(int column, int row) const {
    return can_act() && column >= 1 && column <= columns() && row >= 1 && row <= rows() &&
           !cell_locked(column, row);
}

std::optional<std::string> Grid::accepted(int column, int row, std::string_view text) const {
    const CellDesign& design = *at(column, row).design;
    if (text.empty()) return std::string();
    switch (design.kind) {
    case CellKind::text:
        return std::string(
            design.max_chars > 0 ? first_characters(text, static_cast<std::size_t>(design.max_chars)) : text);
    case CellKind::number:
        return bounded_number(design, text);
    case CellKind::percent:
        return bounded_percent(design, text);
    case CellKind::mask:
        return masked(design.mask, text);
    case CellKind::date: {
        const std::optional<Date> date = parse_date(text);
        if (!date || *date < design.first || *date > design.last) return std::nullopt;
        return day_month_year(*date);
    }
    case CellKind::combo:
        return design.editable ? std::optional(std::string(text)) : std::nullopt;
    case CellKind::button:
    case CellKind::check:
        return std::nullopt;
    }
    return std::nullopt;
}

void Grid::edited(int column, int row) {
    edit_mode_ = false;
    changed_ = true;
    raise("Change", [this, column, row] {
        if (on_change) on_change(column, row);
    });
}

bool Grid::type(int column, int row, std::string_view text) {
    if (!can_edit(column, row)) return false;
    const std::optional<std::string> held = accepted(column, row, text);
    if (!held) return false;
    become_active();
    set_active(column, row);
    if (held->empty()) {
        empty_cell(column, row);
        // An emptied list shows no selection, unlike a cleared one.
        if (cell_kind(column, row) == CellKind::combo) hold(column, row, {});
        written(column, row);
    } else {
        set_text(column, row, *held);
    }
    edited(column, row);
    return true;
}

bool Grid::choose(int column, int row, int index) {
    if (!can_edit(column, row) || cell_kind(column, row) != CellKind::combo) return false;
    if (index < 0 || index >= static_cast<int>(design(column, row).items.size())) return false;
    become_active();
    set_active(column, row);
    set_index(column, row, index);
    edited(column, row);
    raise("ComboSelChange", [this, column, row] {
        if (on_combo_select) on_combo_select(column, row);
    });
    return true;
}

bool Grid::choose(int column, int row, std::string_view text) {
    if (!can_edit(column, row)) return false;
    return choose(column, row, find_item(design(column, row), text));
}

bool Grid::check(int column, int row, bool ticked) {
    if (!can_edit(column, row) || cell_kind(column, row) != CellKind::check) return false;
    become_active();
    set_active(column, row);
    hold(column, row, ticked ? "1" : "0");
    written(column, row);
    edited(column, row);
    return true;
}

bool Grid::press(int column, int row) {
    if (!can_edit(column, row) || cell_kind(column, row) != CellKind::button) return false;
    become_active();
    set_active(column, row);
    raise("ButtonClicked", [this, column, row] {
        if (on_button_click) on_button_click(column, row);
    });
    return true;
}

void Grid::press_key(std::string_view key) {
    if (!can_act()) return;
    become_active();
    bool answered = false;
    const std::string held_key(key);
    if (on_key_down) raise("KeyDown", [&] { answered = on_key_down(held_key); });
    if (!answered) {
        if (key == "Right")
            move_active(1, 0);
        else if (key == "Left")
            move_active(-1, 0);
        else if (key == "Down")
            move_active(0, 1);
        else if (key == "Up")
            move_active(0, -1);
        else if (key == "Home")
            set_active(1, active_row_);
        else if (key == "End")
            set_active(columns(), active_row_);
        else if (key == "Tab" || key == "Enter")
            next_cell();
        else if (key == "Shift+Tab")
            previous_cell();
    }
    if (key == "Escape") type_character(U'\x1b');
}

void Grid::type_character(char32_t character) {
    if (!can_act()) return;
    become_active();
    raise("KeyPress", [this, character] {
        if (on_key_char) on_key_char(character);
    });
}

void Grid::advance() {
    if (!can_act()) return;
    become_active();
    raise("Advance", on_advance);
}

const Menu* Grid::right_click() {
    if (!can_act()) return nullptr;
    become_active();
    const Menu* menu = nullptr;
    raise("RightClick", [&] { menu = on_right_click ? on_right_click() : nullptr; });
    if (menu) form().show_popup(*menu);
    return menu;
}

void Grid::move_active(int columns_on, int rows_on) {
    int column = active_column_ + columns_on;
    while (column >= 1 && column <= columns() && hidden(column))
        column += columns_on >= 0 ? 1 : -1;
    const int row = active_row_ + rows_on;
    if (column < 1 || column > columns() || row < 1 || row > rows()) return;
    set_active(column, row);
}

void Grid::next_cell() {
    int column = active_column_ + 1;
    while (column <= columns() && hidden(column))
        ++column;
    if (column <= columns()) {
        set_active(column, active_row_);
        return;
    }
    if (active_row_ == rows()) {
        advance();
        return;
    }
    int first = 1;
    while (first < columns() && hidden(first))
        ++first;
    set_active(first, active_row_ + 1);
}

void Grid::previous_cell() {
    int column = active_column_ - 1;
    while (column >= 1 && hidden(column))
        --column;
    if (column >= 1) {
        set_active(column, active_row_);
    } else if (active_row_ > 1) {
        int last = columns();
        while (last > 1 && hidden(last))
            --last;
        set_active(last, active_row_ - 1);
    }
}

} // namespace levora::widgets
