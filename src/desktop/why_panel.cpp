#include "desktop/why_panel.h"

#include "desktop/grid_view.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "desktop/windows.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <unordered_map>

namespace levora::desktop {

using widgets::Explanation;

namespace {

constexpr int panel_width = 460;

QLabel* add_words(QVBoxLayout& layout, const QString& words, const char* kind) {
    auto* label = new QLabel(words);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty(kind, true);
    layout.addWidget(label);
    return label;
}

Explanation explain_place(const widgets::Control& control) {
    const auto* grid = widgets::as_if<widgets::Grid>(&control);
    return grid ? explain(*grid, grid->active_column(), grid->active_row()) : explain(control);
}

// Where on the screen the figure stands.
QRect place_of(QWidget& figure) {
    auto* view = qobject_cast<GridView*>(&figure);
    if (!view) return {figure.mapToGlobal(QPoint()), figure.size()};
    const QRect cell = view->visualRect(view->currentIndex());
    return {view->viewport()->mapToGlobal(cell.topLeft()), cell.size()};
}

// The pages of tabs that the widget stands on come to the front.
void choose_tabs(ScreenWindow& window, const QWidget& widget) {
    for (const QWidget* page = &widget; page && page != &window; page = page->parentWidget()) {
        QWidget* stack = page->parentWidget();
        auto* pages = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
        if (!pages || !window.attached()) continue;
        auto* tabs = widgets::as_if<widgets::Tabs>(window.form()->find(from_qt(pages->objectName())));
        const int tab = pages->indexOf(page);
        if (tabs && tab >= 0 && tab != tabs->tab()) window.act([tabs, tab] { tabs->choose(tab); });
    }
}

bool is_open(const ScreenWindow* window) {
    return window && window->attached() && window->form()->visible();
}

// Presses the button, or the cell of a button, that brings a source into view.
bool press(const Explanation::Way::Opener& opener, Windows& windows) {
    ScreenWindow* window = windows.find(opener.screen);
    if (!is_open(window)) return false;
    widgets::Control* control = window->form()->find(opener.control);
    if (!control) return false;
    if (auto* button = widgets::as_if<widgets::Button>(control)) {
        window->act([button] { button->click(); });
    } else if (auto* grid = widgets::as_if<widgets::Grid>(control)) {
        window->act([grid, &opener] {
            grid->set_active(opener.column > 0 ? opener.column : grid->active_column(), opener.row);
            grid->press(grid->active_column(), grid->active_row());
        });
    }
    return true;
}

// The sentence as a tool tip of what is computed.
class WhyTips final : public QObject {
public:
    explicit WhyTips(ScreenWindow& window) : QObject(&window), window_(window) {
        for (const widgets::Control* control : window.form()->controls()) {
            const Binding* binding = window.binding_of(*control);
            if (!binding || !binding->widget()) continue;
            QWidget* widget = binding->widget();
            if (auto* view = qobject_cast<GridView*>(widget)) widget = view->viewport();
            controls_[widget] = control;
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ToolTip || !window_.attached()) return false;
        const auto found = controls_.find(watched);
        if (found == controls_.end()) return false;
        auto* widget = static_cast<QWidget*>(watched);
        const QPoint at = static_cast<QHelpEvent*>(event)->pos();
        QRect place = widget->rect();
        Explanation why;
        if (const auto* grid = widgets::as_if<widgets::Grid>(found->second)) {
            auto& view = static_cast<GridView&>(*widget->parentWidget());
            const QModelIndex index = view.indexAt(at);
            const int column = index.column() + 1;
            const int row = index.row() + 1;
            if (!index.isValid() || column > grid->columns() || row > grid->rows()) return false;
            if (!grid->note(column, row).empty()) return false;
            why = explain(*grid, column, row);
            place = view.visualRect(index);
        } else {
            why = explain(*found->second);
        }
        if (why.ways.empty()) return false; // typed
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip_text(to_qt(why.sentence)),
                           widget, place);
        return true;
    }

private:
    ScreenWindow& window_;
    std::unordered_map<const QObject*, const widgets::Control*> controls_;
};

void open_panel(const widgets::Control* control, ScreenWindow& window, Windows& windows) {
    const Binding* binding = control ? window.binding_of(*control) : nullptr;
    if (!binding || !binding->widget()) return;
    const Explanation why = explain_place(*control);
    if (why.sentence.empty()) {
        window.tell(ScreenWindow::tr("Nothing works this out: it is typed, chosen or stored."));
        return;
    }
    auto* panel = new WhyPanel(why, *binding->widget());
    QObject::connect(
        panel, &WhyPanel::chosen, &windows,
        [why, from = QPointer<ScreenWindow>(&window), &windows](int way) {
            if (from) go_to(why.ways.at(static_cast<std::size_t>(way)), *from, windows);
        },
        Qt::QueuedConnection);
    panel->show();
}

} // namespace

