#include "desktop/acts.h"
#include "desktop/grid_view.h"
#include "desktop/qt_text.h"
#include "widgets/grid.h"

#include <QApplication>
#include <QClipboard>
#include <QItemSelection>

// Cells to and from the clipboard, as tab-separated lines that spreadsheet programs give and take.
namespace levora::desktop {

namespace {

struct Rectangle {
    int left = 0; // from 1, all bounds within
    int top = 0;
    int right = -1;
    int bottom = -1;
};

Rectangle selected(const GridView& view) {
    const QItemSelection selection = view.selectionModel()->selection();
    if (selection.isEmpty()) {
        const QModelIndex at = view.currentIndex();
        return {at.column() + 1, at.row() + 1, at.column() + 1, at.row() + 1};
    }
    const QItemSelectionRange& range = selection.first();
    return {range.left() + 1, range.top() + 1, range.right() + 1, range.bottom() + 1};
}

bool takes_text(const widgets::Grid& grid, int column, int row) {
    return !grid.cell_locked(column, row) && grid.cell_kind(column, row) != widgets::CellKind::button;
}

QString skipped_words(int locked, int refused) {
    QString words;
    if (locked > 0) words = GridView::tr("%n locked cell(s) left as they were.", nullptr, locked);
    if (refused > 0)
        words += (words.isEmpty() ? QString() : QStringLiteral(" ")) +
                 GridView::tr("%n value(s) did not fit their cells.", nullptr, refused);
    return words;
}

} // namespace

void GridView::copy() const {
    if (!grid_) return;
    const Rectangle range = selected(*this);
    QStringList lines;
    for (int row = range.top; row <= range.bottom; ++row) {
        QStringList cells;
        for (int column = range.left; column <= range.right; ++column)
            if (!grid_->hidden(column)) {
                QString cell = to_qt(grid_->text(column, row));
                cells += cell.replace(QLatin1Char('\t'), QLatin1Char(' '))
                             .replace(QLatin1Char('\n'), QLatin1Char(' '));
            }
        lines += cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void GridView::clear_selected() {
    if (!grid_) return;
    const Rectangle range = selected(*this);
    int locked = 0;
    acts_->begin_step();
    for (int row = range.top; grid_ && row <= range.bottom; ++row)
        for (int column = range.left; grid_ && column <= range.right; ++column) {
            if (grid_->hidden(column) || grid_->text(column, row).empty()) continue;
            if (!takes_text(*grid_, column, row))
                ++locked;
            else
                acts_->edit_cell(*grid_, column, row, {});
        }
    acts_->end_step();
    acts_->tell(skipped_words(locked, 0));
}

void GridView::cut() {
    copy();
    clear_selected();
}

void GridView::paste() {
    if (!grid_) return;
    QString text = QApplication::clipboard()->text();
    text.remove(QLatin1Char('\r'));
    if (text.endsWith(QLatin1Char('\n'))) text.chop(1);
    if (text.isEmpty()) return;
    const QStringList lines = text.split(QLatin1Char('\n'));
    Rectangle range = selected(*this);
    const bool single = lines.size() == 1 && !lines.first().contains(QLatin1Char('\t'));
    const int first_column = range.left;
    int locked = 0;
    int refused = 0;
    const auto put = [&](int column, int row, const QString& cell) {
        if (!grid_ || column > grid_->columns() || row > grid_->rows()) {
            ++refused;
            return;
        }
        if (to_qt(grid_->text(column, row)) == cell) return;
        if (!takes_text(*grid_, column, row))
            ++locked;
        else if (!acts_->edit_cell(*grid_, column, row, from_qt(cell)))
            ++refused;
    };
    acts_->begin_step();
    if (single) { // one value goes into every selected cell
        for (int row = range.top; row <= range.bottom; ++row)
            for (int column = range.left; column <= range.right; ++column)
                if (grid_ && !grid_->hidden(column)) put(column, row, lines.first());
    } else {
        int row = range.top;
        for (const QString& line : lines) {
            int column = first_column;
            for (const QString& cell : line.split(QLatin1Char('\t'))) {
                while (grid_ && column <= grid_->columns() && grid_->hidden(column))
                    ++column;
                put(column++, row, cell);
            }
            ++row;
        }
    }
    acts_->end_step();
    acts_->tell(skipped_words(locked, refused));
}

void GridView::fill_down() {
    if (!grid_) return;
    const Rectangle range = selected(*this);
    if (range.bottom == range.top) {
        acts_->tell(tr("Select the rows to fill first."));
        return;
    }
    int locked = 0;
    int refused = 0;
    acts_->begin_step();
    for (int column = range.left; column <= range.right; ++column)
        for (int row = range.top + 1; grid_ && row <= range.bottom; ++row) {
            const std::string source = grid_->text(column, range.top);
            if (grid_->hidden(column) || source == grid_->text(column, row)) continue;
            if (!takes_text(*grid_, column, row))
                ++locked;
            else if (!acts_->edit_cell(*grid_, column, row, source))
                ++refused;
        }
    acts_->end_step();
    acts_->tell(skipped_words(locked, refused));
}

} // namespace levora::desktop
