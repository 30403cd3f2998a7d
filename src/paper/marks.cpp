#include "paper/marks.h"

namespace levora::paper {

namespace {

struct Move {
    double right;
    double down;

    void operator()(FillMark& mark) const { mark.area.translate(right, down); }
    void operator()(LineMark& mark) const { mark.line.translate(right, down); }
    void operator()(RectangleMark& mark) const { mark.area.translate(right, down); }
    void operator()(TextMark& mark) const {
        mark.baseline += QPointF(right, down);
        if (mark.clip) mark.clip->translate(right, down);
    }
};

} // namespace

void move(Mark& mark, double right, double down) {
    std::visit(Move{right, down}, mark);
}

} // namespace levora::paper
