#pragma once

#include "widgets/grid.h"

#include <deque>
#include <string>
#include <vector>

// The inside of a Grid, shared by its source files only.
namespace levora::widgets {

// The formula of one column, computed from columns of the same row. Cells point to it, so that it
// moves with their rows.
struct RowFormula {
    int column;
    std::vector<int> inputs;
    Reckoning how;
    bool every_row;
};

struct CellFormula {
    int column;
    int row;
    std::vector<CellRange> inputs;
    Reckoning how;
};

struct Grid::Cell {
    const CellDesign* design = nullptr;
    std::string text;
    double number = 0; // of number and percent cells
    const RowFormula* formula = nullptr;
    const std::string* note = nullptr;
    Color backcolor;
    int index = -1; // of combo cells
    bool data = false;
    bool label = false;
    bool locked = false;
};

struct Grid::Row {
    std::vector<Cell> cells;
    int data_count = 0;
};

struct Grid::Storage {
    struct Column {
        std::string header;
        bool hidden = false;
        double width = 12;
        int data_count = 0;
        // What new rows get; null where the rows are designed one by one.
        const CellDesign* design = nullptr;
        const RowFormula* formula = nullptr;
        Color backcolor;
        bool locked = false;
        bool feeds_row_formula = false;
    };

    std::string corner;
    std::vector<Column> columns;
    std::vector<Row> rows;
    // Kept at fixed addresses: cells point at them for as long as the grid lives.
    std::deque<CellDesign> designs;
    std::deque<std::string> notes;
    std::deque<RowFormula> row_formulas;
    std::vector<CellFormula> cell_formulas;

    const CellDesign* keep(const CellDesign& design) {
        designs.push_back(design);
        return &designs.back();
    }
    // The cell's design, lock, ground and note, without data and formula.
    static Cell blank_like(const Cell& model);
    [[nodiscard]] Cell blank_of(const Column& column) const;
    [[nodiscard]] Row blank_row(const Row* model) const;
    // One for each row, for a column to come after the last.
    [[nodiscard]] std::vector<Cell> blank_last_cells() const;
    void count_column_data();
};

// Gives a cell what its design shows while it holds no data.
void show_design(const CellDesign& design, std::string& text, int& index);
int find_item(const CellDesign& design, std::string_view text);
// A figure as a percent cell shows it: 0.2 is "20%".
std::string percent_text(double fraction, int decimals);

} // namespace levora::widgets
