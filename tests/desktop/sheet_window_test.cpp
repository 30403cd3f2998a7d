#include "window_fixture.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>

namespace levora::desktop::testing {

using widgets::MaskedField;
using widgets::TextField;

class SheetWindowTest : public WindowTest {
protected:
    QLineEdit& line(const char* name) { return widget<QLineEdit>("frmWealthMain", name); }
    TextField& field(const char* name) { return control<TextField>("frmWealthMain", name); }
};

TEST_F(SheetWindowTest, TypingRunsTheChainAndTheWindowFollowsEachKey) {
    field("txtAssetsSec2ea").set_text("4512349");
    line("txtLessDebt").setFocus();
    QTest::keyClicks(&line("txtLessDebt"), "100000.25");
    EXPECT_EQ(field("txtLessDebt").text(), "100000.25");
    EXPECT_EQ(text("txtNetWealth"), "4412348.75");
    EXPECT_EQ(text("txtWealthTaxLiability"), "14123");
    key(line("txtLessDebt"), Qt::Key_Backspace);
    EXPECT_EQ(text("txtNetWealth"), "4412348.8");
}

TEST_F(SheetWindowTest, WhatTheProgramWritesIsShown) {
    field("txtLessDebt").set_text("250");
    EXPECT_EQ(text("txtLessDebt"), "250");
    control<widgets::Frame>("frmWealthMain", "frEnclosure").set_visible(true);
    EXPECT_TRUE(window("frmWealthMain").findChild<QWidget*>(QStringLiteral("frEnclosure"))->isVisible());
    field("txtLessDebt").set_enabled(false);
    EXPECT_FALSE(line("txtLessDebt").isEnabled());
    field("txtLessDebt").set_enabled(true);
    field("txtLessDebt").set_forecolor(0x0000FF);
    EXPECT_TRUE(line("txtLessDebt").styleSheet().contains(QStringLiteral("color")));
}

TEST_F(SheetWindowTest, ALockedFieldTakesNoKeys) {
    field("txtAssetsSec2ea").set_text("100");
    line("txtAssetsSec2ea").setFocus();
    QTest::keyClicks(&line("txtAssetsSec2ea"), "9");
    EXPECT_EQ(field("txtAssetsSec2ea").text(), "100");
    EXPECT_EQ(text("txtAssetsSec2ea"), "100");
}

TEST_F(SheetWindowTest, AMaskIsFilledDigitByDigit) {
    control<widgets::Button>("frmWealthMain", "cmdInterest").click();
    QLineEdit& date = line("mskRetDate");
    date.setFocus();
    QApplication::processEvents();
    struct Case {
        const char *why, *typed, *held;
    };
    constexpr Case cases[] = {
        {"the separators need not be typed", "15092014", "15/09/2014"},
        {"letters are dropped", "1a5b0", "15/0_/____"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        control<MaskedField>("frmWealthMain", "mskRetDate").set_text("");
        date.setFocus();
        date.setCursorPosition(0);
        QTest::keyClicks(&date, QString::fromLatin1(each.typed));
        EXPECT_EQ(control<MaskedField>("frmWealthMain", "mskRetDate").text(), each.held);
        EXPECT_EQ(date.displayText().toStdString(), each.held);
    }
}

TEST_F(SheetWindowTest, UndoTakesARunOfTypingBackAtOnceAndRedoDoesItAgain) {
    line("txtLessDebt").setFocus();
    QTest::keyClicks(&line("txtLessDebt"), "500");
    line("txtInterest").setFocus();
    QTest::keyClicks(&line("txtInterest"), "7");
    ScreenWindow& sheet = window("frmWealthMain");
    const std::string before_interest = field("txtLessDebt").text();
    sheet.undo();
    EXPECT_EQ(field("txtLessDebt").text(), before_interest);
    sheet.undo();
    EXPECT_EQ(field("txtLessDebt").text(), "");
    EXPECT_EQ(text("txtLessDebt"), "");
    sheet.redo();
    EXPECT_EQ(field("txtLessDebt").text(), "500");
}

TEST_F(SheetWindowTest, TheUndoKeyReachesBeyondTheFieldInFocus) {
    line("txtLessDebt").setFocus();
    QTest::keyClicks(&line("txtLessDebt"), "500");
    key(line("txtLessDebt"), Qt::Key_Tab);
    line("txtInterest").setFocus();
    key(line("txtInterest"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field("txtLessDebt").text(), "");
    key(line("txtInterest"), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text("txtLessDebt"), "500");
}

TEST_F(SheetWindowTest, UndoLeavesAFigureAloneThatHasChangedSince) {
    line("txtLessDebt").setFocus();
    QTest::keyClicks(&line("txtLessDebt"), "500");
    field("txtLessDebt").set_text("900");
    window("frmWealthMain").undo();
    EXPECT_EQ(field("txtLessDebt").text(), "900");
}

TEST_F(SheetWindowTest, EnterMovesOnAndControlSSaves) {
    line("txtLessDebt").setFocus();
    QTest::keyClicks(&line("txtLessDebt"), "1234");
    key(line("txtLessDebt"), Qt::Key_Return);
    EXPECT_FALSE(line("txtLessDebt").hasFocus());
    window("frmWealthMain").activateWindow();
    key(window("frmWealthMain"), Qt::Key_S, Qt::ControlModifier);
    const session::StatementResult saved =
        folder.run(session::Store::tax, "Select * From NetWealthComputation");
    EXPECT_EQ(saved.rows.size(), 1U);
}

TEST_F(SheetWindowTest, EnterOpensTheListOfChallansFromTheStartAndAgainAfterEscape) {
    folder.run(session::Store::forms, "INSERT INTO Challan (AssesseeNo, AY, ChallanNo) "
                                      "VALUES (17, '2014-2015', 'ITNS282')");
    show("frmChallan282");
    auto& box = widget<QComboBox>("frmChallan282", "cboChallanList");
    for (int time = 0; time < 2; ++time) {
        key(box, Qt::Key_Return);
        EXPECT_TRUE(box.view()->isVisible());
        key(*box.view(), Qt::Key_Escape);
        EXPECT_FALSE(box.view()->isVisible());
        EXPECT_FALSE(control<widgets::ColumnList>("frmChallan282", "cboChallanList").dropped_down());
    }
}

TEST_F(SheetWindowTest, AScreenThatUnloadsItselfTakesItsWindowAlong) {
    QTest::mouseClick(&widget<QPushButton>("frmWealthMain", "cmdAssets"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_FALSE(window("frmWealthMain").isVisible());
    EXPECT_TRUE(window("frmImmovable").isVisible());
    QTest::mouseClick(&widget<QPushButton>("frmImmovable", "cmdOK"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(run->windows().find("frmImmovable"), nullptr);
    EXPECT_TRUE(window("frmWealthMain").isVisible());
}

TEST_F(SheetWindowTest, ExitEndsTheRun) {
    bool ended = false;
    run->on_ended = [&ended] { ended = true; };
    QTest::mouseClick(&widget<QPushButton>("frmWealthMain", "cmdMainExit"), Qt::LeftButton);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(run->program().running());
}

} // namespace levora::desktop::testing
