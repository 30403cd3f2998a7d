#include "widgets/failure.h"
#include "widgets/form.h"
#include "widgets/grid_storage.h"
#include "widgets/utf8.h"

#include <algorithm>
#include <utility>

namespace levora::widgets {

// --- headers, widths, hidden columns ---

const std::string& Grid::header(int column) const {
    if (column == 0) return storage_->corner;
    (void)at(column, 1);
    return storage_->columns[static_cast<std::size_t>(column - 1)].header;
}

std::string Grid::row_header(int row) const {
    if (row == 0) return storage_->corner;
    (void)at(1, row);
    return std::to_string(row);
}

void Grid::set_header(int column, std::string text) {
    std::string& header =
        column == 0 ? storage_->corner : storage_->columns.at(static_cast<std::size_t>(column - 1)).header;
    if (header == text) return;
    header = std::move(text);
    if (form().view) form().view->cell_changed(*this, column, 0);
}

bool Grid::hidden(int column) const {
    (void)at(column, 1);
    return storage_->columns[static_cast<std::size_t>(column - 1)].hidden;
}

void Grid::set_hidden(int column, bool hidden) {
    (void)at(column, 1);
    bool& held = storage_->columns[static_cast<std::size_t>(column - 1)].hidden;
    if (held == hidden) return;
    held = hidden;
    notify(Aspect::structure);
}

double Grid::column_width(int column) const {
    (void)at(column, 1);
    return storage_->columns[static_cast<std::size_t>(column - 1)].width;
}

void Grid::set_column_width(int column, double characters) {
    (void)at(column, 1);
    double& held = storage_->columns[static_cast<std::size_t>(column - 1)].width;
    if (held == characters) return;
    held = characters;
    notify(Aspect::structure);
}

double Grid::max_text_width(int column) const {
    std::size_t longest = character_count(header(column));
    for (int row = 1; row <= rows(); ++row)
        longest = std::max(longest, character_count(text(column, row)));
    return static_cast<double>(longest);
}

// --- counts ---

namespace {

template <class Part> void make_room_for_one(std::vector<Part>& parts) {
    if (parts.size() == parts.capacity()) parts.reserve(2 * parts.size() + 1);
}

} // namespace

// Memory may run out at any row: a change of the structure first gets all it needs, and is then done whole.
std::vector<Grid::Cell> Grid::Storage::blank_last_cells() const {
    std::vector<Cell> cells;
    cells.reserve(rows.size());
    for (const Row& row : rows)
        cells.push_back(blank_like(row.cells.back()));
    return cells;
}

void Grid::set_rows(int count) {
    if (count < 1 || count == rows()) return;
    const int before = rows();
    if (count < before) {
        storage_->rows.resize(static_cast<std::size_t>(count));
        storage_->count_column_data();
    } else {
        while (rows() < count) {
            const Row* last = storage_->rows.empty() ? nullptr : &storage_->rows.back();
            Row row = storage_->blank_row(last);
            storage_->rows.push_back(std::move(row));
        }
        for (int row = before + 1; row <= count; ++row)
            recompute_row(row);
    }
    active_row_ = std::min(active_row_, rows());
    notify(Aspect::structure);
}

void Grid::set_columns(int count) {
    if (count < 1 || count == columns()) return;
    if (count > columns()) {
        while (columns() < count)
            add_column();
        return;
    }
    storage_->columns.resize(static_cast<std::size_t>(count));
    for (Row& row : storage_->rows) {
        for (std::size_t i = static_cast<std::size_t>(count); i < row.cells.size(); ++i)
            if (row.cells[i].data) --row.data_count;
        row.cells.resize(static_cast<std::size_t>(count));
    }
    active_column_ = std::min(active_column_, columns());
    notify(Aspect::structure);
}

void Grid::add_column() {
    Storage::Column column = storage_->columns.back();
    column.header.clear();
    column.hidden = false;
    column.data_count = 0;
    std::vector<Cell> cells = storage_->blank_last_cells();
    make_room_for_one(storage_->columns);
    for (Row& row : storage_->rows)
        make_room_for_one(row.cells);
    storage_->columns.push_back(std::move(column));
    for (std::size_t i = 0; i < cells.size(); ++i)
        storage_->rows[i].cells.push_back(std::move(cells[i]));
    notify(Aspect::structure);
}

// --- rows and columns that move ---

namespace {

void shift_for_insert(std::vector<CellFormula>& formulas, int row) {
    for (CellFormula& formula : formulas) {
        if (formula.row >= row) ++formula.row;
        for (CellRange& in : formula.inputs) {
            if (in.first_row >= row) ++in.first_row;
            if (in.last_row >= row) ++in.last_row; // a run grows with a row inserted inside it
        }
    }
}

void shift_for_delete(std::vector<CellFormula>& formulas, int row) {
    std::erase_if(formulas, [row](const CellFormula& formula) { return formula.row == row; });
    for (CellFormula& formula : formulas) {
        if (formula.row > row) --formula.row;
        for (CellRange& in : formula.inputs) {
            if (in.first_row > row) --in.first_row;
            if (in.last_row >= row) --in.last_row; // an input that was this row alone becomes empty
        }
    }
}

} // namespace

void Grid::insert_row(int row, bool grow) {
    if (row == rows() + 1 && grow) {
        set_rows(rows() + 1);
        return;
    }
    (void)at(1, row);
    const auto place = storage_->rows.begin() + (row - 1);
    Row fresh;
    fresh.cells.reserve(storage_->columns.size());
    for (std::size_t i = 0; i < storage_->columns.size(); ++i) {
        Cell cell = Storage::blank_like(place->cells[i]);
        cell.formula = storage_->columns[i].formula;
        fresh.cells.push_back(std::move(cell));
    }
    storage_->rows.insert(place, std::move(fresh));
    shift_for_insert(storage_->cell_formulas, row);
    if (!grow) {
        std::erase_if(storage_->cell_formulas,
                      [this](const CellFormula& formula) { return formula.row == rows(); });
        for (CellFormula& formula : storage_->cell_formulas)
            for (CellRange& in : formula.inputs)
                in.last_row = std::min(in.last_row, rows() - 1);
        storage_->rows.pop_back();
    }
    storage_->count_column_data();
    recompute_all();
    notify(Aspect::structure);
}

void Grid::delete_rows(int row, int count) {
    (void)at(1, row);
    count = std::min(count, rows() - row + 1);
    for (int i = 0; i < count; ++i) {
        const bool is_last = row == rows();
        const Row* model = is_last && row == 1 ? nullptr : &storage_->rows.end()[is_last ? -2 : -1];
        Row fresh = storage_->blank_row(model);
        storage_->rows.erase(storage_->rows.begin() + (row - 1));
        shift_for_delete(storage_->cell_formulas, row);
        storage_->rows.push_back(std::move(fresh));
    }
    storage_->count_column_data();
    recompute_all();
    notify(Aspect::structure);
}

void Grid::delete_column(int column) {
    (void)at(column, 1);
    // The empty column at the end has the design of the last, also where that is the one deleted.
    Storage::Column fresh = storage_->columns.back();
    fresh.header.clear();
    fresh.data_count = 0;
    std::vector<Cell> cells = storage_->blank_last_cells();
    storage_->columns.erase(storage_->columns.begin() + (column - 1));
    storage_->columns.push_back(std::move(fresh));
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Row& row = storage_->rows[i];
        const auto deleted = row.cells.begin() + (column - 1);
        if (deleted->data) --row.data_count;
        row.cells.erase(deleted);
        row.cells.push_back(std::move(cells[i]));
    }
    recompute_all();
    notify(Aspect::structure);
}

} // namespace levora::widgets
