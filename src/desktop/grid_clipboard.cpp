#include "desktop/acts.h"
#include "desktop/grid_model.h"
#include "desktop/grid_view.h"
#include "desktop/long_work.h"
#include "desktop/qt_text.h"
#include "desktop/tabbed_text.h"
#include "widgets/grid.h"

#include <QApplication>
#include <QClipboard>
#include <QItemSelection>

#include <algorithm>

// Cells to and from the clipboard, as spreadsheet programs give and take them, and what is done to a
// whole range at once: one step of undo each.
namespace levora::desktop {

struct GridView::Range {
    int left = 0; // from 1, all bounds within
    int top = 0;
    int right = -1;
    int bottom = -1;
};

struct GridView::CellText {
    int column;
    int row;
    std::string text;
};

namespace {

bool takes_text(const widgets::Grid& grid, int column, int row) {
    return !grid.cell_locked(column, row) && grid.cell_kind(column, row) != widgets::CellKind::button;
}

QString counted(int count, const char* one, const char* many) {
    return count == 0 ? QString()
                      : QStringLiteral("%1 %2 ").arg(count).arg(GridView::tr(count == 1 ? one : many));
}

} // namespace

GridView::Range GridView::selected_range() const {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) {
        const QModelIndex at = currentIndex();
        return {at.column() + 1, at.row() + 1, at.column() + 1, at.row() + 1};
    }
    const QItemSelectionRange& range = selection.first();
    return {range.left() + 1, range.top() + 1, range.right() + 1, range.bottom() + 1};
}

void GridView::select_range(const Range& range) {
    if (!grid_) return;
    const int right = std::min(range.right, model()->columnCount());
    const int bottom = std::min(range.bottom, model()->rowCount());
    const QModelIndex first = model()->index(range.top - 1, range.left - 1);
    setCurrentIndex(first);
    selectionModel()->select(QItemSelection(first, model()->index(bottom - 1, right - 1)),
                             QItemSelectionModel::ClearAndSelect);
}

std::vector<int> GridView::shown_columns(int from, int to) const {
    std::vector<int> columns;
    for (int column = from; column <= std::min(to, grid_->columns()); ++column)
        if (!grid_->hidden(column)) columns.push_back(column);
    return columns;
}

bool GridView::write_cells(const QString& what, const std::vector<CellText>& cells, int without_place) {
    const Range chosen = selected_range();
    int locked = 0;
    int refused = 0;
    QString first_refused;
    bool cancelled = false;
    {
        LongWork work(this, what, static_cast<int>(cells.size()));
        acts_->begin_step();
        int done = 0;
        for (const CellText& cell : cells) {
            if (!work.go_on(done++)) {
                cancelled = true;
                break;
            }
            if (!grid_ || cell.column > grid_->columns() || cell.row > grid_->rows()) {
                ++without_place;
                continue;
            }
            const std::string text =
                from_qt(cell_text(to_qt(cell.text), grid_->design(cell.column, cell.row)));
            if (grid_->text(cell.column, cell.row) == text) continue;
            if (!takes_text(*grid_, cell.column, cell.row)) {
                ++locked;
                continue;
            }
            // Named before the edit, which may take the row away.
            const QString place =
                tr("%1, %2").arg(row_words(*grid_, cell.row), plain_words(grid_->header(cell.column)));
            if (!acts_->edit_cell(*grid_, cell.column, cell.row, text) && refused++ == 0)
                first_refused = tr("The first is \"%1\" in %2. ").arg(to_qt(text).left(40), place);
        }
        work.settle();
        if (cancelled)
            acts_->give_up_step();
        else
            acts_->end_step();
    }
    select_range(chosen);
    if (cancelled)
        acts_->tell(tr("Cancelled: the cells are as they were."));
    else
        acts_->tell((counted(locked, "locked cell left as it was.", "locked cells left as they were.") +
                     counted(refused, "value did not fit its cell.", "values did not fit their cells.") +
                     first_refused + counted(without_place, "value found no cell.", "values found no cell."))
                        .trimmed());
    return !cancelled;
}

