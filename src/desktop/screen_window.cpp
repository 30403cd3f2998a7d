#include "desktop/screen_window.h"

#include "desktop/form_loader.h"
#include "desktop/grid_view.h"
#include "desktop/long_work.h"
#include "desktop/look.h"
#include "desktop/page_view.h"
#include "desktop/person.h"
#include "desktop/qt_text.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>

namespace levora::desktop {

using widgets::Aspect;
using widgets::Control;
using widgets::ControlKind;
using widgets::Form;

namespace {

// Where another screen's window stands in this one; null when it has no room for one.
QWidget* place_inside(const ScreenWindow* around) {
    return around ? around->centralWidget()->findChild<QWidget*>(QStringLiteral("inside")) : nullptr;
}

} // namespace

ScreenWindow::ScreenWindow(Form& form, ScreenWindow* around)
    : QMainWindow(place_inside(around)), form_(&form), inside_(parentWidget() != nullptr) {
    if (inside_) setWindowFlags(Qt::Widget);
    setObjectName(to_qt(form.name() + "_window"));
    setWindowTitle(to_qt(form.caption()));
    FormLoader loader;
    QWidget* content = loader.load_screen(form.name(), this);
    if (!content) {
        faults_ += tr("%1 has no layout").arg(to_qt(form.name()));
        content = new QWidget(this);
    }
    const QSize told = content->size();
    setCentralWidget(content);
    foot_ = new QLabel(this);
    statusBar()->addWidget(foot_, 1);
    statusBar()->setSizeGripEnabled(false);
    tie_controls();
    tie_commands();
    resize(told);
    if (inside_) {
        parentWidget()->layout()->addWidget(this);
        around->statusBar()->hide(); // the one inside tells
        // Its keys stand for both: the same key twice in one window would count as none.
        for (QShortcut* key : around->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly))
            key->setEnabled(false);
    } else {
        restore_place();
    }
    form.view = this;
}

ScreenWindow::~ScreenWindow() {
    if (form_) form_->view = nullptr;
}

// --- tying ---

void ScreenWindow::tie_controls() {
    // Each name is looked up here, once: a search of the whole window per control would cost more.
    for (QWidget* widget : centralWidget()->findChildren<QWidget*>())
        by_name_.insert(widget->objectName(), widget);
    for (Control* control : form_->controls())
        tie(*control);
    for (const auto& binding : bindings_)
        binding->refresh_all();
}

void ScreenWindow::tie(Control& control) {
    QWidget* widget = by_name_.value(to_qt(control.name()));
    const QString needed = QLatin1String(widget_class_of(control.kind()));
    if (needed.isEmpty() && control.kind() != ControlKind::timer) return;
    if (!widget && control.kind() != ControlKind::timer) {
        faults_ += tr("%1 has no widget").arg(to_qt(control.name()));
        return;
    }
    std::unique_ptr<Binding> binding = bind(control, widget, *this, history_);
    if (!binding) {
        faults_ += tr("%1 is no %2").arg(to_qt(control.name()), needed);
        return;
    }
    by_control_[&control] = binding.get();
    if (widget) {
        by_widget_[widget] = binding.get();
        widget->installEventFilter(this);
        if (auto* label =
                qobject_cast<QLabel*>(by_name_.value(QStringLiteral("label_") + to_qt(control.name())))) {
            label->setText(to_qt(control.label).simplified());
            label->setBuddy(widget);
            binding->set_label(label);
        }
        name_for_readers(control, *widget);
        if (auto* view = qobject_cast<GridView*>(widget))
            connect(view, &GridView::cell_entered, this, [this, view](int column, int row) {
                if (view->grid()) cell_entered(*view->grid(), column, row);
            });
    }
    bindings_.push_back(std::move(binding));
}

std::string ScreenWindow::frame_words(const QWidget& widget) const {
    for (const QWidget* around = widget.parentWidget(); around; around = around->parentWidget()) {
        const auto* frame = widgets::as_if<widgets::Frame>(form_->find(from_qt(around->objectName())));
        if (frame && !frame->caption().empty()) return frame->caption();
    }
    return form_->caption();
}

