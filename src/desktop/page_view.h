#pragma once

#include <QRectF>
#include <QSizeF>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;
class QScrollArea;

namespace levora::desktop {

// Pages to look at: how many, how large (millimetres), how to paint one from its upper left corner at
// so many units for a millimetre, where a text stands on them.
struct PageSource {
    struct Place {
        int page = 1;
        QRectF area; // millimetres
    };
    int count = 0;
    QSizeF size;
    std::function<void(QPainter& painter, int page, double scale)> paint;
    std::function<std::vector<Place>(const QString& text)> find;
};

// A preview of pages: turning, zooming, searching. Printing and exporting are asked of its owner.
class PageView final : public QWidget {
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    void show_pages(PageSource pages);
    [[nodiscard]] int page() const { return page_; } // from 1; 0 while there is none
    void turn_to(int page);
    enum class Zoom { page, width, actual };
    void set_zoom(Zoom zoom);
    // Goes to the next place of the text behind the one shown; false when there is none.
    bool find_next(const QString& text);

signals:
    void print_asked();
    void export_asked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Sheet;
    void build_bar();
    void fit();

    PageSource pages_;
    int page_ = 0;
    Zoom zoom_ = Zoom::page;
    std::vector<PageSource::Place> found_;
    int found_at_ = -1;
    QString searched_;
    QScrollArea* area_ = nullptr;
    Sheet* sheet_ = nullptr;
    QLabel* place_ = nullptr;
    QLineEdit* search_ = nullptr;
};

} // namespace levora::desktop
