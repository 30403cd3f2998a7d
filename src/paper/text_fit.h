#pragma once

#include "document/layout.h"
#include "paper/fonts.h"
#include "paper/marks.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <string>

namespace levora::paper {

// The smallest size that a text shrinks to, in points, and the step by which it does.
constexpr double smallest_size = 6;
constexpr double size_step = 0.5;

FontKey font_key(const document::TextLook& look);

// Lines no wider than the width: broken at blanks, and inside a word that is too long for a line.
QStringList wrap(Fonts& fonts, const FontKey& font, const QString& text, double width);

// The font in which a text fits the width on one line, shrunk as far as it may be.
FontKey shrink_to_width(Fonts& fonts, FontKey font, const QString& text, double width);

// A text in its box as its look says, at most `max_lines` of it.
void place_text(Fonts& fonts, const QRectF& box, const document::TextLook& look, const QString& text,
                Marks& marks);

// One line of text from the left edge, with its own top; cut at the edges where it is too wide.
void place_line(Fonts& fonts, const QRectF& line, const FontKey& font, document::Align align,
                const QString& text, Marks& marks, bool grey = false);

} // namespace levora::paper
