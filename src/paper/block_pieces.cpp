#include "paper/bar_code.h"
#include "paper/pieces.h"
#include "paper/text_fit.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace levora::paper {

using document::Box;
using document::Element;
using document::ElementKind;
using document::Fit;

namespace {

constexpr double edge_tolerance = 0.01; // millimetres

QString text_of(const document::Report& report, const Element& element) {
    const bool fixed = element.kind == ElementKind::text;
    return QString::fromStdString(fixed ? element.text : report.text(element.name));
}

bool is_suppressed(const document::Report& report, const Element& element) {
    return !element.name.empty() && report.suppressed(element.name);
}

bool grows(const Element& element) {
    return element.kind == ElementKind::object && element.look.fit == Fit::grow;
}

// A growing text broken into its lines.
struct Grown {
    FontKey font;
    QStringList lines;
    double line_height = 0;
};

Grown grow(Fonts& fonts, const Element& element, const QString& text, const GrowthLimit& limit) {
    Grown grown;
    grown.font = font_key(element.look);
    grown.font.size =
        std::max(std::min(smallest_size, element.look.size), element.look.size - limit.smaller_by);
    grown.lines = wrap(fonts, grown.font, text, element.box.width());
    while (grown.lines.size() > limit.most_lines) {
        const QString rest = grown.lines.takeLast();
        grown.lines.last() += QLatin1Char(' ') + rest;
    }
    grown.line_height = fonts.line_height(grown.font);
    return grown;
}

// Where the edges of a block come to lie when its rows grow: each row's lower edge and all that lies
// below it move down by as much as the row's longest text needs. Free room at the block's foot is used
// up first, before the edges beyond its contents move.
class Edges {
public:
    explicit Edges(const document::Block& block) {
        for (const Element& element : block.elements)
            if (element.kind != ElementKind::frame && element.kind != ElementKind::rule &&
                !element.look.turned)
                contents_ = std::max(contents_, element.box.bottom);
        spare_ = std::max(0.0, block.height - contents_);
    }

    void grow_row(double lower_edge, double by) {
        double& most = growth_[lower_edge];
        most = std::max(most, by);
    }
    // An edge at or below a grown row's lower edge.
    [[nodiscard]] double moved(double edge) const {
        double shift = 0;
        for (const auto& [lower_edge, by] : growth_)
            if (lower_edge <= edge + edge_tolerance) shift += by;
        return edge > contents_ + edge_tolerance ? edge + std::max(0.0, shift - spare_) : edge + shift;
    }

private:
    std::map<double, double> growth_;
    double contents_ = 0;
    double spare_ = 0;
};

void draw_rule(const QRectF& box, const document::LineLook& look, Marks& marks) {
    const bool upright = box.height() > box.width();
    const QLineF line =
        upright ? QLineF(box.topLeft(), box.bottomLeft()) : QLineF(box.topLeft(), box.topRight());
    if (look.style != document::LineStyle::doubled) {
        marks.emplace_back(LineMark{.line = line, .width = look.width, .style = look.style});
        return;
    }
    constexpr double apart = 0.35; // of two lines, each side of the middle
    for (const double side : {-apart, apart})
        marks.emplace_back(LineMark{.line = line.translated(upright ? side : 0, upright ? 0 : side),
                                    .width = look.width,
                                    .style = document::LineStyle::solid});
}

void draw_tick(Fonts& fonts, const QRectF& box, const Element& element, const QString& text, Marks& marks) {
    if (text.toStdString() != document::tick) return;
    const FontKey font{.family = Family::ticks, .size = element.look.size};
    const QString check(QChar(0x2713));
    const double height = fonts.line_height(font);
    // The mark reaches less high than the font: its own middle goes to the square's.
    const double baseline = box.center().y() + fonts.ascent(font) - height / 2 - height * 0.03;
    const double width = fonts.width(font, check);
    marks.emplace_back(TextMark{.baseline = {box.center().x() - width / 2, baseline},
                                .text = check,
                                .font = font,
                                .width = width,
                                .grey = false,
                                .turned = false,
                                .clip = {}});
}

void draw_digits(Fonts& fonts, const QRectF& box, const Element& element, const QString& text, Marks& marks) {
    QRectF square = box;
    document::TextLook look = element.look;
    look.align = document::Align::center;
    for (qsizetype at = 0; at < std::min<qsizetype>(text.size(), element.count); ++at) {
        place_text(fonts, square, look, text.mid(at, 1), marks);
        square.translate(element.pitch, 0);
    }
}

// The figure at the right edge, the bar on its track before it.
void draw_bar(Fonts& fonts, const QRectF& box, const Element& element, const QString& amount, double share,
              Marks& marks) {
    constexpr double figure_part = 0.48; // of the box: room for fifteen digits with their commas
    constexpr double thickness = 1.8;
    constexpr double thinnest = 0.4; // a small amount beside a large one can still be seen
    const QRectF track(box.left(), box.center().y() - thickness / 2, box.width() * (1 - figure_part),
                       thickness);
    marks.emplace_back(FillMark{.area = track});
    QRectF bar = track;
    bar.setWidth(std::max(track.width() * share, thinnest));
    if (share > 0)
        marks.emplace_back(FillMark{.area = bar, .fill = element.look.bold ? Fill::sum_bar : Fill::bar});
    place_text(fonts, {QPointF(track.right(), box.top()), box.bottomRight()}, element.look,
               QString::fromStdString(group_indian_text(amount.toStdString())), marks);
}

QString with_page_numbers(QString text, const PageNumber& number) {
    return text.replace(QLatin1String("{pages}"), QString::number(number.pages))
        .replace(QLatin1String("{page}"), QString::number(number.page));
}

// One block in the making.
class BlockMaker {
public:
    BlockMaker(Fonts& fonts, const document::Report& report, const document::Block& block,
               const GrowthLimit& limit, const PageNumber& number)
        : fonts_(fonts), report_(report), block_(block), number_(number), edges_(block) {
        for (const Element& element : block.elements)
            if (grows(element) && !is_suppressed(report, element)) grow_row_of(element, limit);
    }

