#include "widgets/grid.h"

#include "widgets/failure.h"
#include "widgets/form.h"
#include "widgets/grid_storage.h"
#include "widgets/utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace levora::widgets {

namespace {
constexpr int invalid_array_index = 381;
const CellDesign plain_text;
} // namespace

Grid::Grid(Form& form, std::string name, int columns, int rows, std::string grid_label)
    : Control(form, std::move(name), ControlKind::grid), storage_(std::make_unique<Storage>()) {
    label = std::move(grid_label);
    storage_->columns.resize(static_cast<std::size_t>(columns));
    for (Storage::Column& column : storage_->columns)
        column.design = &plain_text;
    storage_->rows.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row)
        storage_->rows.push_back(storage_->blank_row(nullptr));
}

Grid::~Grid() = default;

int Grid::columns() const {
    return static_cast<int>(storage_->columns.size());
}
int Grid::rows() const {
    return static_cast<int>(storage_->rows.size());
}

Grid::Cell& Grid::at(int column, int row) {
    if (column < 1 || column > columns() || row < 1 || row > rows())
        throw Failure(invalid_array_index, name() + ": no cell in column " + std::to_string(column) +
                                               ", row " + std::to_string(row));
    return storage_->rows[static_cast<std::size_t>(row - 1)].cells[static_cast<std::size_t>(column - 1)];
}

const Grid::Cell& Grid::at(int column, int row) const {
    return const_cast<Grid*>(this)->at(column, row);
}

// --- reading ---

CellKind Grid::cell_kind(int column, int row) const {
    return at(column, row).design->kind;
}
const std::string& Grid::text(int column, int row) const {
    return at(column, row).text;
}
int Grid::index(int column, int row) const {
    return at(column, row).index;
}
bool Grid::cell_locked(int column, int row) const {
    return at(column, row).locked;
}
Color Grid::cell_backcolor(int column, int row) const {
    return at(column, row).backcolor;
}

double Grid::value(int column, int row) const {
    const Cell& cell = at(column, row);
    if (cell.design->kind == CellKind::number || cell.design->kind == CellKind::percent || cell.formula)
        return cell.number;
    return val(cell.text);
}

const std::string& Grid::note(int column, int row) const {
    static const std::string none;
    const Cell& cell = at(column, row);
    return cell.note ? *cell.note : none;
}

int Grid::data_rows() const {
    for (int row = rows(); row > 0; --row)
        if (row_has_data(row)) return row;
    return 0;
}

int Grid::data_columns() const {
    for (int column = columns(); column > 0; --column)
        if (storage_->columns[static_cast<std::size_t>(column - 1)].data_count > 0) return column;
    return 0;
}

bool Grid::row_has_data(int row) const {
    (void)at(1, row);
    return storage_->rows[static_cast<std::size_t>(row - 1)].data_count > 0;
}

// --- the program's writes ---

void Grid::mark_data(int column, int row, bool data) {
    Cell& cell = at(column, row);
    if (cell.label) data = false;
    if (cell.data == data) return;
    cell.data = data;
    const int step = data ? 1 : -1;
    storage_->rows[static_cast<std::size_t>(row - 1)].data_count += step;
    storage_->columns[static_cast<std::size_t>(column - 1)].data_count += step;
}

bool Grid::hold_number(int column, int row, double number) {
    Cell& cell = at(column, row);
    const CellDesign& design = *cell.design;
    if (design.kind == CellKind::percent) {
        const double shown =
            design.decimals < 0 ? number * 100 : round_half_away(number * 100, design.decimals);
        cell.number = shown / 100;
        cell.text = number_text(shown) + "%";
    } else {
        cell.text = number_text(design.decimals < 0 ? number : round_half_away(number, design.decimals));
        cell.number = val(cell.text); // as shown: a figure lives as text, so 0.1 + 0.2 is 0.3
    }
    return true;
}

bool Grid::hold(int column, int row, std::string_view text) {
    Cell& cell = at(column, row);
    const CellDesign& design = *cell.design;
    cell.number = 0;
    switch (design.kind) {
    case CellKind::number:
    case CellKind::percent:
        if (text.empty()) {
            cell.text.clear();
        } else {
            const std::optional<double> strict = strict_number(text);
            const double number = strict ? *strict : val(text);
            hold_number(column, row, design.kind == CellKind::percent ? number / 100 : number);
        }
        break;
    case CellKind::date:
        cell.text = as_day_month_year(text);
        break;
    case CellKind::combo:
        cell.index = text.empty() ? -1 : find_item(design, text);
        if (cell.index >= 0)
            cell.text = design.items[static_cast<std::size_t>(cell.index)];
        else if (design.editable)
            cell.text = text;
        else
            cell.text.clear();
        break;
    case CellKind::check:
        cell.text = val(text) != 0 ? "1" : "0";
        break;
    default:
        cell.text = text;
        break;
    }
    bool data = !cell.text.empty();
    if (design.kind == CellKind::button) data = data && cell.text != design.caption;
    if (design.kind == CellKind::check) data = cell.text == "1";
    mark_data(column, row, data);
    return true;
}

void Grid::written(int column, int row) {
    if (form().view) form().view->cell_changed(*this, column, row);
    recompute_from(column, row);
}

void Grid::set_text(int column, int row, std::string_view text) {
    if (has_formula(column, row)) return; // current already, and no data
    hold(column, row, text);
    written(column, row);
}

void Grid::set_value(int column, int row, double value) {
    const CellKind kind = cell_kind(column, row);
    if (kind != CellKind::number && kind != CellKind::percent) {
        set_text(column, row, number_text(value));
        return;
    }
    if (has_formula(column, row)) return;
    hold_number(column, row, value);
    mark_data(column, row, true);
    written(column, row);
}

