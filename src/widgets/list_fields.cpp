#include "widgets/fields.h"

#include "widgets/failure.h"
#include "widgets/form.h"

#include <algorithm>
#include <utility>

namespace levora::widgets {

namespace {
constexpr int invalid_property_value = 380;
}

ListField::ListField(Form& form, std::string name, ListStyle style, std::string text_label,
                     std::vector<std::string> items)
    : Control(form, std::move(name), ControlKind::list_field), style_(style), items_(std::move(items)) {
    label = std::move(text_label);
}

int ListField::find(std::string_view text) const {
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (items_[i] == text) return static_cast<int>(i);
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (equal_without_case(items_[i], text)) return static_cast<int>(i);
    return -1;
}

void ListField::set_locked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    notify(Aspect::state);
}

void ListField::select(int index) {
    index_ = index;
    text_ = index < 0 ? std::string() : items_[static_cast<std::size_t>(index)];
}

void ListField::set_text(std::string_view text) {
    if (!editable()) {
        set_index(find(text));
        return;
    }
    if (text_ == text) return;
    index_ = find(text);
    text_ = text;
    raise("Change", on_change);
    notify(Aspect::content);
}

void ListField::set_index(int index) {
    if (index < -1 || index >= static_cast<int>(items_.size()))
        throw Failure(invalid_property_value, "Invalid property value");
    if (index == index_ && (index >= 0 || text_.empty())) return;
    select(index);
    raise("Click", on_click);
    notify(Aspect::content);
}

void ListField::add_item(std::string item) {
    items_.push_back(std::move(item));
    notify(Aspect::items);
}

void ListField::clear_items() {
    items_.clear();
    select(-1);
    notify(Aspect::items);
}

bool ListField::choose(int index) {
    if (locked_ || !can_act() || index < 0 || index >= static_cast<int>(items_.size())) return false;
    become_active();
    select(index);
    raise("Click", on_click);
    notify(Aspect::content);
    return true;
}

bool ListField::choose(std::string_view text) {
    return choose(find(text));
}

bool ListField::type(std::string_view text) {
    if (!editable() || locked_ || !can_act()) return false;
    become_active();
    set_text(text);
    return true;
}

ColumnList::ColumnList(Form& form, std::string name, std::vector<std::string> headers, std::string text_label)
    : Control(form, std::move(name), ControlKind::column_list), headers_(std::move(headers)) {
    label = std::move(text_label);
}

const std::string& ColumnList::cell(int row, int column) const {
    if (row < 0 || row >= count() || column < 0 || column >= columns())
        throw Failure(error_number::subscript, "Subscript out of range");
    return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void ColumnList::add_row(std::vector<std::string> cells) {
    cells.resize(headers_.size());
    rows_.push_back(std::move(cells));
    notify(Aspect::items);
}

void ColumnList::set_cell(int row, int column, std::string text) {
    (void)cell(row, column);
    rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = std::move(text);
    notify(Aspect::items);
}

void ColumnList::remove_row(int row) {
    (void)cell(row, 0);
    rows_.erase(rows_.begin() + row);
    if (index_ == row)
        select(-1);
    else if (index_ > row)
        --index_;
    notify(Aspect::items);
}

void ColumnList::clear() {
    rows_.clear();
    select(-1);
    notify(Aspect::items);
}

void ColumnList::select(int index) {
    index_ = index;
    text_ = index < 0 ? std::string() : cell(index, 0);
}

void ColumnList::set_index(int index) {
    if (index < -1 || index >= count()) throw Failure(invalid_property_value, "Invalid property value");
    if (index == index_) return;
    select(index);
    raise("Click", on_click);
    notify(Aspect::content);
}

void ColumnList::set_text(std::string_view text) {
    text_ = text;
    notify(Aspect::content);
}

void ColumnList::set_dropped_down(bool dropped_down) {
    if (dropped_down_ == dropped_down) return;
    dropped_down_ = dropped_down;
    notify(Aspect::state);
}

bool ColumnList::choose(int row) {
    if (!can_act() || row < 0 || row >= count()) return false;
    become_active();
    select(row);
    raise("Click", on_click);
    notify(Aspect::content);
    return true;
}

bool ColumnList::choose(std::string_view text) {
    for (int row = 0; row < count(); ++row)
        if (cell(row, 0) == text) return choose(row);
    return false;
}

} // namespace levora::widgets
