#include "desktop/desktop_desk.h"
#include "desktop/key_names.h"
#include "widgets/failure.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace levora::desktop {

using widgets::Answer;

namespace {

// What a person does with the box that comes up next.
void then(const std::function<void(QMessageBox&)>& what) {
    QTimer::singleShot(50, qApp, [what] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) what(*box);
    });
}

} // namespace

TEST(DesktopDeskTest, ABoxShowsItsToldCaptionsAndGivesTheOnePressed) {
    DesktopDesk desk;
    QString captions;
    then([&captions](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            if (button->isVisible()) captions += button->text().remove(QLatin1Char('&')) + QLatin1Char(' ');
        for (QAbstractButton* button : box.buttons())
            if (button->text().contains(QStringLiteral("Retry"))) button->click();
    });
    EXPECT_EQ(
        desk.show_message({"Disk full", "Error", widgets::Icon::critical, {Answer::retry, Answer::cancel}}),
        Answer::retry);
    EXPECT_TRUE(captions.contains(QStringLiteral("Retry")) && captions.contains(QStringLiteral("Cancel")));
    EXPECT_EQ(captions.split(QLatin1Char(' '), Qt::SkipEmptyParts).size(), 2);
}

TEST(DesktopDeskTest, EscapeDismissesEveryBoxWithoutAButton) {
    for (const std::vector<Answer>& buttons :
         {std::vector{Answer::ok}, std::vector{Answer::retry}, std::vector{Answer::yes, Answer::no}}) {
        DesktopDesk desk;
        then([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(desk.show_message({"Text", "Title", widgets::Icon::none, buttons}), std::nullopt);
    }
}

TEST(DesktopDeskTest, AProgramThatIsNotThereIsToldByName) {
    DesktopDesk desk;
    try {
        desk.start_program("/nowhere/Levora XML Validator.exe Form.xsd 2014", widgets::ProgramWindow::normal);
        FAIL() << "started";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, error_number::file_not_found);
        EXPECT_NE(std::string(failure.what()).find("Levora XML Validator.exe"), std::string::npos);
    }
}

TEST(DesktopDeskTest, AnAbsentCalculatorIsToldWithThoseThatWouldDo) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    for (const char* told : {"CALC.EXE", "C:\\Levora\\Levora Calc.exe"})
        try {
            DesktopDesk().start_program(told, widgets::ProgramWindow::normal);
            ADD_FAILURE() << told << " started";
        } catch (const Failure& failure) {
            EXPECT_NE(std::string(failure.what()).find("gnome-calculator"), std::string::npos) << told;
        }
    qputenv("PATH", path);
}

TEST(KeyNamesTest, KeysHaveTheNamesThatScreensKnow) {
    struct Case {
        int key;
        Qt::KeyboardModifiers held;
        const char* name;
    };
    const Case cases[] = {
        {Qt::Key_Insert, Qt::ControlModifier, "Ctrl+Insert"},
        {Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab"},
        {Qt::Key_C, Qt::ControlModifier | Qt::AltModifier, "Ctrl+Alt+C"},
        {Qt::Key_F5, Qt::ControlModifier, "Ctrl+F5"},
        {Qt::Key_Enter, Qt::KeypadModifier, "Enter"},
        {Qt::Key_Control, Qt::ControlModifier, ""}, // a modifier alone
    };
    for (const Case& each : cases)
        EXPECT_EQ(key_name(QKeyEvent(QEvent::KeyPress, each.key, each.held)), each.name);
}

} // namespace levora::desktop
