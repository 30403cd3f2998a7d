#include "paper/pieces.h"
#include "paper/text_fit.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <string>

namespace levora::paper {

using document::Align;
using document::Table;
using document::TableColumn;

namespace {

constexpr double band_height = 5;
constexpr double line_above_height = 4;
constexpr double mark_line_height = 3.5;
constexpr double row_height = 5;
constexpr double padding = 0.5;
constexpr double band_padding = 1;
constexpr double head_padding = 0.6; // above and below the captions of the head

class TableMaker {
public:
    TableMaker(Fonts& fonts, const document::Report& report, const Table& table, double width, double room)
        : fonts_(fonts), rows_(report.rows(table.subreport)), table_(table), width_(width), room_(room) {}

    SectionPieces make(const std::function<void()>& next_row) {
        SectionPieces section;
        section.head = make_head();
        const double room = room_ - section.head.height - row_height; // with the closing row
        for (std::size_t row = 0; row < rows_.rows.size(); ++row) {
            if (next_row) next_row();
            add_row(row, room, section.pieces);
        }
        if (rows_.rows.empty()) section.pieces.push_back(ruled_row(row_height));
        if (!table_.total_field.empty()) {
            section.pieces.back().keep_with_next = true;
            section.pieces.push_back(make_total());
        }
        return section;
    }

private:
    // Calls visit(column, left edge) for each column.
    template <class Visit> void each_column(Visit visit) const {
        double left = 0;
        for (const TableColumn& column : table_.columns) {
            visit(column, left);
            left += column.width;
        }
    }

    [[nodiscard]] Piece ruled_row(double height) const {
        Piece piece{.height = height, .keep_with_next = false, .marks = {}};
        each_column([&](const TableColumn& column, double left) {
            piece.marks.emplace_back(RectangleMark{.area = {left, 0, column.width, height}, .width = 0.25});
        });
        return piece;
    }

    Piece make_head() {
        Piece head;
        const auto full_row = [&](double height) {
            const QRectF area(0, head.height, width_, height);
            head.height += height;
            return area;
        };
        const QRectF band = full_row(band_height);
        head.marks.emplace_back(FillMark{.area = band});
        head.marks.emplace_back(RectangleMark{.area = band, .width = 0.25});
        const QRectF inside = band.adjusted(band_padding, 0, -band_padding, 0);
        document::TextLook look{.size = 9, .bold = true};
        place_text(fonts_, inside, look, QString::fromStdString(table_.code), head.marks);
        look.align = Align::center;
        place_text(fonts_, inside, look, QString::fromStdString(table_.title), head.marks);

        if (!table_.line.empty()) {
            const QRectF line = full_row(line_above_height);
            head.marks.emplace_back(RectangleMark{.area = line, .width = 0.25});
            place_text(fonts_, line.adjusted(band_padding, 0, 0, 0), {.size = 8, .bold = true},
                       QString::fromStdString(table_.line), head.marks);
        }
        add_captions(head);
        return head;
    }

    void add_captions(Piece& head) {
        FontKey font{.size = table_.head_size};
        const auto caption_width = [](const TableColumn& column) { return column.width - 2 * padding; };
        // A caption whose longest word is wider than its column is set smaller, not broken.
        const auto widest_word_fits = [&](const FontKey& tried, const TableColumn& column) {
            for (const QString& word : QString::fromStdString(column.caption).split(QLatin1Char(' ')))
                if (fonts_.width(tried, word) > caption_width(column)) return false;
            return true;
        };
        const auto font_of_column = [&](const TableColumn& column) {
            FontKey tried = font;
            while (!widest_word_fits(tried, column) && tried.size - size_step >= smallest_size)
                tried.size -= size_step;
            return tried;
        };
        double text_height = 0;
        bool has_marks = false;
        each_column([&](const TableColumn& column, double) {
            const FontKey used = font_of_column(column);
            const QStringList lines =
                wrap(fonts_, used, QString::fromStdString(column.caption), caption_width(column));
            text_height = std::max(text_height, static_cast<double>(lines.size()) * fonts_.line_height(used));
            has_marks |= !column.mark.empty();
        });
        const double top = head.height;
        const double height = text_height + 2 * head_padding;
        each_column([&](const TableColumn& column, double left) {
            const FontKey used = font_of_column(column);
            const QStringList lines =
                wrap(fonts_, used, QString::fromStdString(column.caption), caption_width(column));
            const double line_height = fonts_.line_height(used);
            double line_top = top + (height - static_cast<double>(lines.size()) * line_height) / 2;
            head.marks.emplace_back(RectangleMark{.area = {left, top, column.width, height}, .width = 0.25});
            for (const QString& line : lines) {
                place_line(fonts_, {left + padding, line_top, caption_width(column), line_height}, used,
                           Align::center, line, head.marks);
                line_top += line_height;
            }
            if (!has_marks) return;
            const QRectF mark_cell(left, top + height, column.width, mark_line_height);
            head.marks.emplace_back(RectangleMark{.area = mark_cell, .width = 0.25});
            if (!column.mark.empty())
                place_text(fonts_, mark_cell, {.size = smallest_size, .align = Align::center},
                           QString::fromStdString("(" + column.mark + ")"), head.marks);
        });
        head.height += height + (has_marks ? mark_line_height : 0);
    }

