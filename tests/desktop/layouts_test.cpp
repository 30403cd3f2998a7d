#include "window_fixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QXmlStreamReader>

#include <map>
#include <set>

namespace levora::desktop::testing {

namespace {

QStringList warnings;

void keep_warning(QtMsgType type, const QMessageLogContext&, const QString& text) {
    // What the platform without a display can't do is no fault of a layout.
    if (type != QtDebugMsg && !text.contains(QStringLiteral("plugin does not support"))) warnings += text;
}

struct Named {
    QString widget_class;
    QString name;
};

std::vector<Named> widgets_of(const std::string& screen) {
    QFile file(QStringLiteral(":/forms/%1.ui").arg(QString::fromStdString(screen)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << screen << " has no layout";
    std::vector<Named> found;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("widget"))
            found.push_back({reader.attributes().value(QLatin1String("class")).toString(),
                             reader.attributes().value(QLatin1String("name")).toString()});
    EXPECT_FALSE(reader.hasError()) << screen << ": " << reader.errorString().toStdString();
    return found;
}

// What a person can act upon, and so must be a control of the screen.
const std::set<QString> acting{"QLineEdit",  "QComboBox", "QCheckBox", "QRadioButton", "QPushButton",
                               "QTabWidget", "GridView",  "SpinPair",  "QTreeWidget"};

} // namespace

class LayoutsTest : public WindowTest {};

TEST_F(LayoutsTest, EveryControlHasItsWidgetAndNothingWarns) {
    warnings.clear();
    const QtMessageHandler before = qInstallMessageHandler(keep_warning);
    for (const std::string& screen : program::Program::screen_names())
        EXPECT_EQ(show(screen).faults().join(QStringLiteral("; ")).toStdString(), "") << screen;
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings.join(QStringLiteral("\n")).toStdString(), "");
}

TEST_F(LayoutsTest, EveryActingWidgetIsAControlAndNoNameIsTwice) {
    for (const std::string& screen : program::Program::screen_names()) {
        const widgets::Form& form = run->program().session().screens.load(screen);
        std::set<QString> names;
        for (const Named& each : widgets_of(screen)) {
            EXPECT_TRUE(names.insert(each.name).second)
                << screen << ": " << each.name.toStdString() << " twice";
            const std::string name = each.name.toStdString();
            EXPECT_TRUE(!acting.contains(each.widget_class) || form.find(name))
                << screen << ": no control for " << name;
            if (!each.name.startsWith(QStringLiteral("label_"))) continue;
            const widgets::Control* named = form.find(name.substr(6));
            EXPECT_TRUE(named && !named->label.empty()) << screen << ": no words for " << name;
        }
    }
}

// The return's own captions give both "Check With Validator" and "Close" the letter C.
TEST_F(LayoutsTest, NoTwoButtonsInViewShareAnAccessKey) {
    for (const std::string& screen : program::Program::screen_names()) {
        std::map<QString, QString> keys;
        for (QAbstractButton* button : show(screen).findChildren<QAbstractButton*>()) {
            const QString key = button->shortcut().toString();
            if (key.isEmpty() || !button->isVisible()) continue;
            EXPECT_TRUE(keys.emplace(key, button->text()).second)
                << screen << ": " << button->text().toStdString() << " and " << keys[key].toStdString();
        }
    }
    EXPECT_EQ(widget<QAbstractButton>("frmFormBA", "cmdClose").shortcut().toString(),
              QStringLiteral("Alt+C"));
    EXPECT_EQ(widget<QAbstractButton>("frmFormBA", "cmdValidatitor").text(),
              QStringLiteral("Check &With Validator"));
}

TEST_F(LayoutsTest, EveryWindowFitsASmallScreen) {
    for (const std::string& screen : program::Program::screen_names()) {
        const QSize least = show(screen).minimumSizeHint();
        EXPECT_LE(least.width(), 1366) << screen;
        EXPECT_LE(least.height(), 768 - 32) << screen; // the title bar and a panel
    }
}

TEST_F(LayoutsTest, TheTabKeyGoesDownTheSheet) {
    ScreenWindow& sheet = window("frmWealthMain");
    const QWidget* left = sheet.findChild<QWidget*>(QStringLiteral("txtAssetsSec2ea"))->parentWidget();
    int last = -1;
    int visited = 0;
    QWidget* at = sheet.findChild<QWidget*>(QStringLiteral("cboFY"));
    for (QWidget* next = at->nextInFocusChain(); next != at; next = next->nextInFocusChain()) {
        if (next->parentWidget() != left || !(next->focusPolicy() & Qt::TabFocus) || next->isHidden())
            continue;
        const int middle = next->mapTo(&sheet, next->rect().center()).y();
        EXPECT_GE(middle, last - 4) << next->objectName().toStdString();
        last = middle;
        ++visited;
    }
    EXPECT_GE(visited, 16);
}

} // namespace levora::desktop::testing
