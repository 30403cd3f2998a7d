#include "paper/report_layout.h"

#include "paper/pieces.h"

#include <algorithm>

namespace levora::paper {

using document::Block;
using document::Layout;
using document::Place;
using document::Section;

namespace {

constexpr double twips_per_millimetre = 56.7;
constexpr double tolerance = 0.01; // millimetres
constexpr double outer_frame = 0.5;

class ReportPages {
public:
    ReportPages(Fonts& fonts, const document::Report& report, const Pages::RowsTold& told)
        : fonts_(fonts), report_(report), told_(told), layout_(report.layout()), left_(layout_.body.left),
          top_(layout_.body.top), bottom_(layout_.body.bottom) {
        if (layout_.margins_move) {
            left_ += report.left_margin_twips / twips_per_millimetre;
            top_ += report.top_margin_twips / twips_per_millimetre;
            bottom_ = layout_.page_height; // what a margin pushes out is the printer's to cut
        }
    }

    std::vector<Marks> make() {
        pages_.resize(1);
        y_ = top_;
        section_top_ = top_;
        const GrowthLimit limit = layout_.one_page ? limit_of_one_page() : GrowthLimit{};
        for (int number = 1; const Section& section : layout_.sections)
            if (!report_.section_suppressed(number++) && section.place == Place::flow) place(section, limit);
        for (int number = 1; const Section& section : layout_.sections)
            if (!report_.section_suppressed(number++) && section.place == Place::each_page) repeat(section);
        return std::move(pages_);
    }

private:
    [[nodiscard]] double room() const { return bottom_ - top_; }

    [[nodiscard]] int rows_in_all() const {
        std::size_t rows = 0;
        for (const Section& section : layout_.sections)
            if (section.table) rows += report_.rows(section.table->subreport).rows.size();
        return static_cast<int>(rows);
    }

    Piece block_piece(const Block& block, GrowthLimit limit, double most) {
        Piece piece = make_block(fonts_, report_, block, limit);
        // What grows higher than a page is set smaller instead.
        while (piece.height > most + tolerance && piece.height > block.height && tighten(limit))
            piece = make_block(fonts_, report_, block, limit);
        return piece;
    }

    SectionPieces pieces_of(const Section& section, const GrowthLimit& limit) {
        if (section.table)
            return make_table(fonts_, report_, *section.table, layout_.body.width(), room(), [this] {
                if (told_) told_(rows_done_++, rows_in_all());
            });
        SectionPieces made;
        if (section.head) made.head = block_piece(*section.head, limit, room());
        for (const Block& block : section.blocks)
            made.pieces.push_back(block_piece(block, limit, room() - made.head.height));
        return made;
    }

    // The limit with which all flowing sections stay on one page.
    GrowthLimit limit_of_one_page() {
        GrowthLimit limit;
        do {
            double height = 0;
            for (int number = 1; const Section& section : layout_.sections) {
                if (report_.section_suppressed(number++) || section.place != Place::flow) continue;
                const double own = pieces_of(section, limit).height();
                height += own + (height > 0 && own > 0 ? layout_.section_gap : 0);
            }
            if (height <= room() + tolerance) break;
        } while (tighten(limit));
        return limit;
    }

    void new_page() {
        pages_.emplace_back();
        y_ = top_;
    }

    void put(Piece piece) {
        for (Mark& mark : piece.marks) {
            move(mark, left_, y_);
            pages_.back().push_back(std::move(mark));
        }
        y_ += piece.height;
    }

    void place(const Section& section, const GrowthLimit& limit) {
        SectionPieces made = pieces_of(section, limit);
        if (section.over_previous) y_ = section_top_;
        section_top_ = y_;
        const double height = made.height();
        if (height == 0) return;
        const bool at_top = y_ <= top_ + tolerance;
        if (!at_top && !section.over_previous) {
            y_ += layout_.section_gap;
            const double first = made.head.height + chain_height(made.pieces, 0);
            const double needed = section.whole ? std::min(height, room()) : first;
            if (!layout_.one_page && (section.new_page_before || y_ + needed > bottom_ + tolerance))
                new_page();
            section_top_ = y_;
        }
        const bool framed = made.head.height > 0;
        double frame_top = y_;
        put(made.head);
        bool in_chain = true; // the first was measured together with the head
        for (std::size_t at = 0; at < made.pieces.size(); ++at) {
            const bool full = y_ + chain_height(made.pieces, at) > bottom_ + tolerance;
            if (!in_chain && full && !layout_.one_page && !section.over_previous) {
                if (framed) put_outer_frame(frame_top);
                new_page();
                frame_top = y_;
                put(made.head);
            }
            in_chain = made.pieces[at].keep_with_next;
            put(std::move(made.pieces[at]));
        }
        if (framed) put_outer_frame(frame_top);
    }

    // Around what a schedule has on this page.
    void put_outer_frame(double from) {
        pages_.back().emplace_back(
            RectangleMark{.area = {left_, from, layout_.body.width(), y_ - from}, .width = outer_frame});
    }

    // A piece and those that have to stay with it.
    static double chain_height(const std::vector<Piece>& pieces, std::size_t at) {
        double height = 0;
        for (; at < pieces.size(); ++at) {
            height += pieces[at].height;
            if (!pieces[at].keep_with_next) break;
        }
        return height;
    }

    void repeat(const Section& section) {
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            const PageNumber number{.page = static_cast<int>(page) + 1,
                                    .pages = static_cast<int>(pages_.size())};
            double y = section.top;
            for (const Block& block : section.blocks) {
                Piece piece = make_block(fonts_, report_, block, {}, number);
                for (Mark& mark : piece.marks) {
                    move(mark, left_, y);
                    pages_[page].push_back(std::move(mark));
                }
                y += piece.height;
            }
        }
    }

    Fonts& fonts_;
    const document::Report& report_;
    const Pages::RowsTold& told_;
    int rows_done_ = 0;
    const Layout& layout_;
    double left_;
    double top_;
    double bottom_;
    double y_ = 0;
    double section_top_ = 0;
    std::vector<Marks> pages_;
};

} // namespace

std::vector<Marks> lay_out(Fonts& fonts, const document::Report& report, const Pages::RowsTold& told) {
    return ReportPages(fonts, report, told).make();
}

} // namespace levora::paper
