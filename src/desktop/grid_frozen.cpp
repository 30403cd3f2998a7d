#include "desktop/grid_header.h"
#include "desktop/grid_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionViewItem>

#include <algorithm>

// Columns that stay in view while the others scroll beneath them: where a cell is, which cell is where,
// and what a selection holds when a place alone no longer tells.
namespace levora::desktop {

QModelIndex GridView::indexAt(const QPoint& place) const {
    if (place.x() < 0 || place.x() >= column_header_->covered()) return QTableView::indexAt(place);
    int edge = 0;
    for (int section = 0; section < column_header_->frozen(); ++section) {
        edge += columnWidth(section);
        if (place.x() < edge) return model()->index(rowAt(place.y()), section);
    }
    return {};
}

QRect GridView::visualRect(const QModelIndex& index) const {
    QRect place = QTableView::visualRect(index);
    if (index.column() >= column_header_->frozen() || column_header_->covered() == 0) return place;
    int left = 0;
    for (int section = 0; section < index.column(); ++section)
        left += columnWidth(section);
    place.moveLeft(left);
    return place;
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int sideways = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (index.column() < column_header_->frozen()) {
        horizontalScrollBar()->setValue(sideways);
        return;
    }
    const int hidden = column_header_->covered() - visualRect(index).left();
    if (hidden > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    // What stands in view was moved along with the rest.
    if (dx == 0 || column_header_->frozen() == 0) return;
    viewport()->update();
    column_header_->viewport()->update();
}

void GridView::paint_frozen(const QRegion& region) {
    const int covered = column_header_->covered();
    if (covered == 0 || !model() || !region.intersects(QRect(0, 0, covered, viewport()->height()))) return;
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.showDecorationSelected = true;
    const auto line = QColor::fromRgba(
        static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this)));
    const int first = std::max(rowAt(0), 0);
    int last = rowAt(viewport()->height() - 1);
    if (last < 0) last = model()->rowCount() - 1;
    int bottom = 0;
    for (int row = first; row <= last; ++row)
        for (int section = 0; section < column_header_->frozen(); ++section) {
            const QModelIndex index = model()->index(row, section);
            option.rect = visualRect(index);
            option.state = isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
            if (selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
            painter.fillRect(option.rect, palette().brush(QPalette::Base));
            itemDelegate()->paint(&painter, option, index);
            painter.setPen(line);
            bottom = option.rect.bottom() + 1;
            painter.drawLine(option.rect.left(), bottom, option.rect.right() + 1, bottom);
            painter.drawLine(option.rect.right() + 1, option.rect.top(), option.rect.right() + 1, bottom);
        }
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(covered - 1, 0, covered - 1, bottom);
}

// --- selecting ---

void GridView::mousePressEvent(QMouseEvent* event) {
    extending_ = event->modifiers() & Qt::ShiftModifier;
    if (!extending_)
        if (const QModelIndex pressed = indexAt(event->position().toPoint()); pressed.isValid())
            anchor_ = pressed;
    QTableView::mousePressEvent(event);
    extending_ = false;
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    extending_ = event->buttons() & Qt::LeftButton;
    QTableView::mouseMoveEvent(event);
    extending_ = false;
}

void GridView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    const QModelIndex to = indexAt(rect.bottomRight());
    if (!extending_ || !anchor_.isValid() || !to.isValid()) {
        QTableView::setSelection(rect, command);
        return;
    }
    const QModelIndex from =
        model()->index(std::min(anchor_.row(), to.row()), std::min(anchor_.column(), to.column()));
    const QModelIndex end =
        model()->index(std::max(anchor_.row(), to.row()), std::max(anchor_.column(), to.column()));
    selectionModel()->select(QItemSelection(from, end), command);
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (const int covered = column_header_->covered())
        viewport()->update(0, 0, covered, viewport()->height());
}

} // namespace levora::desktop
