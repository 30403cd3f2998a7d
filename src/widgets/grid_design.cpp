#include "widgets/form.h"
#include "widgets/grid_storage.h"

#include <utility>

namespace levora::widgets {

std::string_view name_of(CellKind kind) {
    switch (kind) {
    case CellKind::text:
        return "text";
    case CellKind::number:
        return "number";
    case CellKind::percent:
        return "percent";
    case CellKind::mask:
        return "mask";
    case CellKind::date:
        return "date";
    case CellKind::combo:
        return "combo";
    case CellKind::button:
        return "button";
    case CellKind::check:
        return "check";
    }
    return "";
}

CellDesign text_cell(int max_chars) {
    CellDesign design;
    design.max_chars = max_chars;
    return design;
}

CellDesign number_cell(double min, double max, int decimals, bool grouped) {
    CellDesign design;
    design.kind = CellKind::number;
    design.min = min;
    design.max = max;
    design.decimals = decimals;
    design.grouped = grouped;
    return design;
}

CellDesign percent_cell(int decimals) {
    CellDesign design;
    design.kind = CellKind::percent;
    design.min = 0;
    design.max = 1;
    design.decimals = decimals;
    return design;
}

CellDesign mask_cell(std::string mask) {
    CellDesign design;
    design.kind = CellKind::mask;
    design.mask = std::move(mask);
    return design;
}

CellDesign date_cell(Date first, Date last) {
    CellDesign design;
    design.kind = CellKind::date;
    design.first = first;
    design.last = last;
    return design;
}

CellDesign combo_cell(std::vector<std::string> items, int default_index) {
    CellDesign design;
    design.kind = CellKind::combo;
    design.items = std::move(items);
    design.default_index = default_index;
    return design;
}

CellDesign button_cell(std::string caption) {
    CellDesign design;
    design.kind = CellKind::button;
    design.caption = std::move(caption);
    return design;
}

CellDesign check_cell(std::string caption) {
    CellDesign design;
    design.kind = CellKind::check;
    design.caption = std::move(caption);
    return design;
}

void show_design(const CellDesign& design, std::string& text, int& index) {
    index = -1;
    text.clear();
    if (design.kind == CellKind::combo && design.default_index >= 0) {
        index = design.default_index;
        text = design.items[static_cast<std::size_t>(index)];
    } else if (design.kind == CellKind::button) {
        text = design.caption;
    } else if (design.kind == CellKind::check) {
        text = "0";
    }
}

int find_item(const CellDesign& design, std::string_view text) {
    for (std::size_t i = 0; i < design.items.size(); ++i)
        if (design.items[i] == text) return static_cast<int>(i);
    for (std::size_t i = 0; i < design.items.size(); ++i)
        if (equal_without_case(design.items[i], text)) return static_cast<int>(i);
    return -1;
}

std::string percent_text(double fraction, int decimals) {
    return number_text(decimals < 0 ? fraction * 100 : round_half_away(fraction * 100, decimals)) + "%";
}

Grid::Cell Grid::Storage::blank_like(const Cell& model) {
    Cell cell;
    cell.design = model.design;
    cell.note = model.note;
    cell.backcolor = model.backcolor;
    cell.locked = model.locked;
    show_design(*cell.design, cell.text, cell.index);
    return cell;
}

Grid::Cell Grid::Storage::blank_of(const Column& column) const {
    Cell cell;
    cell.design = column.design;
    cell.formula = column.formula;
    cell.backcolor = column.backcolor;
    cell.locked = column.locked;
    show_design(*cell.design, cell.text, cell.index);
    return cell;
}

Grid::Row Grid::Storage::blank_row(const Row* model) const {
    Row row;
    row.cells.reserve(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].design || !model)
            row.cells.push_back(blank_of(columns[i]));
        else
            row.cells.push_back(blank_like(model->cells[i]));
    }
    return row;
}

void Grid::Storage::count_column_data() {
    for (Column& column : columns)
        column.data_count = 0;
    for (const Row& row : rows)
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (row.cells[i].data) ++columns[i].data_count;
}

