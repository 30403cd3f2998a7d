#include "desktop/access_keys.h"
#include "desktop/grid_view.h"
#include "desktop/key_names.h"
#include "desktop/overlays.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

// Keys and the focus of a screen's window.
namespace levora::desktop {

using widgets::Control;

bool ScreenWindow::key_pressed(const QKeyEvent& event, QObject* watched) {
    const std::string name = key_name(event);
    const bool plain_typing = types_character(event) || name.empty();
    if (!plain_typing) {
        // The screen sees it before its controls do.
        bool answered = false;
        if (!act([&] { answered = form_->press_key(name); }) || answered) return true;
    }
    if (name == "Escape")
        if (const auto* widget = qobject_cast<QWidget*>(watched))
            if (QPushButton* cancel = cancel_of_overlay(*widget)) {
                cancel->click();
                return true;
            }
    if (name == "Enter" && !qobject_cast<GridView*>(watched)) {
        if (auto* button = qobject_cast<QPushButton*>(watched)) {
            button->click();
            return true;
        }
        if (auto* box = qobject_cast<QComboBox*>(watched); box && box->view() && box->view()->isVisible())
            return false;
        if (auto* widget = qobject_cast<QWidget*>(watched)) {
            // Enter moves on to the next field, as Tab does.
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &tab);
            return true;
        }
    }
    return false;
}

// What is in view has an access key each; what an open panel covers has given its own up.
void ScreenWindow::share_access_keys() {
    QStringList captions;
    std::vector<QAbstractButton*> buttons;
    for (const auto& binding : bindings_) {
        auto* button = qobject_cast<QAbstractButton*>(binding->widget());
        if (!button || !button->isVisible()) continue;
        if (button->shortcut().isEmpty()) continue;
        captions += button->text();
        buttons.push_back(button);
    }
    const QStringList own = with_own_keys(captions);
    for (std::size_t at = 0; at < buttons.size(); ++at)
        if (buttons[at]->text() != own[static_cast<qsizetype>(at)])
            buttons[at]->setText(own[static_cast<qsizetype>(at)]);
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    if (form_ && !types_character(*event)) {
        const std::string name = key_name(*event);
        bool answered = false;
        if (!name.empty() && (!act([&] { answered = form_->press_key(name); }) || answered)) return;
    }
    QMainWindow::keyPressEvent(event);
}

void ScreenWindow::focus_came(Control& control, QObject* widget, Qt::FocusReason reason) {
    history_.end_run();
    select_on_release_ = reason == Qt::MouseFocusReason;
    // A window that comes back leaves its active control alone; one that is new has none yet.
    if (reason == Qt::PopupFocusReason ||
        (reason == Qt::ActiveWindowFocusReason && form_->active_control() != nullptr))
        return;
    if (qobject_cast<GridView*>(widget)) return; // enters by itself, once its cell is known
    if (!act([&] { control.enter(); })) return;
    tell(to_qt(control.tooltip()));
    // Entering a field selects all of it.
    auto* line = qobject_cast<QLineEdit*>(widget);
    if (auto* list = qobject_cast<QComboBox*>(widget)) line = list->lineEdit();
    if (!line || reason == Qt::MouseFocusReason) return;
    // After the field's own answer to the focus, which moves the cursor of a mask.
    QMetaObject::invokeMethod(
        line,
        [line] {
            if (line->hasFocus()) line->selectAll();
        },
        Qt::QueuedConnection);
}

bool ScreenWindow::focus_goes(Control& control) {
    history_.end_run();
    bool let_go = true;
    if (!act([&] { let_go = control.leave(); })) return true;
    return let_go;
}

void ScreenWindow::cell_entered(const widgets::Grid& grid, int column, int row) {
    if (column > grid.columns() || row > grid.rows()) return;
    const QString note = to_qt(grid.note(column, row)).simplified();
    // A label's text may be longer than its cell.
    const QString text = to_qt(grid.text(column, row));
    QString words = note;
    if (words.isEmpty() && grid.cell_locked(column, row) &&
        grid.cell_kind(column, row) == widgets::CellKind::text)
        words = text;
    tell(words);
}

} // namespace levora::desktop