void GridView::copy() const {
    if (!grid_) return;
    const Range range = selected_range();
    std::vector<QStringList> rows;
    for (int row = range.top; row <= range.bottom; ++row) {
        QStringList& cells = rows.emplace_back();
        for (const int column : shown_columns(range.left, range.right))
            cells += to_qt(grid_->text(column, row));
    }
    QApplication::clipboard()->setText(tabbed_text(rows));
}

void GridView::clear_selected() {
    if (!grid_) return;
    const Range range = selected_range();
    std::vector<CellText> cells;
    for (int row = range.top; row <= range.bottom; ++row)
        for (const int column : shown_columns(range.left, range.right))
            if (!grid_->text(column, row).empty()) cells.push_back({column, row, {}});
    write_cells(tr("Clearing cells"), cells);
}

void GridView::cut() {
    copy();
    clear_selected();
}

// Rows for what comes are added as by moving on past the last cell, where the grid grows that way.
bool GridView::grow_to(int rows) {
    LongWork work(this, tr("Adding rows"), rows);
    while (grid_ && grid_->rows() < rows) {
        const int before = grid_->rows();
        if (!acts_->act([this] { grid_->advance(); }) || grid_->rows() == before) return true;
        if (!work.go_on(before)) return false;
    }
    return true;
}

void GridView::paste() {
    if (!grid_) return;
    std::vector<QStringList> given = tabbed_rows(QApplication::clipboard()->text());
    if (given.empty()) return;
    Range range = selected_range();
    const auto widest = std::max_element(given.begin(), given.end(), [](const auto& left, const auto& right) {
        return left.size() < right.size();
    });
    const int width = static_cast<int>(widest->size());
    const int height = static_cast<int>(given.size());
    const int chosen_width = static_cast<int>(shown_columns(range.left, range.right).size());
    const int chosen_height = range.bottom - range.top + 1;
    // What fits a larger selection several times fills it.
    const int across = chosen_width % width == 0 ? std::max(1, chosen_width / width) : 1;
    const int down = chosen_height % height == 0 ? std::max(1, chosen_height / height) : 1;

    const int last_row = range.top + height * down - 1;
    const int rows_before = grid_->rows();
    // Rows that a cancelled paste has added at the end go again.
    const auto give_rows_back = [this, rows_before] {
        if (grid_ && grid_->rows() > rows_before)
            acts_->act([this, rows_before] { grid_->set_rows(rows_before); });
    };
    if (last_row > rows_before && !grow_to(last_row)) {
        give_rows_back();
        acts_->tell(tr("Cancelled: the cells are as they were."));
        return;
    }
    if (!grid_) return;
    const std::vector<int> columns = shown_columns(range.left, grid_->columns());
    std::vector<CellText> cells;
    int without_place = 0;
    for (int line = 0; line < height * down; ++line) {
        const QStringList& source = given[static_cast<std::size_t>(line % height)];
        for (int at = 0; at < width * across; ++at) {
            if (at % width >= source.size()) continue;
            const std::string text = from_qt(source[at % width]);
            if (static_cast<std::size_t>(at) < columns.size() && range.top + line <= grid_->rows())
                cells.push_back({columns[static_cast<std::size_t>(at)], range.top + line, text});
            else
                without_place += text.empty() ? 0 : 1;
        }
    }
    range.bottom = last_row;
    if (!columns.empty())
        range.right = columns[std::min(columns.size(), static_cast<std::size_t>(width * across)) - 1];
    select_range(range);
    if (!write_cells(tr("Pasting cells"), cells, without_place)) give_rows_back();
}

void GridView::fill_down() {
    if (!grid_) return;
    const Range range = selected_range();
    // A single row is filled from the one above it.
    const int source = range.bottom == range.top ? range.top - 1 : range.top;
    if (source < 1) {
        acts_->tell(tr("Select the rows to fill first."));
        return;
    }
    std::vector<CellText> cells;
    for (const int column : shown_columns(range.left, range.right))
        for (int row = source + 1; row <= range.bottom; ++row)
            cells.push_back({column, row, grid_->text(column, source)});
    write_cells(tr("Filling cells"), cells);
}

} // namespace levora::desktop
