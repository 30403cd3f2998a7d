#include "desktop/page_view.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace levora::desktop {

namespace {
constexpr int margin = 18; // around the page, in pixels
constexpr double millimetres_per_inch = 25.4;
} // namespace

// One page on a quiet ground, white in every palette as paper is.
class PageView::Sheet final : public QWidget {
public:
    explicit Sheet(const PageView& view) : view_(view) {}

    void set_scale(double pixels_per_millimetre) {
        scale_ = pixels_per_millimetre;
        const QSizeF size = view_.pages_.size * scale_;
        setFixedSize(qRound(size.width()) + 2 * margin, qRound(size.height()) + 2 * margin);
        update();
    }
    [[nodiscard]] double scale() const { return scale_; }

protected:
    void paintEvent(QPaintEvent*) override {
        if (view_.page_ == 0) return;
        QPainter painter(this);
        const QRectF paper(QPointF(margin, margin), view_.pages_.size * scale_);
        painter.fillRect(paper.translated(2, 3), QColor(0, 0, 0, 50));
        painter.fillRect(paper, Qt::white);
        painter.setClipRect(paper);
        painter.translate(paper.topLeft());
        painter.setRenderHint(QPainter::Antialiasing);
        for (const PageSource::Place& place : view_.found_) {
            if (place.page != view_.page_) continue;
            const bool current = &place - view_.found_.data() == view_.found_at_;
            painter.fillRect(QRectF(place.area.topLeft() * scale_, place.area.size() * scale_),
                             current ? QColor(255, 196, 64) : QColor(255, 236, 170));
        }
        painter.save();
        view_.pages_.paint(painter, view_.page_, scale_);
        painter.restore();
    }

private:
    const PageView& view_;
    double scale_ = 1;
};

PageView::PageView(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    build_bar();
    area_ = new QScrollArea(this);
    area_->setAlignment(Qt::AlignCenter);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setBackgroundRole(QPalette::Mid);
    area_->setFocusPolicy(Qt::NoFocus);
    sheet_ = new Sheet(*this);
    area_->setWidget(sheet_);
    area_->viewport()->installEventFilter(this);
    layout->addWidget(area_, 1);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Pages"));
}

void PageView::build_bar() {
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(8, 8, 8, 0);
    const auto button = [&](const QString& words, const QString& tip, auto what) {
        auto* made = new QPushButton(words, this);
        made->setToolTip(tip);
        made->setAccessibleName(tip);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, what);
        bar->addWidget(made);
    };
    button(QStringLiteral("‹"), tr("Page before"), [this] { turn_to(page_ - 1); });
    place_ = new QLabel(this);
    place_->setMinimumWidth(110);
    place_->setAlignment(Qt::AlignCenter);
    bar->addWidget(place_);
    button(QStringLiteral("›"), tr("Next page"), [this] { turn_to(page_ + 1); });
    bar->addSpacing(12);
    button(tr("Whole page"), tr("Fit the whole page"), [this] { set_zoom(Zoom::page); });
    button(tr("Width"), tr("Fit the width of the page"), [this] { set_zoom(Zoom::width); });
    button(tr("100 %"), tr("Size on paper"), [this] { set_zoom(Zoom::actual); });
    bar->addSpacing(12);
    search_ = new QLineEdit(this);
    search_->setPlaceholderText(tr("Search"));
    search_->setAccessibleName(tr("Search in the pages"));
    search_->setToolTip(tr("Ctrl+F; Enter goes to the next place"));
    search_->setMaximumWidth(220);
    connect(search_, &QLineEdit::returnPressed, this, [this] { find_next(search_->text()); });
    bar->addWidget(search_);
    bar->addStretch(1);
    button(tr("Export as PDF…"), tr("Export as a PDF file"), [this] { emit export_asked(); });
    button(tr("Print…"), tr("Print the pages"), [this] { emit print_asked(); });
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
}

void PageView::show_pages(PageSource pages) {
    pages_ = std::move(pages);
    found_.clear();
    found_at_ = -1;
    searched_.clear();
    page_ = 0;
    turn_to(1);
    fit();
}

void PageView::turn_to(int page) {
    page_ = pages_.count == 0 ? 0 : std::clamp(page, 1, pages_.count);
    place_->setText(page_ == 0 ? tr("No pages") : tr("Page %1 of %2").arg(page_).arg(pages_.count));
    sheet_->update();
}

void PageView::set_zoom(Zoom zoom) {
    zoom_ = zoom;
    fit();
}

void PageView::fit() {
    if (pages_.count == 0) return;
    const QSizeF room = area_->viewport()->size() - QSize(2 * margin, 2 * margin);
    double scale = logicalDpiX() / millimetres_per_inch;
    if (zoom_ == Zoom::page)
        scale = std::min(room.width() / pages_.size.width(), room.height() / pages_.size.height());
    if (zoom_ == Zoom::width)
        scale = (room.width() - area_->verticalScrollBar()->sizeHint().width()) / pages_.size.width();
    sheet_->set_scale(std::max(scale, 0.5));
}

bool PageView::find_next(const QString& text) {
    if (!pages_.find || text.isEmpty()) return false;
    if (text != searched_) {
        searched_ = text;
        found_ = pages_.find(text);
        found_at_ = -1;
    }
    if (found_.empty()) {
        place_->setText(tr("Not found"));
        sheet_->update();
        return false;
    }
    found_at_ = (found_at_ + 1) % static_cast<int>(found_.size());
    const PageSource::Place& place = found_[static_cast<std::size_t>(found_at_)];
    turn_to(place.page);
    const QPointF at = place.area.center() * sheet_->scale();
    area_->ensureVisible(qRound(at.x()) + margin, qRound(at.y()) + margin, 120, 120);
    return true;
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
    // The room for a page is known once the layout has given it.
    if (watched == area_->viewport() && event->type() == QEvent::Resize) fit();
    return QWidget::eventFilter(watched, event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Right:
        turn_to(page_ + 1);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_Left:
        turn_to(page_ - 1);
        break;
    case Qt::Key_Home:
        turn_to(1);
        break;
    case Qt::Key_End:
        turn_to(pages_.count);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        break; // the search has answered it: the focus stays there
    case Qt::Key_F:
        if (event->modifiers() & Qt::ControlModifier) {
            search_->setFocus();
            break;
        }
        [[fallthrough]];
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace levora::desktop
