#include "desktop/look.h"

#include "desktop/resources.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QListView>
#include <QPalette>
#include <QStyledItemDelegate>
#include <QStyleFactory>

namespace levora::desktop {

namespace {

struct Tint {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr Tint tints[] = {
    {QPalette::Window, 0xfff5f6f8, 0xff23262b},
    {QPalette::WindowText, 0xff1f2430, 0xffe4e7ec},
    {QPalette::Base, 0xffffffff, 0xff1b1e22},
    {QPalette::AlternateBase, 0xfff0f2f5, 0xff2a2e34},
    {QPalette::Text, 0xff1f2430, 0xffe4e7ec},
    {QPalette::Button, 0xfffbfbfc, 0xff31363d},
    {QPalette::ButtonText, 0xff1f2430, 0xffe4e7ec},
    {QPalette::BrightText, 0xffb3261e, 0xffff8a80},
    {QPalette::Highlight, 0xff1f6f8b, 0xff3a8ca8},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xff2d3340, 0xff3a404a},
    {QPalette::ToolTipText, 0xffffffff, 0xfff2f4f7},
    {QPalette::PlaceholderText, 0xff7b8494, 0xff8c95a3},
    {QPalette::Link, 0xff1f6f8b, 0xff6cc0dc},
    // Quiet words: a style sheet knows no name for the role of placeholders.
    {QPalette::LinkVisited, 0xff616b7a, 0xff9ba4b2},
    {QPalette::Light, 0xffffffff, 0xff3a404a},
    {QPalette::Midlight, 0xffe3e6eb, 0xff343941},
    {QPalette::Mid, 0xffc5cad3, 0xff4a515c},
    {QPalette::Dark, 0xff9aa2b0, 0xff6b7482},
    {QPalette::Shadow, 0xff5d6675, 0xff0f1114},
};
constexpr Tint disabled_tints[] = {
    {QPalette::WindowText, 0xff8a92a0, 0xff767e8b},
    {QPalette::Text, 0xff8a92a0, 0xff767e8b},
    {QPalette::ButtonText, 0xff9aa2b0, 0xff6b7482},
};

QPalette own_palette(bool dark) {
    QPalette palette;
    for (const Tint& tint : tints)
        palette.setColor(tint.role, QColor::fromRgba(dark ? tint.dark : tint.light));
    for (const Tint& tint : disabled_tints)
        palette.setColor(QPalette::Disabled, tint.role, QColor::fromRgba(dark ? tint.dark : tint.light));
    return palette;
}

} // namespace

bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

void apply_look(QApplication& application, Shade shade) {
    load_resources();
    const bool dark = shade == Shade::dark || (shade == Shade::system && is_dark(QApplication::palette()));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(own_palette(dark));
    QFile sheet(QStringLiteral(":/look.qss"));
    if (!sheet.open(QIODevice::ReadOnly)) return;
    // A style sheet knows no names for the colours of tips: they are told here, or tips could not be read.
    const QPalette palette = QApplication::palette();
    application.setStyleSheet(
        QString::fromUtf8(sheet.readAll()) +
        QStringLiteral("QToolTip { border: 0; padding: 4px 6px; background: %1; color: %2; }")
            .arg(palette.color(QPalette::ToolTipBase).name(), palette.color(QPalette::ToolTipText).name()));
}

void space_items(QComboBox& list) {
    // Its own delegate takes no room and no padding from a style sheet.
    if (!qobject_cast<QListView*>(list.view()) || qobject_cast<QStyledItemDelegate*>(list.itemDelegate()))
        return;
    list.setItemDelegate(new QStyledItemDelegate(&list));
}

QColor locked_ground(const QPalette& palette) {
    return palette.color(QPalette::AlternateBase);
}

QColor ground_of(unsigned rgb, const QPalette& palette) {
    const QColor told = QColor::fromRgb(rgb);
    // Computed cells are told in more than one grey.
    if (told.hslSaturation() == 0 && told.lightness() > 180 && told.lightness() < 255)
        return locked_ground(palette);
    if (!is_dark(palette)) return told;
    // The same hue, as dark as the palette is.
    return QColor::fromHsl(told.hslHue(), told.hslSaturation() / 2, 255 - told.lightness() * 4 / 5);
}

QColor ink_of(unsigned rgb, const QPalette& palette) {
    const QColor told = QColor::fromRgb(rgb);
    if (!is_dark(palette) || told.lightness() > 140) return told;
    return QColor::fromHsl(told.hslHue(), told.hslSaturation(), 190);
}

} // namespace levora::desktop
