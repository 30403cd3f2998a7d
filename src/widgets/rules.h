#pragma once

#include "widgets/grid.h"
#include "widgets/reckoning.h"

#include <deque>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace levora::widgets {

class Form;
struct Rule;

// Bounds of a run of cells that are known only when the run is read.
constexpr int same = 0;          // the column or row of the cell that the rule writes
constexpr int last_used = -1;    // the last column or row that holds data
constexpr int last_of_grid = -2; // the last column or row there is

// How a rule reads a place.
enum class Reading {
    number,     // the leading number of a field's text; the number that a cell holds
    whole_text, // the whole text as a number, where any other text is a Failure 13
    position,   // of a list cell's selection, from 0, -1 none
    shown,      // nothing: only told, a mask by its text, anything else by its name
};

// What a rule works with: a field, or a run of cells of which each is a figure of its own.
struct Source {
    Source(const Control& field, Reading reading = Reading::number) : control(&field), reading(reading) {}
    Source(const Grid& grid, const CellRange& run, Reading reading = Reading::number)
        : control(&grid), cells(run), reading(reading) {}
    // What the other rule gives in the same column or row, before its cell rounds it.
    Source(const Rule& unrounded);
    // A figure that no place holds, taken from what stands at this one; told with its unit, if any.
    Source(const Control& place, double (*measure)(const Form&), std::string_view unit = {})
        : control(&place), measure(measure), unit(unit) {}

    const Control* control = nullptr;
    CellRange cells = {};
    Reading reading = Reading::number;
    const Rule* rule = nullptr;
    double (*measure)(const Form&) = nullptr;
    std::string_view unit = {};
};
inline Source cell(const Grid& grid, int column, int row, Reading reading = Reading::number) {
    return {grid, cell_at(column, row), reading};
}
// The column down to the last row that holds data.
inline Source column_of(const Grid& grid, int column) {
    return {grid, {column, 1, column, last_used}};
}
inline Source row_of(const Grid& grid, int row, int first_column, int last_column) {
    return {grid, {first_column, row, last_column, row}};
}

// A place that another screen, or another part of the same one, writes: both by their names.
struct HandOver {
    std::string_view from_screen, from_control;
    int from_column, from_row; // 0 for a field, or for a grid as a whole
    std::string_view to_screen, to_control;
    std::string_view words;              // of what is handed over: "the total of the assets screen"
    std::string_view opener;             // the button that opens the giving screen, on the receiving one
    std::string_view opener_screen = {}; // or on this
    std::string_view caution = {};       // what going there by that button costs
};

enum class Write {
    figure,          // nothing where the reckoning gives no figure
    figure_or_empty, // the empty text there
    text,            // the text of the only source as it stands
    nothing,         // told only: a person, a store or another screen writes it
};

// Which field or cells a rule writes, from what, and how, in rupees where nothing else is told. The chain
// of a screen runs it, and the explanation of a figure reads it.
struct Rule {
    // The field, or the cells that the rule holds for: each is worked out by itself.
    struct Target {
        Target(Control& field) : control(&field) {}
        Target(Grid& grid, const CellRange& run) : control(&grid), cells(run) {}
        Control* control;
        CellRange cells = {};
    };
    Target target;
    std::vector<Source> sources;
    Reckoning how;
    Write write = Write::figure;
    // Why another figure may stand there; without it, that it was typed or stored.
    std::string_view otherwise = {};
    const HandOver* handed_over = nullptr;

    // Whether it holds for the cell; for a field, 0 and 0.
    [[nodiscard]] bool holds_for(const Control& control, int column, int row) const;
    // What it gives now; no_figure where it has none to give.
    [[nodiscard]] double figure(int column = 0, int row = 0) const;
    // Writes the field or the cell as code does.
    void work_out(int column = 0, int row = 0) const;
    // Writes the field once for each figure: what hangs on the field follows each of them.
    void work_out_step_by_step() const;
};

// The rules of one screen, and what they need to be told in words.
class Rules {
public:
    // Stays where it is. Of several rules for one place the one added last is the lowest: it holds where
    // more than one gives the figure that stands there.
    const Rule& add(Rule rule);
    // A figure that nothing works out, told in these words.
    void tell(Rule::Target target, std::string_view words, std::vector<Source> sources = {});
    // A figure that another screen gives.
    void tell(Rule::Target target, const HandOver& handed_over);
    [[nodiscard]] const std::deque<Rule>& all() const { return rules_; }

    // What a place is called in a sentence, where its label or header is too long for one. A column or
    // row of 0 is each.
    void call(const Control& control, std::string_view name, int column = 0, int row = 0);
    // The figures of the grid are called by the labels of their rows, not by the headers of its columns.
    void call_by_rows(const Grid& grid);
    [[nodiscard]] std::string name_of(const Control& control, int column = 0, int row = 0) const;
    [[nodiscard]] bool called_by_rows(const Control& control) const;

    // The button, or the button cell in that row, that opens the panel with the controls.
    struct Opener {
        const Control* control = nullptr;
        int row = 0;
    };
    void open_with(std::initializer_list<const Control*> panel, const Control& opener, int row = 0);
    [[nodiscard]] Opener opener_of(const Control& control) const;

private:
    struct Name {
        const Control* control;
        int column, row;
        std::string_view name;
    };
    std::deque<Rule> rules_;
    std::vector<Name> names_;
    std::vector<const Control*> by_rows_;
    std::vector<std::pair<const Control*, Opener>> openers_;
};

// The words of a label that fit a sentence: without number, access key, brackets and what follows them.
std::string short_words(std::string_view label);

// The cells of a run as they lie now, for the cell that a rule writes.
CellRange run_now(const Source& source, int column, int row);

} // namespace levora::widgets
