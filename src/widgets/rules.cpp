#include "widgets/rules.h"

#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/typed_control.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace levora::widgets {

namespace {

// The inputs of one reckoning: most have few.
class Inputs {
public:
    void add(double figure) {
        if (count_ < few_.size())
            few_[count_++] = figure;
        else
            add_to_many(figure);
    }
    [[nodiscard]] std::span<const double> all() const {
        if (many_.empty()) return {few_.data(), count_};
        return many_;
    }

private:
    void add_to_many(double figure) {
        if (many_.empty()) many_.assign(few_.begin(), few_.end());
        many_.push_back(figure);
    }

    std::array<double, 8> few_{};
    std::size_t count_ = 0;
    std::vector<double> many_;
};

double figure_of_field(const Control& field, Reading reading) {
    if (const auto* list = as_if<ListField>(&field)) return list->value();
    const auto& text_field = as<TextField>(field);
    return reading == Reading::whole_text ? to_double(text_field.text()) : text_field.value();
}

double figure_of_cell(const Grid& grid, int column, int row, Reading reading) {
    return reading == Reading::position ? grid.index(column, row) : grid.value(column, row);
}

void read(const Source& source, int column, int row, Inputs& inputs) {
    const bool stands_there = !source.measure && !source.rule && source.reading == Reading::number;
    if (const auto* field = stands_there ? as_if<TextField>(source.control) : nullptr) {
        inputs.add(field->value());
    } else if (source.measure) {
        inputs.add(source.measure(source.control->form()));
    } else if (source.reading == Reading::shown) {
        return;
    } else if (source.rule) {
        inputs.add(source.rule->figure(column, row));
    } else if (const auto* grid = as_if<Grid>(source.control); !grid) {
        inputs.add(figure_of_field(*source.control, source.reading));
    } else {
        const CellRange run = run_now(source, column, row);
        for (int r = run.first_row; r <= run.last_row; ++r)
            for (int c = run.first_column; c <= run.last_column; ++c)
                inputs.add(figure_of_cell(*grid, c, r, source.reading));
    }
}

int bound_now(int bound, int own, const Grid& grid, bool of_rows) {
    switch (bound) {
    case same:
        return own;
    case last_used:
        return of_rows ? grid.data_rows() : grid.data_columns();
    case last_of_grid:
        return of_rows ? grid.rows() : grid.columns();
    default:
        return bound;
    }
}

// The only label that starts so is one of a numbered list: "1. Assets", "(I) Total amount".
std::string_view without_number(std::string_view words) {
    if (words.starts_with("(")) {
        const std::size_t end = words.find(") ");
        if (end < 5) return words.substr(end + 2); // none is far past that
    }
    if (words.size() > 2 && words[1] == '.' && words[2] == ' ') return words.substr(3);
    return words;
}

} // namespace

Source::Source(const Rule& unrounded)
    : control(unrounded.target.control), cells(unrounded.target.cells), rule(&unrounded) {
    // A rule for each column is read in the column of the other, and so with rows.
    if (cells.first_column != cells.last_column) cells.first_column = cells.last_column = same;
    if (cells.first_row != cells.last_row) cells.first_row = cells.last_row = same;
}

CellRange run_now(const Source& source, int column, int row) {
    const auto& grid = as<Grid>(*source.control);
    const CellRange& told = source.cells;
    return {bound_now(told.first_column, column, grid, false), bound_now(told.first_row, row, grid, true),
            bound_now(told.last_column, column, grid, false), bound_now(told.last_row, row, grid, true)};
}

bool Rule::holds_for(const Control& control, int column, int row) const {
    if (target.control != &control) return false;
    const auto* grid = as_if<Grid>(&control);
    if (!grid) return true;
    const CellRange run = run_now({*grid, target.cells}, column, row);
    return column >= run.first_column && column <= run.last_column && row >= run.first_row &&
           row <= run.last_row;
}

double Rule::figure(int column, int row) const {
    if (!how.figure) return no_figure;
    Inputs inputs;
    for (const Source& source : sources)
        read(source, column, row, inputs);
    return how.figure(inputs.all());
}

void Rule::work_out(int column, int row) const {
    if (auto* grid = as_if<Grid>(target.control)) {
        const double result = figure(column, row);
        if (!std::isnan(result)) grid->set_value(column, row, result);
        return;
    }
    auto& field = as<TextField>(*target.control);
    if (write == Write::text) {
        field.set_text(as<TextField>(*sources.front().control).text());
        return;
    }
    const double result = figure();
    if (!std::isnan(result))
        field.set_value(result);
    else if (write == Write::figure_or_empty)
        field.set_text("");
}

void Rule::work_out_step_by_step() const {
    auto& field = as<TextField>(*target.control);
    field.set_text("0");
    Inputs inputs;
    for (const Source& source : sources)
        read(source, 0, 0, inputs);
    for (const double each : inputs.all())
        field.set_value(field.value() + each);
}

const Rule& Rules::add(Rule rule) {
    rules_.push_back(std::move(rule));
    return rules_.back();
}

void Rules::tell(Rule::Target target, std::string_view words, std::vector<Source> sources) {
    add({.target = target, .sources = std::move(sources), .how = {nullptr, words}, .write = Write::nothing});
}

void Rules::tell(Rule::Target target, const HandOver& handed_over) {
    add({.target = target,
         .sources = {},
         .how = {nullptr, handed_over.words},
         .write = Write::nothing,
         .handed_over = &handed_over});
}

void Rules::call(const Control& control, std::string_view name, int column, int row) {
    names_.push_back({&control, column, row, name});
}

void Rules::call_by_rows(const Grid& grid) {
    by_rows_.push_back(&grid);
}

bool Rules::called_by_rows(const Control& control) const {
    return std::ranges::find(by_rows_, &control) != by_rows_.end();
}

std::string Rules::name_of(const Control& control, int column, int row) const {
    for (const Name& each : names_)
        if (each.control == &control && (each.column == 0 || each.column == column) &&
            (each.row == 0 || each.row == row))
            return std::string(each.name);
    const auto* grid = as_if<Grid>(&control);
    if (!grid) return short_words(control.label);
    return short_words(called_by_rows(control) ? grid->text(1, row) : grid->header(column));
}

void Rules::open_with(std::initializer_list<const Control*> panel, const Control& opener, int row) {
    for (const Control* control : panel)
        openers_.push_back({control, {&opener, row}});
}

Rules::Opener Rules::opener_of(const Control& control) const {
    for (const auto& [opened, opener] : openers_)
        if (opened == &control) return opener;
    return {};
}

std::string short_words(std::string_view label) {
    std::string words;
    for (const char each : without_number(trimmed(label)))
        if (each != '&' && (each != ' ' || (!words.empty() && words.back() != ' '))) words += each;
    for (const std::string_view before : {"Less: ", "Less : ", "Add: "})
        if (words.starts_with(before)) words.erase(0, before.size());
    for (const std::string_view behind : {"[", "(", " in relation", " in Relation", " as per"})
        if (const std::size_t at = words.find(behind); at != std::string::npos && at > 0) words.erase(at);
    while (!words.empty() && (words.back() == ' ' || words.back() == '.' || words.back() == ':'))
        words.pop_back();
    return words;
}

} // namespace levora::widgets
