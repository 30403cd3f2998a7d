#include "e2e/person.h"

#include "desktop/grid_view.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "widgets/grid.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>

namespace levora::desktop::testing {

namespace {

constexpr int patience = 15'000; // milliseconds until a thing counts as not coming
constexpr int glance = 15;

QRect place_of(const QWidget& widget, const QRect& part) {
    return {widget.mapToGlobal(part.topLeft()), part.size()};
}

QString text_of(const QWidget& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return list->currentText();
    return {};
}

QWidget* box_or_window() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

} // namespace

void Person::start(const RunOptions& options) {
    look([&] {
        ended_ = false;
        run_ = std::make_unique<DesktopRun>(options);
        run_->on_ended = [this] { ended_ = true; };
        return run_->start();
    });
}

void Person::await_end() {
    await("the end of the program", [this] { return ended_; });
    look([this] {
        run_.reset();
        return true;
    });
}

// --- looking ---

void Person::await(const std::string& what, const std::function<bool()>& seen) {
    QElapsedTimer clock;
    clock.start();
    while (!look(seen)) {
        if (clock.elapsed() > patience) {
            look([this] {
                return qApp->primaryScreen()->grabWindow(0).save(pictures_ + QStringLiteral("/failed.png"));
            });
            throw NotSeen(what);
        }
        QThread::msleep(glance);
    }
}

void Person::await_screen(const std::string& screen) {
    screen_ = screen;
    // The window manager may still move a new window about: a click would miss what is on it.
    constexpr int glances_at_rest = 8;
    QPoint place;
    int at_rest = 0;
    await(screen, [&] {
        ScreenWindow* window = run_->windows().find(screen_);
        if (!window || !window->isVisible() || !window->isActiveWindow()) return false;
        at_rest = window->mapToGlobal(QPoint()) == place ? at_rest + 1 : 0;
        place = window->mapToGlobal(QPoint());
        return at_rest >= glances_at_rest;
    });
}

void Person::await_gone(const std::string& screen) {
    await("the end of " + screen, [&] {
        ScreenWindow* window = run_->windows().find(screen);
        return !window || !window->isVisible();
    });
}

template <class Kind> Kind* Person::find(const char* name) const {
    ScreenWindow* window = run_->windows().find(screen_);
    return window ? window->findChild<Kind*>(QString::fromLatin1(name)) : nullptr;
}

void Person::expect(const char* field, const std::string& text) {
    await(std::string(field) + " = " + text, [&] {
        const auto* widget = find<QWidget>(field);
        return widget && text_of(*widget) == to_qt(text);
    });
}

void Person::expect_cell(const char* grid, int column, int row, const std::string& text) {
    await(std::string(grid) + " " + std::to_string(column) + "," + std::to_string(row) + " = " + text, [&] {
        const auto* view = find<GridView>(grid);
        return view && view->model()->index(row - 1, column - 1).data().toString() == to_qt(text);
    });
}

void Person::picture(const std::string& name) {
    look([&] {
        QWidget* shown = box_or_window();
        if (!shown) return false;
        QPixmap taken = shown->grab();
        if (QWidget* popup = QApplication::activePopupWidget())
            QPainter(&taken).drawPixmap(shown->mapFromGlobal(popup->pos()), popup->grab());
        return taken.save(pictures_ + QLatin1Char('/') + to_qt(name) + QStringLiteral(".png"));
    });
}

// --- acting ---

void Person::act(const QStringList& words) {
    if (QProcess::execute(QStringLiteral("xdotool"), words) != 0)
        throw NotSeen("xdotool " + from_qt(words.join(QLatin1Char(' '))));
}

void Person::click_at(const QPoint& place, const QString& button) {
    // The display counts in its own pixels.
    const double scale = look([] { return qApp->devicePixelRatio(); });
    const auto pixel = [scale](int at) { return QString::number(qRound(at * scale)); };
    act({QStringLiteral("mousemove"), pixel(place.x()), pixel(place.y()), QStringLiteral("click"), button});
}

void Person::write(const std::string& text) {
    act({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("4"), QStringLiteral("--"),
         to_qt(text)});
}

void Person::keys(const QStringList& names) {
    act(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("8")} + names);
}

void Person::click(const char* control) {
    QRect place;
    await(screen_ + "." + control, [&] {
        const auto* widget = find<QWidget>(control);
        if (!widget || !widget->isEnabled() || widget->visibleRegion().isEmpty()) return false;
        // A button may be wider than its words, a tick box has its box on the left.
        place = place_of(*widget, widget->visibleRegion().boundingRect());
        return widget->isActiveWindow();
    });
    click_at({place.left() + std::min(place.width() / 2, 60), place.center().y()});
}

