#include "schedules/assets_screen.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace levora::schedules {

using session::procedure;

namespace {

constexpr double item_column_width = 14;

// The labels and the first item can't go: every column added takes its design from the one before.
constexpr int fewest_columns = 2;

// A count with a fraction reaches as many columns as its change shows.
int columns_for(double count) {
    return std::max<int>(to_integer(count + 1), fewest_columns);
}

void add_item_column(widgets::Grid& spr) {
    spr.add_column();
    spr.set_header(spr.columns(), number_text(spr.columns() - 1));
}

// Whether a header is those words and that number already. A load renumbers once for each item, so
// that it matters not to make a text for each of them.
bool is_numbered(std::string_view header, std::string_view words, int number) {
    if (!header.starts_with(words)) return false;
    std::array<char, 12> digits{};
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return header.substr(words.size()) == std::string_view(digits.data(), end);
}

void renumber_headers(widgets::Grid& spr, std::string_view words, int last_column) {
    for (int column = 2; column <= std::min(last_column, spr.columns()); ++column)
        if (!is_numbered(spr.header(column), words, column - 1))
            spr.set_header(column, std::string(words) + number_text(column - 1));
}

constexpr std::string_view property_words;
constexpr std::string_view jewellery_words = "Jewellary ";

} // namespace

int frmImmovable::ResizeSpr(widgets::Grid& spr, int new_count, int& old_count) {
    int touched = 0;
    procedure(session_, "frmImmovable - ResizeSpr", [&](const session::Attempt&) {
        // A count below 0 reaches columns that no grid has; those are passed over.
        for (int i = old_count; i > new_count; --i) {
            if (i + 1 >= 1 && i + 1 <= spr.columns()) spr.set_hidden(i + 1, true);
            touched = i + 1;
        }
        for (int i = old_count + 1; i <= new_count; ++i) {
            if (i >= spr.columns()) add_item_column(spr);
            if (i + 1 >= 1) {
                spr.set_hidden(i + 1, false);
                spr.set_column_width(i + 1, item_column_width);
            }
            touched = i + 1;
        }
        old_count = new_count;
    });
    return touched;
}

void frmImmovable::connect_counts() {
    immovable.cboNumberOfProperty.on_change = [this] { cboNumberOfProperty_Change(); };
    immovable.cboNumberOfProperty.on_click = immovable.cboNumberOfProperty.on_change;
    jewellery.cboNumberOfJewellery.on_change = [this] { cboNumberOfJewellery_Change(); };
    jewellery.cboNumberOfJewellery.on_click = jewellery.cboNumberOfJewellery.on_change;
}

void frmImmovable::cboNumberOfProperty_Change() {
    const int count = to_integer(immovable.cboNumberOfProperty.value());
    const int touched = ResizeSpr(immovable.sprImmovable, count, property_count_);
    renumber_headers(immovable.sprImmovable, property_words, touched);
    immovable.sprImmovable_Change(1, 1);
}

void frmImmovable::cboNumberOfJewellery_Change() {
    const int count = to_integer(jewellery.cboNumberOfJewellery.value());
    const int touched = ResizeSpr(jewellery.sprJewellary, count, jewellery_count_);
    if (touched != 0) jewellery_current_column_ = touched;
    renumber_headers(jewellery.sprJewellary, jewellery_words, jewellery_current_column_);
    jewellery.sprJewellary_Change(1, 1);
}

void frmImmovable::mnuAddColumn_Click() {
    const std::string grid = active_control() == nullptr ? "" : active_control()->name();
    if (grid == "sprImmovable") {
        widgets::Grid& spr = immovable.sprImmovable;
        const double count = immovable.cboNumberOfProperty.value();
        if (count > 0 && count > spr.columns() - 1) {
            add_item_column(spr);
            immovable.cboNumberOfProperty.set_text(number_text(spr.columns() - 1));
        }
    } else if (grid == "sprJewellary") {
        widgets::Grid& spr = jewellery.sprJewellary;
        const double count = jewellery.cboNumberOfJewellery.value();
        if (count >= spr.active_column() - 1) {
            const int next = spr.active_column() + 1;
            jewellery.cboNumberOfJewellery.set_text(number_text(count + 1));
            if (next <= spr.columns()) spr.set_active(next, spr.active_row());
        }
    }
}

void frmImmovable::mnuDeleteColumn_Click() {
    const std::string grid = active_control() == nullptr ? "" : active_control()->name();
    if (grid == "sprImmovable") {
        widgets::Grid& spr = immovable.sprImmovable;
        if (spr.active_column() <= 2) return;
        // Wanted: rent and plot details stay under their old property numbers; renumbering them
        // would change rows that are stored by their own OK only.
        spr.delete_column(spr.active_column());
        const double count = immovable.cboNumberOfProperty.value() - 1;
        immovable.cboNumberOfProperty.set_text(number_text(count));
        spr.set_columns(columns_for(count));
        renumber_headers(spr, property_words, spr.columns());
    } else if (grid == "sprJewellary") {
        widgets::Grid& spr = jewellery.sprJewellary;
        if (spr.active_column() <= 1) return;
        spr.delete_column(spr.active_column());
        const double count = jewellery.cboNumberOfJewellery.value() - 1;
        jewellery.cboNumberOfJewellery.set_text(number_text(count));
        spr.set_columns(columns_for(count));
        cboNumberOfJewellery_Change();
    }
}

} // namespace levora::schedules