void ScreenWindow::name_for_readers(const Control& control, QWidget& widget) const {
    std::string words = control.label;
    if (words.empty()) words = control.tag;
    // A grid is called as the frame that it fills, the tabs as their window.
    if (words.empty() && control.kind() == ControlKind::grid) words = frame_words(widget);
    if (words.empty() && control.kind() == ControlKind::tabs) words = form_->caption();
    QString name = plain_words(words);
    // "Yes" alone would not tell what it answers.
    if (control.kind() == ControlKind::tick_box && !name.isEmpty())
        if (const QString caption = plain_words(static_cast<const widgets::TickBox&>(control).caption());
            !caption.isEmpty() && caption != name)
            name += QStringLiteral(" ") + caption;
    // The layout's own word goes before the label.
    if (!widget.accessibleName().isEmpty()) name = widget.accessibleName();
    if (!name.isEmpty()) widget.setAccessibleName(name);
    widget.setAccessibleDescription(to_qt(control.tooltip()));
    if (auto* box = qobject_cast<QComboBox*>(&widget); box && box->lineEdit())
        box->lineEdit()->setAccessibleName(name);
}

void ScreenWindow::tie_commands() {
    const auto on = [this](const QKeySequence& keys, auto&& what) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, what);
    };
    on(QKeySequence::Undo, [this] { undo(); });
    on(QKeySequence(QStringLiteral("Ctrl+Y")), [this] { redo(); });
    on(QKeySequence(QStringLiteral("Ctrl+Shift+Z")), [this] { redo(); });
    on(QKeySequence(QStringLiteral("Ctrl+S")), [this] { press_button({"cmdSave1", "cmdSave"}); });
    if (auto* pages = centralWidget()->findChild<PageView*>())
        on(QKeySequence(QStringLiteral("Ctrl+P")), [pages] { emit pages->print_asked(); });
    else
        on(QKeySequence(QStringLiteral("Ctrl+P")), [this] { press_button({"cmdPrint", "cmdPreview"}); });
    // Not the sheet: its close box ends the program without saving and without a question.
    if (form_->name() != "frmWealthMain")
        on(QKeySequence(QStringLiteral("Ctrl+W")), [this] { window()->close(); });
    // What is only looked at goes away as a box does.
    for (const char* looked_at : {"frmRepPreview", "frmSprPreview", "frmReturnCheck"})
        if (form_->name() == looked_at) on(QKeySequence(QStringLiteral("Esc")), [this] { close(); });
    if (form_->name() == "frmPrint")
        on(QKeySequence(QStringLiteral("Esc")), [this] { press_button({"cmdCancel"}); });
    on(QKeySequence(QStringLiteral("F1")), [this] {
        if (!attached()) return;
        emit explanation_wanted(control_of(QApplication::focusWidget()));
    });
}

void ScreenWindow::press_button(std::initializer_list<const char*> names) {
    if (!attached()) return;
    for (const char* name : names)
        if (const Control* control = form_->find(name); control && control->kind() == ControlKind::button) {
            // As by the mouse: others listen to the button too.
            if (Binding* binding = binding_of(*control); binding && control->visible())
                static_cast<QPushButton*>(binding->widget())->click();
            return;
        }
}

void ScreenWindow::detach() {
    if (!form_) return;
    emit detaching();
    keep_place();
    for (const auto& binding : bindings_)
        binding->detach();
    form_->view = nullptr;
    form_ = nullptr;
    hide();
}

Binding* ScreenWindow::binding_of(const Control& control) const {
    const auto found = by_control_.find(&control);
    return found == by_control_.end() ? nullptr : found->second;
}

Control* ScreenWindow::control_of(const QObject* widget) const {
    for (; widget && widget != this; widget = widget->parent())
        if (const auto found = by_widget_.find(widget); found != by_widget_.end())
            return &found->second->control();
    return nullptr;
}

