#pragma once

#include <QHeaderView>

namespace levora::desktop {

// A header of a grid whose edges a person can drag. The first sections of a header above columns can
// stand in view while the others scroll beneath them.
class GridHeader final : public QHeaderView {
    Q_OBJECT

public:
    GridHeader(Qt::Orientation orientation, QWidget* parent);

    // How many sections from the first one stay in view.
    void set_frozen(int sections);
    [[nodiscard]] int frozen() const { return frozen_; }
    // Their width together; 0 while nothing is scrolled, as they stand in their own places then.
    [[nodiscard]] int covered() const;
    // The view sets the breadth. Without this, each laying out of the view would measure the words of up
    // to two hundred sections, only to be overruled.
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }

signals:
    void sized_by_hand(int section);
    // A double click on the edge of a section.
    void fit_wanted(int section);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    struct Grip {
        int section = -1; // whose edge lies under the mouse
        bool inside = false;
    };
    [[nodiscard]] Grip grip_at(int x) const;

    int frozen_ = 0;
    bool by_hand_ = false;
    int dragged_ = -1; // a section that stays in view, by its edge
    int drag_from_ = 0;
};

} // namespace levora::desktop
