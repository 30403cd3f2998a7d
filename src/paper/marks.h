#pragma once

#include "document/layout.h"
#include "paper/fonts.h"

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>
#include <variant>
#include <vector>

// What stands on a page, in millimetres from its upper left corner. Layout makes these, painting and
// searching read them.
namespace levora::paper {

enum class Fill { band, bar, sum_bar, black }; // greys, from light to dark

struct FillMark {
    QRectF area;
    Fill fill = Fill::band;
};

struct LineMark {
    QLineF line;
    double width = 0.25;
    document::LineStyle style = document::LineStyle::solid;
};

struct RectangleMark {
    QRectF area;
    double width = 0.25;
};

struct TextMark {
    QPointF baseline; // of the first character
    QString text;
    FontKey font;
    double width = 0;
    bool grey = false;
    bool turned = false;        // runs upwards
    std::optional<QRectF> clip; // where it had to be cut
};

using Mark = std::variant<FillMark, LineMark, RectangleMark, TextMark>;
using Marks = std::vector<Mark>;

void move(Mark& mark, double right, double down);

} // namespace levora::paper
