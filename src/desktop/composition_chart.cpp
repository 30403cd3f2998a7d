#include "desktop/composition_chart.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace levora::desktop {

namespace {
constexpr int row_height = 46; // where there is room
constexpr int least_row_height = 28;
} // namespace

CompositionChart::CompositionChart(QWidget* parent) : QWidget(parent) {
    setMinimumWidth(200);
}

void CompositionChart::show_bars(std::vector<Bar> bars) {
    bars_ = std::move(bars);
    QStringList words;
    for (const Bar& bar : bars_)
        words += bar.name + QStringLiteral(" ") + bar.figure;
    setAccessibleDescription(words.join(QStringLiteral("; ")));
    updateGeometry();
    update();
}

QSize CompositionChart::sizeHint() const {
    return {280, static_cast<int>(bars_.size()) * row_height};
}

void CompositionChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    double largest = 0;
    for (const Bar& bar : bars_)
        largest = std::max(largest, bar.amount);
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Highlight);
    QFont plain = font();
    QFont strong = font();
    strong.setWeight(QFont::DemiBold);
    const int rows = std::max(1, static_cast<int>(bars_.size()));
    const int step = std::clamp(height() / rows, least_row_height, row_height);
    const int bar_height = step < 36 ? 6 : 10;
    int top = 0;
    for (const Bar& bar : bars_) {
        painter.setFont(bar.total ? strong : plain);
        painter.setPen(ink);
        const QFontMetrics metrics(painter.font());
        const QRect words(0, top, width(), metrics.height() + 4);
        const int figure_width = metrics.horizontalAdvance(bar.figure) + 8;
        painter.drawText(words.adjusted(0, 0, -figure_width, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(bar.name, Qt::ElideRight, words.width() - figure_width));
        painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, bar.figure);
        const QRectF track(0, words.bottom() + 3, width(), bar_height);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Midlight));
        painter.drawRoundedRect(track, 3, 3);
        if (largest > 0 && bar.amount > 0) {
            QColor colour = accent;
            if (!bar.total) colour.setAlphaF(0.65F);
            painter.setBrush(colour);
            painter.drawRoundedRect(
                QRectF(track.topLeft(),
                       QSizeF(std::max(4.0, track.width() * bar.amount / largest), bar_height)),
                3, 3);
        }
        top += step;
    }
}

} // namespace levora::desktop