    [[nodiscard]] bool is_empty(std::size_t row) const {
        return std::none_of(table_.columns.begin(), table_.columns.end(), [&](const TableColumn& column) {
            return column.field != "#" && !rows_.value(row, column.field).text().empty();
        });
    }

    // The lines of one row's cells.
    struct CellLines {
        const TableColumn* column;
        double left;
        FontKey font;
        QStringList lines;
    };

    CellLines cell_lines(std::size_t row, const TableColumn& column, double left) {
        const QString text = column.field == "#"
                                 ? QString::number(qulonglong{row} + 1)
                                 : QString::fromStdString(rows_.value(row, column.field).text());
        CellLines cell{.column = &column, .left = left, .font = {.size = table_.data_size}, .lines = {}};
        const double width = column.width - 2 * padding;
        // One word, as an amount or a date, shrinks before it is broken.
        if (!text.contains(QLatin1Char(' '))) cell.font = shrink_to_width(fonts_, cell.font, text, width);
        cell.lines = wrap(fonts_, cell.font, text, width);
        return cell;
    }

    void add_row(std::size_t row, double room, std::vector<Piece>& pieces) {
        // Wanted: a row without any text prints as an empty ruled row, without a number of its own.
        if (is_empty(row)) {
            pieces.push_back(ruled_row(row_height));
            return;
        }
        std::vector<CellLines> cells;
        qsizetype most = 1;
        each_column([&](const TableColumn& column, double left) {
            cells.push_back(cell_lines(row, column, left));
            most = std::max(most, cells.back().lines.size());
        });
        const double line_height = fonts_.line_height({.size = table_.data_size});
        const auto lines_of_a_page =
            std::max<qsizetype>(1, static_cast<qsizetype>((room - row_height) / line_height));
        for (qsizetype first = 0; first < most; first += lines_of_a_page) {
            const qsizetype count = std::min(lines_of_a_page, most - first);
            Piece piece = ruled_row(row_height + static_cast<double>(count - 1) * line_height);
            for (const CellLines& cell : cells) {
                double top = (row_height - line_height) / 2;
                for (const QString& line : cell.lines.mid(first, count)) {
                    place_line(fonts_,
                               {cell.left + padding, top, cell.column->width - 2 * padding, line_height},
                               cell.font, cell.column->align, line, piece.marks);
                    top += line_height;
                }
            }
            pieces.push_back(std::move(piece));
        }
    }

    Piece make_total() {
        Piece total{.height = row_height, .keep_with_next = false, .marks = {}};
        const FontKey font{.size = table_.data_size, .bold = true};
        const double line_height = fonts_.line_height(font);
        const double top = (row_height - line_height) / 2;
        const QString amount = rows_.rows.empty()
                                   ? QString()
                                   : QString::fromStdString(rows_.value(0, table_.total_field).text());
        each_column([&](const TableColumn& column, double left) {
            if (column.field != table_.total_under) return;
            const double right = left + column.width;
            for (const QRectF& cell :
                 {QRectF(0, 0, left, row_height), QRectF(left, 0, column.width, row_height),
                  QRectF(right, 0, width_ - right, row_height)})
                if (cell.width() > 0) total.marks.emplace_back(RectangleMark{.area = cell, .width = 0.25});
            place_line(fonts_, {padding, top, left - 2 * padding, line_height}, font, Align::right,
                       QString::fromStdString(table_.total_label), total.marks);
            const QRectF place(left + padding, top, column.width - 2 * padding, line_height);
            place_line(fonts_, place, shrink_to_width(fonts_, font, amount, place.width()), Align::right,
                       amount, total.marks);
        });
        return total;
    }

    Fonts& fonts_;
    const document::RowTable& rows_;
    const Table& table_;
    double width_;
    double room_;
};

} // namespace

SectionPieces make_table(Fonts& fonts, const document::Report& report, const Table& table, double width,
                         double room, const std::function<void()>& next_row) {
    return TableMaker(fonts, report, table, width, room).make(next_row);
}

} // namespace levora::paper
