#include "desktop/grid_header.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace levora::desktop {

namespace {
constexpr int grip_width = 4;
}

GridHeader::GridHeader(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(Interactive);
    connect(this, &QHeaderView::sectionResized, this, [this](int section, int, int) {
        if (by_hand_) emit sized_by_hand(section);
    });
}

void GridHeader::set_frozen(int sections) {
    if (frozen_ == sections) return;
    frozen_ = sections;
    viewport()->update();
}

int GridHeader::covered() const {
    if (offset() == 0) return 0;
    int width = 0;
    for (int section = 0; section < std::min(frozen_, count()); ++section)
        width += sectionSize(section);
    return width;
}

GridHeader::Grip GridHeader::grip_at(int x) const {
    if (covered() == 0) return {};
    int edge = 0;
    for (int section = 0; section < frozen_; ++section) {
        edge += sectionSize(section);
        if (std::abs(x - edge) <= grip_width) return {section, true};
    }
    return {-1, x < edge};
}

void GridHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    if (covered() == 0) return;
    QPainter painter(viewport());
    int left = 0;
    for (int section = 0; section < frozen_; ++section) {
        const QRect place(left, 0, sectionSize(section), height());
        painter.save();
        paintSection(&painter, place, section);
        painter.restore();
        left += place.width();
    }
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(left - 1, 0, left - 1, height());
}

void GridHeader::mousePressEvent(QMouseEvent* event) {
    const int x = event->position().toPoint().x();
    const Grip grip = grip_at(x);
    by_hand_ = event->button() == Qt::LeftButton;
    if (!grip.inside) {
        QHeaderView::mousePressEvent(event);
    } else if (by_hand_ && grip.section >= 0) {
        dragged_ = grip.section;
        drag_from_ = sectionSize(dragged_) - x;
    } else if (by_hand_) {
        emit sectionPressed(0);
    }
}

void GridHeader::mouseMoveEvent(QMouseEvent* event) {
    const int x = event->position().toPoint().x();
    if (dragged_ >= 0) {
        resizeSection(dragged_, std::max(minimumSectionSize(), drag_from_ + x));
        return;
    }
    const Grip grip = grip_at(x);
    if (!grip.inside || event->buttons() != Qt::NoButton)
        QHeaderView::mouseMoveEvent(event);
    else if (grip.section >= 0)
        setCursor(Qt::SplitHCursor);
    else
        unsetCursor();
}

void GridHeader::mouseReleaseEvent(QMouseEvent* event) {
    by_hand_ = false;
    if (dragged_ < 0) QHeaderView::mouseReleaseEvent(event);
    dragged_ = -1;
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const Grip grip = grip_at(place.x());
    if (grip.inside) {
        if (grip.section >= 0) emit fit_wanted(grip.section);
        return;
    }
    // The edge belongs to the section before it.
    const int at = orientation() == Qt::Horizontal ? place.x() : place.y();
    int section = logicalIndexAt(at);
    if (section < 0) section = count() - 1;
    while (section >= 0 && isSectionHidden(section))
        --section;
    if (section < 0) return;
    const int begin = sectionViewportPosition(section);
    if (std::abs(at - begin - sectionSize(section)) <= grip_width) {
        emit fit_wanted(section);
    } else if (at - begin <= grip_width) {
        do
            --section;
        while (section >= 0 && isSectionHidden(section));
        if (section >= 0) emit fit_wanted(section);
    }
}

} // namespace levora::desktop
