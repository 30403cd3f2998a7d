#pragma once

#include "desktop/desktop_run.h"

#include <QApplication>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

class QWidget;

namespace levora::desktop::testing {

// What a person did not find on the screen.
class NotSeen : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A person at the display, in a thread beside the program's: looks at windows for the places of things
// and for what they show, and acts by mouse and keyboard events of the display alone.
class Person {
public:
    explicit Person(QString pictures) : pictures_(std::move(pictures)) {}

    // The program of a run, started and left by its own rules.
    void start(const RunOptions& options);
    void await_end();

    // --- looking ---
    void await(const std::string& what, const std::function<bool()>& seen);
    void await_screen(const std::string& screen);
    void await_gone(const std::string& screen);
    void expect(const char* field, const std::string& text);
    void expect_cell(const char* grid, int column, int row, const std::string& text);
    void picture(const std::string& name);

    // --- acting; names are those of the screen looked at last ---
    void click(const char* control);
    void type(const char* field, const std::string& text);
    void choose_tab(const char* tabs, int page);
    void click_cell(const char* grid, int column, int row);
    void type_cell(const char* grid, int column, int row, const std::string& text);
    // From the list of a cell, by the beginning of the item.
    void choose_cell(const char* grid, int column, int row, const std::string& item);
    void keys(const QStringList& names);
    // The button of the box that comes up; its text must hold the words.
    void answer(const std::string& words, const QString& caption);
    // Types the path into the file dialog that comes up.
    void name_file(const QString& path);

    // Runs in the program's thread; only to look.
    template <class Look> auto look(Look what) {
        decltype(what()) seen{};
        QMetaObject::invokeMethod(
            qApp, [&] { seen = what(); }, Qt::BlockingQueuedConnection);
        return seen;
    }

private:
    template <class Kind> Kind* find(const char* name) const;
    QRect cell_place(const char* grid, int column, int row) const;
    void click_at(const QPoint& place, const QString& button = QStringLiteral("1"));
    void write(const std::string& text);
    void act(const QStringList& words);

    QString pictures_;
    std::unique_ptr<DesktopRun> run_;
    std::string screen_;
    bool ended_ = false;
};

} // namespace levora::desktop::testing
