#include "paper/sheet_paper.h"

#include "paper/sheet_text.h"
#include "paper/text_fit.h"
#include "widgets/grid.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

namespace levora::paper {

namespace {

constexpr double twips_per_millimetre = 56.7;
constexpr QSizeF upright_a4(210, 297);
constexpr double padding = 0.8;
constexpr double line_padding = 0.7; // above and below the text of a row
constexpr double widest_column = 60; // a longer text wraps
constexpr double footer_room = 8;
constexpr double below_header = 2;
const FontKey cell_font{.size = 8};
const FontKey header_font{.size = 8, .bold = true};

struct SheetColumn {
    int column = 0; // of the grid; 0 the row headers
    double width = 0;
};

QString shown_text(const widgets::Grid& grid, int column, int row) {
    if (column == 0) return QString::fromStdString(grid.row_header(row));
    const std::string& text = grid.text(column, row);
    const widgets::CellDesign& design = grid.design(column, row);
    if (design.kind == widgets::CellKind::check) return text == "1" ? QStringLiteral("X") : QString();
    const bool grouped = design.kind == widgets::CellKind::number && design.grouped;
    return QString::fromStdString(grouped ? group_indian_text(text) : text);
}

document::Align align_of(const widgets::Grid& grid, int column, int row) {
    if (column == 0) return document::Align::center;
    const widgets::CellKind kind = grid.cell_kind(column, row);
    const bool figure = kind == widgets::CellKind::number || kind == widgets::CellKind::percent;
    return figure ? document::Align::right : document::Align::left;
}

class SheetMaker {
public:
    SheetMaker(Fonts& fonts, const widgets::Grid& grid) : fonts_(fonts), grid_(grid) {
        rows_ = grid.data_rows();
        left_ = grid.print_margin_left / twips_per_millimetre;
        top_ = grid.print_margin_top / twips_per_millimetre;
        bottom_margin_ = std::max(top_, grid.print_margin_bottom / twips_per_millimetre);
        header_ = sheet_lines(grid.print_header);
        footer_ = sheet_lines(grid.print_footer);
    }

    Pages make() {
        std::vector<SheetColumn> columns = measured_columns();
        const double total =
            std::accumulate(columns.begin(), columns.end(), 0.0,
                            [](double sum, const SheetColumn& each) { return sum + each.width; });
        if (total > upright_a4.width() - 2 * left_) size_ = upright_a4.transposed();
        for (const std::vector<SheetColumn>& group : groups_of(columns))
            make_group(group);
        return {grid_.tag.empty() ? grid_.name() : grid_.tag, "Levora Wealth Tax", size_, std::move(pages_)};
    }

private:
    [[nodiscard]] double room() const { return size_.width() - 2 * left_; }
    [[nodiscard]] double lower_edge() const {
        return size_.height() - bottom_margin_ - (footer_.empty() ? 0 : footer_room);
    }

    [[nodiscard]] double measured_width(int column) {
        double width = 0;
        const QString caption = column > 0 ? QString::fromStdString(grid_.header(column)) : QString();
        // A caption wraps at its blanks, so only its longest word counts.
        for (const QString& word : caption.split(QLatin1Char(' ')))
            width = std::max(width, fonts_.width(header_font, word));
        for (int row = 1; row <= rows_; ++row)
            width = std::max(width, fonts_.width(cell_font, shown_text(grid_, column, row)));
        return std::min(widest_column, width + 2 * padding + 0.2);
    }

    // Computed amounts are no data, but a net amount in the last columns belongs on the paper.
    [[nodiscard]] int last_shown_column() const {
        int last = grid_.columns();
        if (rows_ == 0) return last;
        const auto shows_nothing = [this](int column) {
            for (int row = 1; row <= rows_; ++row)
                if (!grid_.text(column, row).empty()) return false;
            return true;
        };
        while (last > grid_.data_columns() && shows_nothing(last))
            --last;
        return last;
    }

    std::vector<SheetColumn> measured_columns() {
        std::vector<SheetColumn> columns{{.column = 0, .width = measured_width(0)}};
        const int last = last_shown_column();
        for (int column = 1; column <= last; ++column)
            if (!grid_.hidden(column)) columns.push_back({.column = column, .width = measured_width(column)});
        return columns;
    }

