#include "paper/pages.h"

#include "document/report.h"
#include "paper/report_layout.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QSet>

#include <algorithm>
#include <array>

namespace levora::paper {

namespace {

constexpr std::array greys{230, 150, 70, 0}; // of Fill, from light to dark
const QColor grey_letters(128, 128, 128);

class Painting {
public:
    explicit Painting(QPainter& painter) : painter_(painter) {}

    void operator()(const FillMark& mark) {
        const int grey = greys.at(static_cast<std::size_t>(mark.fill));
        painter_.fillRect(scaled(mark.area), QColor(grey, grey, grey));
    }
    void operator()(const LineMark& mark) {
        painter_.setPen(pen(mark.width, mark.style));
        painter_.drawLine(QLineF(scaled(mark.line.p1()), scaled(mark.line.p2())));
    }
    void operator()(const RectangleMark& mark) {
        painter_.setPen(pen(mark.width, document::LineStyle::solid));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(scaled(mark.area));
    }
    void operator()(const TextMark& mark) {
        use(mark.font);
        painter_.setPen(mark.grey ? grey_letters : QColor(Qt::black));
        if (mark.turned || mark.clip) {
            painter_.save();
            if (mark.clip) painter_.setClipRect(scaled(*mark.clip));
            painter_.translate(scaled(mark.baseline));
            if (mark.turned) painter_.rotate(-90);
            painter_.drawText(QPointF(0, 0), mark.text);
            painter_.restore();
        } else {
            painter_.drawText(scaled(mark.baseline), mark.text);
        }
    }

private:
    static QPointF scaled(const QPointF& point) { return point * units_per_millimetre; }
    static QRectF scaled(const QRectF& area) {
        return {area.topLeft() * units_per_millimetre, area.bottomRight() * units_per_millimetre};
    }
    static QPen pen(double width, document::LineStyle style) {
        QPen pen(Qt::black, width * units_per_millimetre);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
        // The pattern counts in widths of the pen.
        if (style == document::LineStyle::dotted) pen.setDashPattern({1.5, 2.5});
        if (style == document::LineStyle::dashed) pen.setDashPattern({8, 5});
        return pen;
    }
    void use(const FontKey& font) {
        if (has_font_ && font == font_) return;
        font_ = font;
        has_font_ = true;
        painter_.setFont(font_of(font));
    }

    QPainter& painter_;
    FontKey font_;
    bool has_font_ = false;
};

bool is_ground(const Mark& mark) {
    const auto* fill = std::get_if<FillMark>(&mark);
    return fill && fill->fill == Fill::band;
}

// The object that holds the author's name is told by the report; else the program stands for him.
std::string author_of(const document::Report& report) {
    const std::string& object = report.layout().author;
    std::string author = object.empty() ? std::string() : report.text(object);
    return author.empty() ? "Levora Wealth Tax" : author;
}

} // namespace

Pages::Pages(const document::Report& report, const RowsTold& told)
    : title_(report.layout().title), author_(author_of(report)),
      size_(report.layout().page_width, report.layout().page_height) {
    Fonts fonts;
    pages_ = lay_out(fonts, report, told);
}

Pages::Pages(std::string title, std::string author, QSizeF size, std::vector<Marks> pages)
    : title_(std::move(title)), author_(std::move(author)), size_(size), pages_(std::move(pages)) {}

void Pages::paint(QPainter& painter, int page, double scale) const {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale / units_per_millimetre, scale / units_per_millimetre);
    Painting painting(painter);
    // Grounds first, so that none of them eats into a line beside it.
    const Marks& marks = pages_.at(static_cast<std::size_t>(page) - 1);
    for (const bool grounds : {true, false})
        for (const Mark& mark : marks)
            if (is_ground(mark) == grounds) std::visit(painting, mark);
    painter.restore();
}

int Pages::characters_without_font() const {
    constexpr char32_t last_latin = 0x24F; // which the fonts of paper have
    QSet<char32_t> seen;
    int missing = 0;
    for (const Marks& marks : pages_)
        for (const Mark& mark : marks) {
            const auto* words = std::get_if<TextMark>(&mark);
            if (!words) continue;
            for (const char32_t character : words->text.toUcs4()) {
                if (character <= last_latin || seen.contains(character)) continue;
                seen.insert(character);
                if (!QFontMetrics(font_of(words->font)).inFontUcs4(character)) ++missing;
            }
        }
    return missing;
}

std::vector<Pages::Found> Pages::find(const QString& text) const {
    std::vector<Found> found;
    if (text.isEmpty()) return found;
    Fonts fonts;
    for (std::size_t page = 0; page < pages_.size(); ++page)
        for (const Mark& mark : pages_[page]) {
            const auto* words = std::get_if<TextMark>(&mark);
            if (!words) continue;
            for (qsizetype at = words->text.indexOf(text, 0, Qt::CaseInsensitive); at >= 0;
                 at = words->text.indexOf(text, at + text.size(), Qt::CaseInsensitive)) {
                const double before = fonts.width(words->font, words->text.left(at));
                const double width = fonts.width(words->font, words->text.mid(at, text.size()));
                const double ascent = fonts.ascent(words->font);
                const double height = fonts.line_height(words->font);
                const QPointF base = words->baseline;
                const QRectF area = words->turned
                                        ? QRectF(base.x() - ascent, base.y() - before - width, height, width)
                                        : QRectF(base.x() + before, base.y() - ascent, width, height);
                found.push_back({.page = static_cast<int>(page) + 1, .area = area});
            }
        }
    return found;
}

} // namespace levora::paper
