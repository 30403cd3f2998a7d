#include "desktop/overlays.h"

#include "desktop/grid_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QPushButton>

namespace levora::desktop {

namespace {

constexpr const char* came_from = "came_from"; // the widget that had the focus

QWidget* first_inside(const QWidget& panel) {
    if (auto* grid = panel.findChild<GridView*>()) return grid;
    for (QWidget* each : panel.findChildren<QWidget*>())
        if (each->focusPolicy() & Qt::TabFocus && each->isEnabled()) return each;
    return nullptr;
}

// Buttons outside give their access keys up, or take them back.
void set_access_keys(const QWidget& panel, bool outside) {
    for (QAbstractButton* button : panel.window()->findChildren<QAbstractButton*>())
        if (!panel.isAncestorOf(button))
            button->setShortcut(outside ? QKeySequence::mnemonic(button->text()) : QKeySequence());
}

} // namespace

void overlay_opened(QWidget& panel) {
    QWidget* before = QApplication::focusWidget();
    if (before && !panel.isAncestorOf(before))
        panel.setProperty(came_from, QVariant::fromValue(QPointer<QWidget>(before)));
    set_access_keys(panel, false);
    QWidget* inside = first_inside(panel);
    if (!inside) return;
    inside->setFocus(Qt::OtherFocusReason);
    if (auto* grid = qobject_cast<GridView*>(inside)) grid->leave_label();
}

void overlay_closed(QWidget& panel) {
    set_access_keys(panel, true);
    const auto before = panel.property(came_from).value<QPointer<QWidget>>();
    panel.setProperty(came_from, QVariant());
    if (before && before->isVisible()) before->setFocus(Qt::OtherFocusReason);
}

QPushButton* cancel_of_overlay(const QWidget& inside) {
    const QWidget* panel = &inside;
    while (panel && !panel->property("overlay").toBool())
        panel = panel->parentWidget();
    if (!panel) return nullptr;
    for (QPushButton* button : panel->findChildren<QPushButton*>())
        if (button->objectName().contains(QLatin1String("Cancel"))) return button;
    return nullptr;
}

} // namespace levora::desktop