// --- what the screen tells ---

void ScreenWindow::control_changed(const Control& control, Aspect aspect) {
    if (Binding* binding = binding_of(control)) binding->refresh(aspect);
    if (control.kind() == ControlKind::text_field && aspect == Aspect::content) emit figure_changed();
}

void ScreenWindow::cell_changed(const widgets::Grid& grid, int column, int row) {
    if (Binding* binding = binding_of(grid))
        static_cast<GridView*>(binding->widget())->cell_changed(column, row);
}

void ScreenWindow::active_cell_changed(const widgets::Grid& grid) {
    if (Binding* binding = binding_of(grid)) static_cast<GridView*>(binding->widget())->active_cell_changed();
}

void ScreenWindow::form_changed(const Form& form) {
    setWindowTitle(to_qt(form.caption()));
    if (centralWidget()->isEnabled() != form.enabled()) centralWidget()->setEnabled(form.enabled());
    if (form.busy())
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
    if (!form.visible() && isVisible()) hide(); // that it comes up is told on its own
}

void ScreenWindow::follow_visibility() {
    if (!form_) return;
    if (!form_->visible()) {
        hide();
        return;
    }
    if (!inside_) setWindowModality(form_->modal() ? Qt::ApplicationModal : Qt::NonModal);
    show();
    raise();
    activateWindow();
    share_access_keys();
    emit came_up();
}

void ScreenWindow::form_raised(const Form&) {
    show();
    raise();
    activateWindow();
}

void ScreenWindow::popup_wanted(const Form& form, const widgets::Menu& menu) {
    auto* popup = new QMenu(this);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setAccessibleName(plain_words(menu.caption()));
    for (Control* control : form.controls()) {
        auto* item = widgets::as_if<widgets::MenuItem>(control);
        if (!item || &item->menu() != &menu || !item->visible()) continue;
        QAction* action = popup->addAction(to_qt(item->caption()));
        action->setEnabled(item->enabled());
        connect(action, &QAction::triggered, this, [this, item] {
            if (attached()) act([item] { item->click(); });
        });
    }
    if (auto* view = qobject_cast<GridView*>(QApplication::focusWidget())) {
        popup->addSeparator();
        connect(popup->addAction(tr("Copy Cells")), &QAction::triggered, view, &GridView::copy);
        connect(popup->addAction(tr("Paste Cells")), &QAction::triggered, view, &GridView::paste);
        connect(popup->addAction(tr("Fill Down")), &QAction::triggered, view, &GridView::fill_down);
    }
    popup->popup(QCursor::pos());
}

// --- what a person does ---

bool ScreenWindow::act(const std::function<void()>& what) {
    if (!form_) return false;
    what();
    if (!form_) return false;
    bool timer_runs = false;
    for (const Control* control : form_->controls())
        if (const auto* timer = widgets::as_if<widgets::Timer>(control))
            timer_runs = timer_runs || timer->running();
    for (const auto& binding : bindings_)
        binding->slide(timer_runs ? Binding::Sliding::yes : Binding::Sliding::no);
    share_access_keys();
    emit settled();
    return form_ != nullptr;
}

void ScreenWindow::tell(const QString& words) {
    foot_->setText(words);
}

bool ScreenWindow::edit_cell(widgets::Grid& grid, int column, int row, const std::string& text) {
    const std::string name = grid.name();
    const std::string before = text_at(grid, column, row);
    bool done = false;
    if (!act([&] { done = replace_text(grid, column, row, text); })) return true;
    if (done) {
        history_.add({name, column, row, before, text_at(grid, column, row)});
        tell({});
    }
    return done;
}

void ScreenWindow::keep_edit(const widgets::Grid& grid, int column, int row, const std::string& before) {
    history_.add({grid.name(), column, row, before, text_at(grid, column, row)});
}