void Person::type(const char* field, const std::string& text) {
    click(field);
    await(std::string("the focus in ") + field, [&] {
        const QWidget* widget = find<QWidget>(field);
        return widget->hasFocus() || widget->isAncestorOf(QApplication::focusWidget());
    });
    keys({QStringLiteral("ctrl+a")});
    write(text);
    expect(field, text);
    keys({QStringLiteral("Tab")});
}

void Person::choose_tab(const char* tabs, int page) {
    const QPoint place = look([&] {
        const QTabBar* bar = find<QTabWidget>(tabs)->tabBar();
        return place_of(*bar, bar->tabRect(page)).center();
    });
    click_at(place);
    await(std::string(tabs) + " " + std::to_string(page),
          [&] { return find<QTabWidget>(tabs)->currentIndex() == page; });
}

QRect Person::cell_place(const char* grid, int column, int row) const {
    const auto* view = find<GridView>(grid);
    if (!view || !view->isVisible()) return {};
    const QRect seen = view->visualRect(view->model()->index(row - 1, column - 1)) & view->viewport()->rect();
    return seen.height() < 12 || seen.width() < 20 ? QRect() : place_of(*view->viewport(), seen);
}

void Person::click_cell(const char* grid, int column, int row) {
    await(std::string("grid ") + grid, [&] {
        const auto* view = find<GridView>(grid);
        return view && view->isVisible() && view->isActiveWindow();
    });
    // A cell out of sight is rolled into it, from the top left corner on.
    for (int turn = 0; look([&] { return cell_place(grid, column, row); }).isEmpty(); ++turn) {
        if (turn > 60) throw NotSeen(std::string(grid) + ": the cell never comes into sight");
        QString button;
        const QPoint middle = look([&] {
            const auto* view = find<GridView>(grid);
            const QRect cell = view->visualRect(view->model()->index(row - 1, column - 1));
            const QRect port = view->viewport()->rect();
            button = QString::number(cell.bottom() > port.bottom() ? 5
                                     : cell.top() < port.top()     ? 4
                                     : cell.right() > port.right() ? 7
                                                                   : 6);
            return place_of(*view->viewport(), port).center();
        });
        click_at(middle, button);
        QThread::msleep(glance);
    }
    click_at(look([&] { return cell_place(grid, column, row); }).center());
}

void Person::type_cell(const char* grid, int column, int row, const std::string& text) {
    click_cell(grid, column, row);
    await(std::string("the active cell of ") + grid, [&] {
        const auto* view = find<GridView>(grid);
        return view->currentIndex() == view->model()->index(row - 1, column - 1) && view->hasFocus();
    });
    write(text);
    keys({QStringLiteral("Return")});
    // Only now does the entry count.
    await(std::string(grid) + " has taken " + text, [&] {
        const auto* view = find<GridView>(grid);
        return view->grid()->text(column, row) == text && !view->grid()->edit_mode();
    });
}

void Person::choose_cell(const char* grid, int column, int row, const std::string& item) {
    click_cell(grid, column, row);
    keys({QStringLiteral("F2")});
    await(std::string("the list in ") + grid,
          [&] { return find<GridView>(grid)->viewport()->findChild<QComboBox*>() != nullptr; });
    write(item);
    keys({QStringLiteral("Return")});
    await(std::string(grid) + " has taken " + item, [&] {
        const auto* view = find<GridView>(grid);
        return to_qt(view->grid()->text(column, row)).startsWith(to_qt(item)) && !view->grid()->edit_mode();
    });
}

void Person::answer(const std::string& words, const QString& caption) {
    QPoint place;
    await("a box with \"" + words + "\" and " + from_qt(caption), [&] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isActiveWindow() || !box->text().contains(to_qt(words))) return false;
        for (const QAbstractButton* button : box->buttons())
            if (button->isVisible() && button->text().remove(QLatin1Char('&')) == caption) {
                place = place_of(*button, button->rect()).center();
                return true;
            }
        return false;
    });
    click_at(place);
    await("the box has gone", [] { return !qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); });
}

void Person::name_file(const QString& path) {
    const auto dialog = [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); };
    const auto name = [&] { return dialog()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); };
    await("a file dialog", [&] { return dialog() && dialog()->isActiveWindow() && name()->hasFocus(); });
    keys({QStringLiteral("ctrl+a")});
    write(from_qt(path));
    await("the file's name in the dialog", [&] { return name()->text() == path; });
    keys({QStringLiteral("Return")});
    await("the file dialog has gone", [&] { return !dialog(); });
}

} // namespace levora::desktop::testing
