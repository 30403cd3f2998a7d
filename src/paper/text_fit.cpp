#include "paper/text_fit.h"

#include <algorithm>

namespace levora::paper {

namespace {

constexpr double tolerance = 0.001; // millimetres

QString on_one_line(QString text) {
    return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).remove(QLatin1Char('\r'));
}

// As much of a word as the width takes, at least one character.
qsizetype fitting_length(Fonts& fonts, const FontKey& font, const QString& word, double width) {
    qsizetype low = 1;
    qsizetype high = word.size();
    while (low < high) {
        const qsizetype middle = (low + high + 1) / 2;
        if (fonts.width(font, word.left(middle)) <= width + tolerance)
            low = middle;
        else
            high = middle - 1;
    }
    if (low < word.size() && word.at(low - 1).isHighSurrogate()) ++low;
    return low;
}

void wrap_paragraph(Fonts& fonts, const FontKey& font, const QString& paragraph, double width,
                    QStringList& lines) {
    const double blank = fonts.width(font, QStringLiteral(" "));
    QString line;
    double line_width = 0;
    for (QString word : paragraph.split(QLatin1Char(' '))) {
        double word_width = fonts.width(font, word);
        if (!line.isEmpty() && line_width + blank + word_width > width + tolerance) {
            lines.append(line);
            line.clear();
            line_width = 0;
        }
        while (word_width > width + tolerance && word.size() > 1) {
            const qsizetype length = fitting_length(fonts, font, word, width);
            if (length == word.size()) break;
            lines.append(word.left(length));
            word.remove(0, length);
            word_width = fonts.width(font, word);
        }
        if (!line.isEmpty()) {
            line += QLatin1Char(' ');
            line_width += blank;
        }
        line += word;
        line_width += word_width;
    }
    lines.append(line);
}

// Lines and font of a text that wraps inside a box of fixed height.
struct Wrapped {
    QStringList lines;
    FontKey font;
};

Wrapped wrap_into(Fonts& fonts, const QRectF& box, const document::TextLook& look, const QString& text) {
    FontKey font = font_key(look);
    for (;;) {
        QStringList lines = wrap(fonts, font, text, box.width());
        const double line_height = look.line_height > 0 ? look.line_height : fonts.line_height(font);
        const bool fits = static_cast<double>(lines.size()) * line_height <= box.height() + tolerance;
        // A word that had to be broken wants a smaller font first.
        if ((fits || lines.size() == 1) || font.size - size_step < smallest_size) return {lines, font};
        font.size -= size_step;
    }
}

// What goes beyond the last line is cut there by the box; it can still be selected and searched.
void cut_to(QStringList& lines, qsizetype most) {
    while (lines.size() > most) {
        const QString rest = lines.takeLast();
        lines.last() += QLatin1Char(' ') + rest;
    }
}

double first_top(const QRectF& box, document::VerticalAlign align, double height) {
    switch (align) {
    case document::VerticalAlign::top:
        return box.top();
    case document::VerticalAlign::middle:
        return box.top() + (box.height() - height) / 2;
    case document::VerticalAlign::bottom:
        return box.bottom() - height;
    }
    return box.top();
}

void place_turned(Fonts& fonts, const QRectF& box, const document::TextLook& look, const QString& text,
                  Marks& marks) {
    const FontKey font = shrink_to_width(fonts, font_key(look), text, box.height());
    const double width = fonts.width(font, text);
    const double middle = box.center().x();
    marks.emplace_back(TextMark{
        .baseline = {middle - fonts.line_height(font) / 2 + fonts.ascent(font), box.center().y() + width / 2},
        .text = text,
        .font = font,
        .width = width,
        .grey = look.grey,
        .turned = true,
        .clip = {}});
}

} // namespace

FontKey font_key(const document::TextLook& look) {
    return {.family = Family::text,
            .size = look.size,
            .bold = look.bold,
            .italic = look.italic,
            .letter_spacing = look.letter_spacing};
}

QStringList wrap(Fonts& fonts, const FontKey& font, const QString& text, double width) {
    QStringList lines;
    QString plain = text;
    plain.remove(QLatin1Char('\r'));
    for (const QString& paragraph : plain.split(QLatin1Char('\n')))
        wrap_paragraph(fonts, font, paragraph, width, lines);
    return lines;
}

FontKey shrink_to_width(Fonts& fonts, FontKey font, const QString& text, double width) {
    while (font.size - size_step >= smallest_size && fonts.width(font, text) > width + tolerance)
        font.size -= size_step;
    return font;
}

void place_line(Fonts& fonts, const QRectF& line, const FontKey& font, document::Align align,
                const QString& text, Marks& marks, bool grey) {
    if (text.isEmpty()) return;
    TextMark mark{.baseline = {line.left(), line.top() + fonts.ascent(font)},
                  .text = text,
                  .font = font,
                  .width = fonts.width(font, text),
                  .grey = grey,
                  .turned = false,
                  .clip = {}};
    const double spare = line.width() - mark.width;
    if (spare < -tolerance)
        mark.clip = line; // cut at its end, whatever its alignment: the leading figures stay
    else if (align != document::Align::left)
        mark.baseline.rx() += align == document::Align::center ? spare / 2 : spare;
    marks.emplace_back(std::move(mark));
}

void place_text(Fonts& fonts, const QRectF& box, const document::TextLook& look, const QString& text,
                Marks& marks) {
    if (text.isEmpty()) return;
    if (look.turned) return place_turned(fonts, box, look, on_one_line(text), marks);
    Wrapped wrapped;
    if (look.fit == document::Fit::shrink) {
        wrapped.lines = {on_one_line(text)};
        wrapped.font = shrink_to_width(fonts, font_key(look), wrapped.lines.first(), box.width());
    } else {
        wrapped = wrap_into(fonts, box, look, text);
    }
    const double font_height = fonts.line_height(wrapped.font);
    const double line_height = look.line_height > 0 ? look.line_height : font_height;
    const qsizetype most =
        std::max<qsizetype>(1, static_cast<qsizetype>((box.height() + tolerance) / line_height));
    cut_to(wrapped.lines, most);
    const qsizetype shown = wrapped.lines.size();
    const double first = first_top(box, look.vertical, static_cast<double>(shown) * line_height);
    for (qsizetype at = 0; at < shown; ++at) {
        const double top = first + static_cast<double>(at) * line_height;
        place_line(fonts, {box.left(), top + (line_height - font_height) / 2, box.width(), font_height},
                   wrapped.font, look.align, wrapped.lines.at(at), marks, look.grey);
    }
}

} // namespace levora::paper