void ScreenWindow::give_up_step() {
    if (!history_.end_step() || !attached()) return;
    LongWork work(this, tr("Taking back"), history_.edits_to_undo());
    work.settle();
    act([this, &work] { history_.take_back(*form_, [&work](int done) { work.go_on(done); }); });
}

void ScreenWindow::undo() {
    if (!attached()) return;
    int left_alone = 0;
    if (!history_.can_undo()) {
        tell(tr("There is nothing to take back."));
    } else if (act([&] {
                   LongWork work(this, tr("Taking back"), history_.edits_to_undo());
                   work.settle();
                   left_alone = history_.undo(*form_, [&work](int done) { work.go_on(done); });
               })) {
        tell(left_alone == 0 ? tr("Taken back.")
                             : tr("Some places have changed since and stay as they are."));
    }
}

void ScreenWindow::redo() {
    if (!attached()) return;
    int left_alone = 0;
    if (!history_.can_redo()) {
        tell(tr("There is nothing to do again."));
    } else if (act([&] {
                   LongWork work(this, tr("Doing again"), history_.edits_to_redo());
                   work.settle();
                   left_alone = history_.redo(*form_, [&work](int done) { work.go_on(done); });
               })) {
        tell(left_alone == 0 ? tr("Done again.")
                             : tr("Some places have changed since and stay as they are."));
    }
}

void ScreenWindow::replay(const std::vector<Edit>& edits) {
    int refused = 0;
    history_.begin_step();
    for (const Edit& edit : edits) {
        Control* control = attached() ? form_->find(edit.control) : nullptr;
        if (!control) continue;
        const std::string before = text_at(*control, edit.column, edit.row);
        bool done = false;
        if (!act([&] { done = replace_text(*control, edit.column, edit.row, edit.after); })) break;
        if (done)
            history_.add({edit.control, edit.column, edit.row, before, edit.after});
        else
            ++refused;
    }
    history_.end_step();
    tell(refused == 0 ? tr("The figures are back.")
                      : (refused == 1 ? tr("One figure found no place any more.")
                                      : tr("%1 figures found no place any more.").arg(refused)));
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
    if (!form_) return QMainWindow::eventFilter(watched, event);
    Control* control = control_of(watched);
    if (!control) return QMainWindow::eventFilter(watched, event);
    // Only once the list may open: the window comes up sooner without it.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress)
        if (auto* list = qobject_cast<QComboBox*>(watched)) space_items(*list);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (key_pressed(*static_cast<QKeyEvent*>(event), watched)) return true;
        break;
    case QEvent::ShortcutOverride: {
        // Undo is the window's, over all its fields: a field of text would keep it to itself.
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo)) break;
        event->ignore();
        return true;
    }
    case QEvent::FocusIn:
        focus_came(*control, watched, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
            !focus_goes(*control)) {
            auto* widget = qobject_cast<QWidget*>(watched);
            QMetaObject::invokeMethod(
                this, [widget] { widget->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
        }
        break;
    }
    case QEvent::MouseButtonRelease:
        if (auto* line = qobject_cast<QLineEdit*>(watched);
            line && select_on_release_ && !line->hasSelectedText())
            line->selectAll();
        select_on_release_ = false;
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    if (!form_) return;
    event->ignore();
    emit close_asked();
}

// --- place on the desk ---

void ScreenWindow::restore_place() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    resize(size().boundedTo(room.size() - QSize(0, 32)));
    const QSettings places;
    const QByteArray kept = places.value(QStringLiteral("places/") + to_qt(form_->name())).toByteArray();
    if (kept.isEmpty() || !restoreGeometry(kept))
        move(room.center() - QPoint(width() / 2, height() / 2 + 14));
    if (centralWidget()->property("in_corner").toBool()) move(room.topLeft());
}

void ScreenWindow::keep_place() const {
    if (!isVisible() || inside_) return;
    QSettings places;
    places.setValue(QStringLiteral("places/") + to_qt(form_->name()), saveGeometry());
}

} // namespace levora::desktop
