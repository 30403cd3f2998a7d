#pragma once

#include "paper/marks.h"

#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <string>
#include <vector>

class QPainter;

namespace levora::document {
class Report;
}

namespace levora::paper {

// A report or a grid sheet laid out on paper: the same marks for preview, PDF and printer. It keeps
// nothing of what it was made from.
class Pages {
public:
    // Hears how many rows of a report are laid out; what it throws gives the work up.
    using RowsTold = std::function<void(int done, int of)>;

    // A report that has been filled. A Failure 321 when a font family is missing.
    explicit Pages(const document::Report& report, const RowsTold& told = {});
    Pages(std::string title, std::string author, QSizeF size, std::vector<Marks> pages);

    [[nodiscard]] int count() const { return static_cast<int>(pages_.size()); }
    [[nodiscard]] QSizeF size() const { return size_; } // millimetres
    [[nodiscard]] const std::string& title() const { return title_; }
    [[nodiscard]] const std::string& author() const { return author_; }

    // Paints a page, counted from 1, with its upper left corner at the painter's origin. `scale` is
    // the painter's units for a millimetre. The ground is left as it is.
    void paint(QPainter& painter, int page, double scale) const;

    // Where a text stands, without regard to case, in reading order of the marks; in millimetres.
    struct Found {
        int page = 1;
        QRectF area;
    };
    [[nodiscard]] std::vector<Found> find(const QString& text) const;
    // How many different characters of the texts no font of this machine has: they come out empty or as
    // boxes.
    [[nodiscard]] int characters_without_font() const;

private:
    std::string title_;
    std::string author_;
    QSizeF size_;
    std::vector<Marks> pages_;
};

} // namespace levora::paper