    Piece make() {
        Piece piece;
        piece.height = edges_.moved(block_.height);
        for (const Element& element : block_.elements)
            if (!is_suppressed(report_, element)) draw(element, piece.marks);
        return piece;
    }

private:
    void grow_row_of(const Element& element, const GrowthLimit& limit) {
        Grown text = grow(fonts_, element, text_of(report_, element), limit);
        if (text.lines.size() < 2) return;
        edges_.grow_row(element.box.bottom, static_cast<double>(text.lines.size() - 1) * text.line_height);
        grown_.emplace(&element, std::move(text));
    }

    // Frames and rules stretch with a row that grows; words keep their height at its top.
    [[nodiscard]] QRectF area_of(const Element& element) const {
        const bool stretches =
            element.kind == ElementKind::frame || element.kind == ElementKind::rule || element.look.turned;
        const double top = edges_.moved(element.box.top);
        const double bottom = stretches ? edges_.moved(element.box.bottom) : top + element.box.height();
        return {QPointF(element.box.left, top), QPointF(element.box.right, bottom)};
    }

    void draw(const Element& element, Marks& marks) {
        const QRectF area = area_of(element);
        switch (element.kind) {
        case ElementKind::frame:
            if (element.filled) marks.emplace_back(FillMark{.area = area});
            if (element.line.style != document::LineStyle::none)
                marks.emplace_back(RectangleMark{.area = area, .width = element.line.width});
            break;
        case ElementKind::rule:
            draw_rule(area, element.line, marks);
            break;
        case ElementKind::text:
            place_text(fonts_, area, element.look, with_page_numbers(text_of(report_, element), number_),
                       marks);
            break;
        case ElementKind::object:
            draw_object(element, area, marks);
            break;
        case ElementKind::tick:
            draw_tick(fonts_, area, element, text_of(report_, element), marks);
            break;
        case ElementKind::digits:
            draw_digits(fonts_, area, element, text_of(report_, element), marks);
            break;
        case ElementKind::bar_code:
            place_bar_code(area, report_.text(element.name), marks);
            break;
        case ElementKind::bar:
            draw_bar(fonts_, area, element, text_of(report_, element), share_of(element), marks);
            break;
        }
    }

    // The part of its longest neighbour that a bar reaches; none of an amount below 0.
    [[nodiscard]] double share_of(const Element& bar) const {
        double largest = 0;
        for (const Element& each : block_.elements)
            if (each.kind == ElementKind::bar && each.box.left == bar.box.left)
                largest = std::max(largest, val(report_.text(each.name)));
        return largest > 0 ? std::max(0.0, val(report_.text(bar.name)) / largest) : 0;
    }

    void draw_object(const Element& element, const QRectF& area, Marks& marks) {
        const auto found = grown_.find(&element);
        if (found == grown_.end())
            return place_text(fonts_, area, element.look, text_of(report_, element), marks);
        const Grown& text = found->second;
        QRectF line(area.left(), area.top() + (area.height() - text.line_height) / 2, area.width(),
                    text.line_height);
        for (const QString& words : text.lines) {
            place_line(fonts_, line, text.font, element.look.align, words, marks);
            line.translate(0, text.line_height);
        }
    }

    Fonts& fonts_;
    const document::Report& report_;
    const document::Block& block_;
    const PageNumber& number_;
    Edges edges_;
    std::map<const Element*, Grown> grown_;
};

} // namespace

double SectionPieces::height() const {
    double height = head.height;
    for (const Piece& piece : pieces)
        height += piece.height;
    return height;
}

bool tighten(GrowthLimit& limit) {
    constexpr double most_smaller = 7; // from 13 points down to the smallest size
    if (limit.smaller_by < most_smaller) {
        limit.smaller_by += size_step;
        return true;
    }
    if (limit.most_lines <= 1) return false;
    limit.most_lines = limit.most_lines > 100 ? 100 : limit.most_lines - 1;
    return true;
}

Piece make_block(Fonts& fonts, const document::Report& report, const document::Block& block,
                 const GrowthLimit& limit, const PageNumber& number) {
    return BlockMaker(fonts, report, block, limit, number).make();
}

} // namespace levora::paper