void Grid::design_column(int column, const CellDesign& design) {
    (void)at(column, 1);
    const CellDesign* kept = storage_->keep(design);
    storage_->columns[static_cast<std::size_t>(column - 1)].design = kept;
    for (Row& row : storage_->rows) {
        Cell& cell = row.cells[static_cast<std::size_t>(column - 1)];
        cell.design = kept;
        show_design(*kept, cell.text, cell.index);
    }
    if (form().view) form().view->cell_changed(*this, column, -1);
}

void Grid::design_row(int row, const CellDesign& design, int first_column) {
    (void)at(first_column, row);
    const CellDesign* kept = storage_->keep(design);
    for (int column = first_column; column <= columns(); ++column) {
        // Rows of such a grid are designed one by one: a row added later copies its neighbour.
        storage_->columns[static_cast<std::size_t>(column - 1)].design = nullptr;
        Cell& cell = at(column, row);
        cell.design = kept;
        show_design(*kept, cell.text, cell.index);
    }
    if (form().view) form().view->cell_changed(*this, -1, row);
}

void Grid::design_cell(int column, int row, const CellDesign& design) {
    Cell& cell = at(column, row);
    const std::string held = cell.data ? cell.text : std::string();
    mark_data(column, row, false);
    cell.design = storage_->keep(design);
    cell.number = 0;
    show_design(*cell.design, cell.text, cell.index);
    if (!held.empty()) hold(column, row, held);
    written(column, row);
}

const CellDesign& Grid::design(int column, int row) const {
    return *at(column, row).design;
}

void Grid::set_combo_editable(int column, int row, bool editable) {
    Cell& cell = at(column, row);
    if (cell.design->kind != CellKind::combo || cell.design->editable == editable) return;
    CellDesign design = *cell.design;
    design.editable = editable;
    cell.design = storage_->keep(design);
}

void Grid::set_label(int column, int row, std::string text) {
    mark_data(column, row, false);
    Cell& cell = at(column, row);
    cell.label = true;
    cell.text = std::move(text);
    if (form().view) form().view->cell_changed(*this, column, row);
}

void Grid::set_column_formula(int column, std::vector<int> input_columns, const Reckoning& how,
                              int only_rows) {
    (void)at(column, 1);
    for (const int input : input_columns) {
        (void)at(input, 1);
        storage_->columns[static_cast<std::size_t>(input - 1)].feeds_row_formula = true;
    }
    storage_->row_formulas.push_back({column, std::move(input_columns), how, only_rows <= 0});
    const RowFormula* formula = &storage_->row_formulas.back();
    if (formula->every_row) storage_->columns[static_cast<std::size_t>(column - 1)].formula = formula;
    const int last = formula->every_row ? rows() : std::min(only_rows, rows());
    for (int row = 1; row <= last; ++row) {
        at(column, row).formula = formula;
        recompute_row(row);
    }
}

void Grid::set_cell_formula(int column, int row, std::vector<CellRange> inputs, const Reckoning& how) {
    at(column, row).formula = nullptr; // the cell's own formula takes the place of the column's
    storage_->cell_formulas.push_back({column, row, std::move(inputs), how});
    recompute_all();
}

bool Grid::has_formula(int column, int row) const {
    if (at(column, row).formula) return true;
    for (const CellFormula& formula : storage_->cell_formulas)
        if (formula.column == column && formula.row == row) return true;
    return false;
}

std::optional<GridFormula> Grid::formula(int column, int row) const {
    if (const RowFormula* own = at(column, row).formula) {
        GridFormula found{{}, own->how};
        for (const int input : own->inputs)
            found.inputs.push_back(cell_at(input, row));
        return found;
    }
    for (const CellFormula& each : storage_->cell_formulas)
        if (each.column == column && each.row == row) return GridFormula{each.inputs, each.how};
    return std::nullopt;
}

} // namespace levora::widgets
