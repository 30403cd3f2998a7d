#include "window_fixture.h"

#include <QDir>
#include <QStandardPaths>

namespace levora::desktop::testing {

class KeptEditsTest : public WindowTest {
protected:
    QStringList kept() {
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                          QStringLiteral("/unsaved"));
        return folder.entryList(QDir::Files);
    }
    void type_debt(const char* typed) {
        QLineEdit& debt = widget<QLineEdit>("frmWealthMain", "txtLessDebt");
        debt.setFocus();
        debt.selectAll();
        QTest::keyClicks(&debt, QString::fromLatin1(typed));
        widget<GridView>("frmWealthMain", "sprSATax").commit(1, 2, "SBI");
        QTest::qWait(700); // longer than the quiet after the last act
    }
    // The process dies without a word; another one is started.
    void crash_and_start_again() {
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/unsaved/");
        std::vector<std::pair<QString, QByteArray>> files;
        for (const QString& name : kept()) {
            QFile file(folder + name);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            files.emplace_back(file.fileName(), file.readAll());
        }
        run.reset(); // takes the files away, as an orderly end does
        for (const auto& [name, bytes] : files) {
            QFile file(name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        run = std::make_unique<DesktopRun>(RunOptions{folder_settings(), this->folder.path(),
                                                      this->folder.path(), "2014-2015 17 Individual x 0"},
                                           desk);
        run->start();
        QTest::qWait(100);
    }
    std::string folder_settings() { return folder.path() + "/settings.toml"; }
};

TEST_F(KeptEditsTest, AfterACrashFiguresComeBackOnAYesAndTheStoreStaysAsItWas) {
    type_debt("777");
    EXPECT_EQ(kept().size(), 1);
    desk.queue_answer(widgets::Answer::yes);
    crash_and_start_again();
    EXPECT_EQ(text("txtLessDebt"), "777");
    EXPECT_EQ(control<widgets::Grid>("frmWealthMain", "sprSATax").text(1, 2), "SBI");
    EXPECT_TRUE(folder.run(session::Store::tax, "Select * From NetWealthComputation").rows.empty());
}

TEST_F(KeptEditsTest, ARefusalForgetsThem) {
    type_debt("777");
    desk.queue_answer(widgets::Answer::no);
    crash_and_start_again();
    EXPECT_EQ(text("txtLessDebt"), "");
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(KeptEditsTest, ASaveAndAnOrderlyEndLeaveNothingBehind) {
    type_debt("777");
    QTest::keyClick(&window("frmWealthMain"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(kept().isEmpty());
    type_debt("888");
    EXPECT_EQ(kept().size(), 1);
    window("frmWealthMain").close();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(KeptEditsTest, ASaveThatEndsWithAnErrorReportKeepsThem) {
    widgets::Grid& enclosures = control<widgets::Grid>("frmWealthMain", "sprEnclosure");
    enclosures.type(1, 1, "Valuation");
    enclosures.type(1, 2, "a second row, which has no place in the store");
    type_debt("777");
    QTest::keyClick(&window("frmWealthMain"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(kept().size(), 1);
    EXPECT_TRUE(window("frmWealthMain").history().can_undo());
}

} // namespace levora::desktop::testing
