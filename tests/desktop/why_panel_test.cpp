#include "window_fixture.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

namespace levora::desktop::testing {

using widgets::TextField;

class WhyPanelTest : public WindowTest {
protected:
    WhyPanelTest() {
        field("txtAssetsSec2ea").set_text("4512349");
        field("txtLessDebt").set_text("100000.25");
    }
    TextField& field(const char* name) { return control<TextField>("frmWealthMain", name); }
    // The focus on a field, F1, and what the panel tells; empty when none came up.
    std::string ask(const char* screen, const char* name) {
        auto& widget_asked = widget<QWidget>(screen, name);
        window(screen).activateWindow();
        widget_asked.setFocus();
        QApplication::processEvents();
        key(widget_asked, Qt::Key_F1);
        const QWidget* panel = QApplication::activePopupWidget();
        const auto* sentence = panel ? panel->findChild<QLabel*>(QStringLiteral("why_sentence")) : nullptr;
        return sentence ? sentence->text().toStdString() : std::string();
    }
    // To the source of that number, by the keyboard.
    void go(int source) {
        for (int tabs = 1; tabs < source; ++tabs)
            key(*QApplication::activePopupWidget()->focusWidget(), Qt::Key_Tab);
        key(*QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
    static std::string focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : std::string();
    }
};

TEST_F(WhyPanelTest, F1TellsAndTheKeyboardGoesToASource) {
    EXPECT_EQ(ask("frmWealthMain", "txtNetWealth"),
              "Net Wealth 44,12,348.75 = Assets chargeable 45,12,349 less Debt 1,00,000.25 (never below 0)");
    go(2);
    EXPECT_EQ(focus(), "txtLessDebt");
}

TEST_F(WhyPanelTest, EscClosesAndNothingWasLeft) {
    bool left = false;
    field("txtLessDebt").on_leave = [&left] {
        left = true;
        return true;
    };
    EXPECT_EQ(ask("frmWealthMain", "txtLessDebt"), "Debt 1,00,000.25: typed here");
    key(*QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(left);
    EXPECT_EQ(focus(), "txtLessDebt");
}

TEST_F(WhyPanelTest, ASourceBehindAButtonATabOrAnotherScreenComesIntoView) {
    control<widgets::MaskedField>("frmWealthMain", "mskDueDate").set_text("31/07/2014");
    ask("frmWealthMain", "txtInterest");
    go(2); // the due date, in a panel that is closed
    EXPECT_EQ(focus(), "mskDueDate");
    EXPECT_TRUE(widget<QWidget>("frmWealthMain", "frInterest").isVisible());

    ask("frmWealthMain", "txtAssetsSec2ea");
    go(1); // another screen
    EXPECT_FALSE(window("frmWealthMain").isVisible());
    EXPECT_EQ(focus(), "txtTotalNetAmount");
    auto& movables = control<widgets::Grid>("frmImmovable", "sprMovableProp");
    movables.type(2, 2, "500");
    ask("frmImmovable", "txtNetMovableProperty");
    go(1); // another tab, and there a cell
    EXPECT_EQ(focus(), "sprMovableProp");
    EXPECT_EQ(movables.active_column(), 4);
    EXPECT_EQ(movables.active_row(), 4);
    EXPECT_EQ(ask("frmImmovable", "sprMovableProp"), "Net Amount 500 = Net Amount 500 (row 2)");
}

TEST_F(WhyPanelTest, TheRestingPointerTellsWhatIsComputedAndNothingElse) {
    const auto tip = [this](const char* name) {
        auto& line = widget<QLineEdit>("frmWealthMain", name);
        QHelpEvent rest(QEvent::ToolTip, QPoint(3, 3), line.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&line, &rest);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
    };
    EXPECT_EQ(tip("txtLessDebt"), "");
    EXPECT_EQ(tip("txtTotalAssets"),
              "<p style='white-space:pre'>Total 45,12,349 = Assets 45,12,349 plus Deemed Assets 0</p>");
}

} // namespace levora::desktop::testing
