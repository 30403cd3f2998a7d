#include "desktop/grid_model.h"

#include "desktop/look.h"
#include "desktop/qt_text.h"
#include "widgets/grid.h"

#include <QApplication>
#include <QBrush>
#include <QPalette>

namespace levora::desktop {

using widgets::CellKind;
using widgets::Grid;

namespace {

// "-1234.5", nothing before or behind it.
bool is_plain_figure(const std::string& text) {
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const auto digits = [&text, &at] {
        const std::size_t begin = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9')
            ++at;
        return at > begin;
    };
    if (!digits()) return false;
    if (at < text.size() && text[at] == '.') {
        ++at;
        if (!digits()) return false;
    }
    return at == text.size();
}

bool stands_right(const Grid& grid, int column, int row) {
    const widgets::CellDesign& design = grid.design(column, row);
    switch (design.kind) {
    case CellKind::number:
    case CellKind::percent:
        return true;
    case CellKind::text:
        return design.figure && is_plain_figure(grid.text(column, row));
    case CellKind::combo:
        return is_plain_figure(grid.text(column, row));
    default:
        return false;
    }
}

} // namespace

QString row_words(const Grid& grid, int row) {
    const bool labelled = grid.columns() > 1 && grid.cell_locked(1, row) && !shown_text(grid, 1, row).empty();
    if (labelled) return plain_words(shown_text(grid, 1, row));
    const QString header = plain_words(grid.row_header(row));
    const QString number = QString::number(row);
    return header.isEmpty() || header == number ? QStringLiteral("row ") + number : header;
}

std::string shown_text(const Grid& grid, int column, int row) {
    const std::string& text = grid.text(column, row);
    const widgets::CellDesign& design = grid.design(column, row);
    if (design.kind == CellKind::check) return design.caption;
    const bool grouped = design.kind == CellKind::number
                             ? design.grouped
                             : (design.figure || design.kind == CellKind::button) && is_plain_figure(text);
    return grouped ? group_indian_text(text) : text;
}

GridModel::GridModel(const Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(&grid), rows_(grid.rows()), columns_(grid.columns()) {}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    // The grid may be ahead of the counts that the view knows.
    if (!grid_ || column > grid_->columns() || row > grid_->rows()) return {};
    const CellKind kind = grid_->cell_kind(column, row);
    switch (role) {
    case Qt::DisplayRole:
        return to_qt(shown_text(*grid_, column, row));
    case Qt::EditRole:
        return to_qt(grid_->text(column, row));
    case Qt::TextAlignmentRole: {
        const bool figure = stands_right(*grid_, column, row);
        const bool centred = kind == CellKind::button;
        return QVariant((figure    ? Qt::AlignRight
                         : centred ? Qt::AlignHCenter
                                   : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    }
    case Qt::BackgroundRole: {
        const widgets::Color color = grid_->cell_backcolor(column, row);
        if (color) return QBrush(ground_of(*color, QApplication::palette()));
        if (grid_->cell_locked(column, row)) return QBrush(locked_ground(QApplication::palette()));
        return {};
    }
    case Qt::CheckStateRole:
        if (kind != CellKind::check) return {};
        return grid_->text(column, row) == "1" ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole: {
        const std::string& note = grid_->note(column, row);
        return note.empty() ? QVariant() : QVariant(to_qt(note));
    }
    case Qt::AccessibleTextRole:
        return QStringLiteral("%1, %2: %3")
            .arg(row_words(*grid_, row), plain_words(grid_->header(column)),
                 kind == CellKind::check ? (grid_->text(column, row) == "1" ? QStringLiteral("ticked")
                                                                            : QStringLiteral("not ticked"))
                                         : to_qt(shown_text(*grid_, column, row)));
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_ || role != Qt::DisplayRole) return {};
    if (orientation == Qt::Horizontal)
        return section < grid_->columns() ? to_qt(grid_->header(section + 1)) : QString();
    return section < grid_->rows() ? to_qt(grid_->row_header(section + 1)) : QString();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    if (!grid_ || column > grid_->columns() || row > grid_->rows()) return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const CellKind kind = grid_->cell_kind(column, row);
    if (!grid_->cell_locked(column, row) && kind != CellKind::button && kind != CellKind::check)
        flags |= Qt::ItemIsEditable;
    return flags;
}

void GridModel::take_counts() {
    if (!grid_) return;
    const int rows = grid_->rows();
    const int columns = grid_->columns();
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (columns > columns_) {
        beginInsertColumns({}, columns_, columns - 1);
        columns_ = columns;
        endInsertColumns();
    } else if (columns < columns_) {
        beginRemoveColumns({}, columns, columns_ - 1);
        columns_ = columns;
        endRemoveColumns();
    }
}

void GridModel::headers_changed() {
    if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    if (rows_ > 0) emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
}

void GridModel::cell_changed(int column, int row) {
    if (rows_ == 0 || columns_ == 0) return;
    const int first_column = column < 1 ? 0 : column - 1;
    const int last_column = column < 1 ? columns_ - 1 : column - 1;
    const int first_row = row < 1 ? 0 : row - 1;
    const int last_row = row < 1 ? rows_ - 1 : row - 1;
    if (last_column >= columns_ || last_row >= rows_) return; // not yet known here
    emit dataChanged(index(first_row, first_column), index(last_row, last_column));
}

void GridModel::detach() {
    beginResetModel();
    grid_ = nullptr;
    rows_ = columns_ = 0;
    endResetModel();
}

} // namespace levora::desktop