void Grid::set_index(int column, int row, int index) {
    Cell& cell = at(column, row);
    const auto count = static_cast<int>(cell.design->items.size());
    if (cell.design->kind != CellKind::combo || index < -1 || index >= count)
        throw Failure(380, "Invalid property value");
    cell.index = index;
    cell.text = index < 0 ? std::string() : cell.design->items[static_cast<std::size_t>(index)];
    mark_data(column, row, index >= 0);
    written(column, row);
}

void Grid::set_cell_locked(int column, int row, bool locked) {
    Cell& cell = at(column, row);
    if (cell.locked == locked) return;
    cell.locked = locked;
    if (form().view) form().view->cell_changed(*this, column, row);
}

void Grid::set_column_locked(int column, bool locked) {
    storage_->columns.at(static_cast<std::size_t>(column - 1)).locked = locked;
    for (int row = 1; row <= rows(); ++row)
        set_cell_locked(column, row, locked);
}

void Grid::set_cell_backcolor(int column, int row, Color color) {
    Cell& cell = at(column, row);
    if (cell.backcolor == color) return;
    cell.backcolor = color;
    if (form().view) form().view->cell_changed(*this, column, row);
}

void Grid::set_column_backcolor(int column, Color color) {
    storage_->columns.at(static_cast<std::size_t>(column - 1)).backcolor = color;
    for (int row = 1; row <= rows(); ++row)
        set_cell_backcolor(column, row, color);
}

void Grid::set_note(int column, int row, std::string note) {
    storage_->notes.push_back(std::move(note));
    at(column, row).note = &storage_->notes.back();
}

void Grid::empty_cell(int column, int row) {
    Cell& cell = at(column, row);
    if (cell.label || has_formula(column, row)) return;
    cell.number = 0;
    show_design(*cell.design, cell.text, cell.index);
    mark_data(column, row, false);
}

void Grid::clear_data(const CellRange& range) {
    const int last_column = std::min(range.last_column, columns());
    const int last_row = std::min(range.last_row, rows());
    const int first_column = std::max(range.first_column, 1);
    const int first_row = std::max(range.first_row, 1);
    if (first_column > last_column || first_row > last_row) return;
    if (first_column == last_column && first_row == last_row) {
        empty_cell(first_column, first_row);
        written(first_column, first_row);
        return;
    }
    for (int row = first_row; row <= last_row; ++row)
        for (int column = first_column; column <= last_column; ++column)
            empty_cell(column, row);
    recompute_all();
    if (form().view) form().view->cell_changed(*this, -1, -1);
}

void Grid::clear_data() {
    clear_data({1, 1, columns(), rows()});
}

// --- formulas ---

void Grid::put_formula_result(int column, int row, double result) {
    Cell& cell = at(column, row);
    if (!std::isfinite(result)) { // a division by an empty cell: nothing to show
        if (cell.text.empty()) return;
        cell.number = 0;
        cell.text.clear();
        written(column, row);
        return;
    }
    double held = result;
    if (cell.design->kind == CellKind::number && cell.design->decimals >= 0)
        held = round_half_away(result, cell.design->decimals);
    // As its text tells it; else 3.01 and a fifth of it would be less than 3.612.
    held = val(number_text(held));
    if (cell.number == held && !cell.text.empty()) return;
    cell.number = held;
    cell.text = cell.design->kind == CellKind::percent ? percent_text(held, cell.design->decimals)
                                                       : number_text(held);
    mark_data(column, row, false);
    written(column, row);
}

void Grid::recompute_row(int row) {
    Row& cells = storage_->rows[static_cast<std::size_t>(row - 1)];
    for (int column = 1; column <= columns(); ++column) {
        const RowFormula* formula = cells.cells[static_cast<std::size_t>(column - 1)].formula;
        if (!formula) continue;
        std::array<double, 8> inputs{};
        for (std::size_t i = 0; i < formula->inputs.size(); ++i)
            inputs.at(i) = value(formula->inputs[i], row);
        put_formula_result(column, row, formula->how.figure({inputs.data(), formula->inputs.size()}));
    }
}

void Grid::recompute_from(int column, int row) {
    if (storage_->columns[static_cast<std::size_t>(column - 1)].feeds_row_formula) recompute_row(row);
    // By index: a result may feed the next formula.
    for (std::size_t i = 0; i < storage_->cell_formulas.size(); ++i) {
        const CellFormula& formula = storage_->cell_formulas[i];
        const bool fed = std::any_of(formula.inputs.begin(), formula.inputs.end(), [&](const CellRange& in) {
            return column >= in.first_column && column <= in.last_column && row >= in.first_row &&
                   row <= in.last_row;
        });
        if (!fed) continue;
        std::vector<double> inputs;
        inputs.reserve(formula.inputs.size());
        for (const CellRange& in : formula.inputs) {
            double sum = 0;
            for (int r = in.first_row; r <= in.last_row; ++r)
                for (int c = in.first_column; c <= in.last_column; ++c)
                    sum += value(c, r);
            inputs.push_back(sum);
        }
        put_formula_result(formula.column, formula.row, formula.how.figure(inputs));
    }
}

void Grid::recompute_all() {
    for (int row = 1; row <= rows(); ++row)
        recompute_row(row);
    // Each formula from its first input on: written results run through what they feed.
    for (std::size_t i = 0; i < storage_->cell_formulas.size(); ++i) {
        const std::vector<CellRange> inputs = storage_->cell_formulas[i].inputs;
        for (const CellRange& in : inputs)
            if (in.first_row <= in.last_row) recompute_from(in.first_column, in.first_row);
    }
}

} // namespace levora::widgets