    // Columns that fit the page side by side, the row headers in front of each group.
    std::vector<std::vector<SheetColumn>> groups_of(const std::vector<SheetColumn>& columns) const {
        std::vector<std::vector<SheetColumn>> groups{{columns.front()}};
        double width = columns.front().width;
        for (std::size_t at = 1; at < columns.size(); ++at) {
            if (width + columns[at].width > room() && groups.back().size() > 1) {
                groups.push_back({columns.front()});
                width = columns.front().width;
            }
            groups.back().push_back(columns[at]);
            width += columns[at].width;
        }
        return groups;
    }

    void start_page(const std::vector<SheetColumn>& group) {
        pages_.emplace_back();
        y_ = top_;
        if (pages_.size() == 1 || &group != last_group_) {
            place_lines(header_, y_);
            if (!header_.empty()) y_ += below_header;
        }
        last_group_ = &group;
        double bottom = size_.height() - bottom_margin_ - footer_room;
        place_lines(footer_, bottom);
        put_row(
            group, header_font,
            [this](int column) {
                return column == 0 ? QString() : QString::fromStdString(grid_.header(column));
            },
            0);
    }

    void place_lines(const std::vector<SheetLine>& lines, double& y) {
        for (const SheetLine& line : lines) {
            const double height = fonts_.line_height(font_key(line.look));
            place_text(fonts_, {left_, y, room(), height}, line.look, line.text, pages_.back());
            y += height;
        }
    }

    // Puts one row of cells, as high as its longest text; row 0 is the row of headers.
    template <class TextOf>
    void put_row(const std::vector<SheetColumn>& group, const FontKey& font, TextOf text_of, int row) {
        const double line_height = fonts_.line_height(font);
        std::vector<QStringList> cells;
        qsizetype most = 1;
        for (const SheetColumn& each : group) {
            cells.push_back(wrap(fonts_, font, text_of(each.column), each.width - 2 * padding));
            most = std::max(most, cells.back().size());
        }
        const double height = static_cast<double>(most) * line_height + 2 * line_padding;
        double x = left_;
        for (std::size_t at = 0; at < group.size(); ++at) {
            const QRectF area(x, y_, group[at].width, height);
            if (row == 0) pages_.back().emplace_back(FillMark{.area = area});
            pages_.back().emplace_back(RectangleMark{.area = area, .width = 0.2});
            double line_top = y_ + line_padding;
            for (const QString& line : cells[at]) {
                place_line(fonts_, {x + padding, line_top, area.width() - 2 * padding, line_height}, font,
                           row == 0 ? document::Align::center : align_of(grid_, group[at].column, row), line,
                           pages_.back());
                line_top += line_height;
            }
            x += group[at].width;
        }
        y_ += height;
    }

    [[nodiscard]] double row_height(const std::vector<SheetColumn>& group, int row) {
        qsizetype most = 1;
        for (const SheetColumn& each : group)
            most = std::max(
                most, wrap(fonts_, cell_font, shown_text(grid_, each.column, row), each.width - 2 * padding)
                          .size());
        return static_cast<double>(most) * fonts_.line_height(cell_font) + 2 * line_padding;
    }

    void make_group(const std::vector<SheetColumn>& group) {
        start_page(group);
        for (int row = 1; row <= rows_; ++row) {
            if (row > 1 && y_ + row_height(group, row) > lower_edge()) start_page(group);
            put_row(
                group, cell_font, [&](int column) { return shown_text(grid_, column, row); }, row);
        }
    }

    Fonts& fonts_;
    const widgets::Grid& grid_;
    int rows_ = 0;
    double left_ = 0;
    double top_ = 0;
    double bottom_margin_ = 0;
    double y_ = 0;
    QSizeF size_ = upright_a4;
    std::vector<SheetLine> header_;
    std::vector<SheetLine> footer_;
    const std::vector<SheetColumn>* last_group_ = nullptr;
    std::vector<Marks> pages_;
};

} // namespace

Pages pages_of_sheet(const widgets::Grid& grid) {
    Fonts fonts;
    return SheetMaker(fonts, grid).make();
}

} // namespace levora::paper
