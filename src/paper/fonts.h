#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>

#include <compare>
#include <map>

namespace levora::paper {

// Painting is done in hundredths of a millimetre: fine enough for a font's size to be a whole number.
constexpr double units_per_millimetre = 100;

enum class Family { text, ticks }; // Liberation Sans, DejaVu Sans

struct FontKey {
    Family family = Family::text;
    double size = 9; // points
    bool bold = false;
    bool italic = false;
    double letter_spacing = 0; // percent of a character, between two

    auto operator<=>(const FontKey&) const = default;
};

// A Qt application to paint with; made without a display when the program has none of its own.
void ensure_application();

// The fonts of a layout with their measures in millimetres.
class Fonts {
public:
    // A Failure 321 that names the family that is not installed.
    Fonts();

    [[nodiscard]] double width(const FontKey& key, const QString& text);
    [[nodiscard]] double ascent(const FontKey& key);
    [[nodiscard]] double line_height(const FontKey& key);

private:
    struct Measures {
        double ascent;
        double line_height;
        QHash<QString, double> widths; // by text
    };
    Measures& measures(const FontKey& key);
    const QFontMetricsF& metrics(const FontKey& key);

    std::map<FontKey, QFontMetricsF> metrics_;
};

// The font as it is painted, in units.
QFont font_of(const FontKey& key);

} // namespace levora::paper