WhyPanel::WhyPanel(const Explanation& why, QWidget& figure) : QFrame(figure.window(), Qt::Popup) {
    setObjectName(QStringLiteral("why"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName(tr("Why this figure"));
    setProperty("overlay", true);
    setFixedWidth(panel_width);
    auto* layout = new QVBoxLayout(this);
    add_words(*layout, tr("Why this figure"), "section");
    QLabel* sentence = add_words(*layout, to_qt(why.sentence), "sentence");
    sentence->setObjectName(QStringLiteral("why_sentence"));
    setAccessibleDescription(sentence->text());
    for (int way = 0; way < static_cast<int>(why.ways.size()); ++way) {
        const QString words = to_qt(why.ways[static_cast<std::size_t>(way)].words);
        auto* source = new QPushButton(fontMetrics()
                                           .elidedText(words, Qt::ElideRight, panel_width - 60)
                                           .replace(QLatin1Char('&'), QStringLiteral("&&")));
        source->setAccessibleName(tr("Go to %1").arg(words));
        source->setProperty("link", true);
        source->setAutoDefault(true); // Enter presses it
        connect(source, &QPushButton::clicked, this, [this, way] {
            close();
            emit chosen(way);
        });
        layout->addWidget(source);
        if (way == 0) source->setFocus(Qt::PopupFocusReason);
    }
    add_words(*layout, why.ways.empty() ? tr("Esc closes") : tr("Tab, Enter: go to a source   Esc: close"),
              "quiet");
    adjustSize();
    const QRect place = place_of(figure);
    const QRect room = figure.screen()->availableGeometry();
    QPoint corner = place.bottomLeft() + QPoint(0, 2);
    if (corner.y() + height() > room.bottom()) corner.setY(place.top() - height() - 2);
    corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
    move(corner.x(), std::max(corner.y(), room.top()));
}

void WhyPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_F1:
        close();
        break;
    case Qt::Key_Down:
        focusNextPrevChild(true);
        break;
    case Qt::Key_Up:
        focusNextPrevChild(false);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void add_why(ScreenWindow& window, Windows& windows) {
    new WhyTips(window);
    QObject::connect(
        &window, &ScreenWindow::explanation_wanted, &window,
        [&window, &windows](const widgets::Control* control) { open_panel(control, window, windows); });
}

bool go_to(const Explanation::Way& way, ScreenWindow& from, Windows& windows) {
    const QPointer<ScreenWindow> teller(&from);
    const auto out_of_reach = [&] {
        if (teller && teller->attached())
            teller->tell(ScreenWindow::tr("%1 can't be reached from here just now.").arg(to_qt(way.words)));
        return false;
    };
    if (!is_open(windows.find(way.screen)) && !press(way.opener, windows)) return out_of_reach();
    ScreenWindow* window = windows.find(way.screen);
    if (!is_open(window)) return out_of_reach();
    const widgets::Control* source = window->form()->find(way.control);
    const Binding* binding = source ? window->binding_of(*source) : nullptr;
    QWidget* widget = binding ? binding->widget() : nullptr;
    if (!widget) return out_of_reach();
    window->window()->raise();
    window->window()->activateWindow();
    choose_tabs(*window, *widget);
    if (!widget->isVisibleTo(window) && way.opener.screen == way.screen) press(way.opener, windows);
    if (!window->attached() || !widget->isVisibleTo(window)) return out_of_reach();
    if (auto* view = qobject_cast<GridView*>(widget); view && way.row > 0) {
        window->act([&] {
            if (way.column <= view->grid()->columns() && way.row <= view->grid()->rows())
                view->grid()->set_active(way.column, way.row);
        });
        view->scrollTo(view->currentIndex());
    }
    widget->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace levora::desktop
