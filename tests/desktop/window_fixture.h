#pragma once

#include "desktop/desktop_run.h"
#include "desktop/grid_view.h"
#include "desktop/screen_window.h"
#include "session/data_folder.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/headless_desk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <memory>
#include <string>

namespace levora::desktop::testing {

// The program on an empty client, with its windows and a desk that answers from queues.
class WindowTest : public ::testing::Test {
protected:
    WindowTest() {
        folder.run(session::Store::assessee,
                   "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name) VALUES (17, 'A. Client')");
        run = std::make_unique<DesktopRun>(RunOptions{folder.path() + "/settings.toml", folder.path(),
                                                      folder.path(), "2014-2015 17 Individual x 0"},
                                           desk);
        run->start();
        QApplication::processEvents();
    }

    ScreenWindow& window(const std::string& screen) {
        ScreenWindow* found = run->windows().find(screen);
        if (!found) throw std::runtime_error(screen + " has no window");
        return *found;
    }
    ScreenWindow& show(const std::string& screen) {
        run->program().session().screens.show(screen);
        QApplication::processEvents();
        return window(screen);
    }
    template <class Kind> Kind& control(const std::string& screen, const std::string& name) {
        return static_cast<Kind&>(*run->program().session().screens.find(screen)->find(name));
    }
    template <class Kind> Kind& widget(const std::string& screen, const char* name) {
        auto* found = window(screen).findChild<Kind*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(std::string(name) + " is not there");
        return *found;
    }
    QString text(const char* field) { return widget<QLineEdit>("frmWealthMain", field).text(); }
    void key(QWidget& at, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&at, key, held);
        QApplication::processEvents();
    }
    // The editor that is open over a grid; null when none is.
    static QWidget* editor_of(const GridView& view) {
        for (QWidget* each : view.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (each->isVisible() && each->focusPolicy() != Qt::NoFocus) return each;
        return nullptr;
    }

    session::testing::DataFolder folder;
    widgets::HeadlessDesk desk;
    std::unique_ptr<DesktopRun> run;
};

} // namespace levora::desktop::testing
