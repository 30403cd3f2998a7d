#include "desktop/look.h"
#include "desktop/page_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QScrollArea>

namespace levora::desktop {

namespace {

int contrast(const QColor& ground, const QColor& ink) {
    return std::abs(ground.lightness() - ink.lightness());
}

} // namespace

// A screen names its colours for a light ground; they have to be read on a dark one too.
TEST(LookTest, ToldColoursCanBeReadOnADarkPalette) {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(35, 38, 43));
    dark.setColor(QPalette::AlternateBase, QColor(42, 46, 52));
    for (const unsigned ground : {0xE0E0E0U, 0xFFFFFFU, 0xFFFFC0U})
        EXPECT_LT(ground_of(ground, dark).lightness(), 110) << ground;
    for (const unsigned ink : {0x000000U, 0x0000FFU, 0x800000U})
        EXPECT_GT(contrast(dark.color(QPalette::Window), ink_of(ink, dark)), 80) << ink;
}

TEST(PageViewTest, PagesTurnWithinTheirCountAndASearchGoesRound) {
    PageView view;
    PageSource source;
    source.count = 3;
    source.size = QSizeF(210, 297);
    source.paint = [](QPainter&, int, double) {};
    source.find = [](const QString& text) {
        return text == QStringLiteral("tax")
                   ? std::vector<PageSource::Place>{{1, QRectF(10, 10, 20, 5)}, {3, QRectF(10, 10, 20, 5)}}
                   : std::vector<PageSource::Place>{};
    };
    view.show_pages(source);
    EXPECT_EQ(view.page(), 1);
    view.turn_to(9);
    EXPECT_EQ(view.page(), 3);
    view.turn_to(0);
    EXPECT_EQ(view.page(), 1);
    EXPECT_TRUE(view.find_next(QStringLiteral("tax")));
    EXPECT_TRUE(view.find_next(QStringLiteral("tax")));
    EXPECT_EQ(view.page(), 3);
    EXPECT_TRUE(view.find_next(QStringLiteral("tax")));
    EXPECT_EQ(view.page(), 1);
    EXPECT_FALSE(view.find_next(QStringLiteral("wealth")));
}

TEST(PageViewTest, AWholePageFillsTheRoomAlsoWhenItWasGivenBeforeTheWindowCameUp) {
    PageView view;
    PageSource source;
    source.count = 1;
    source.size = QSizeF(210, 297);
    source.paint = [](QPainter&, int, double) {};
    view.show_pages(source);
    view.resize(900, 700);
    view.show();
    QApplication::processEvents();
    auto* area = view.findChild<QScrollArea*>();
    EXPECT_NEAR(area->widget()->height(), area->viewport()->height(), 2);
}

} // namespace levora::desktop
