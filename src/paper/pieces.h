#pragma once

#include "document/report.h"
#include "paper/fonts.h"
#include "paper/marks.h"

#include <QString>

#include <functional>
#include <vector>

namespace levora::paper {

// A part of a section that is not split: its marks count from its own top.
struct Piece {
    double height = 0;
    bool keep_with_next = false;
    Marks marks;
};

// The pieces of one section, with the head that repeats on every page it reaches.
struct SectionPieces {
    Piece head;
    std::vector<Piece> pieces;

    [[nodiscard]] double height() const;
};

// How far growing texts are held back so that they stay on their page: their sizes go down by so many
// points, and after that they keep so many lines at most.
struct GrowthLimit {
    double smaller_by = 0;
    int most_lines = 10'000;
};

// Measures one block and what its objects hold. `page` and `pages` stand in for {page} and {pages}.
struct PageNumber {
    int page = 1;
    int pages = 1;
};
Piece make_block(Fonts& fonts, const document::Report& report, const document::Block& block,
                 const GrowthLimit& limit, const PageNumber& number = {});

// The next stricter limit; false when there is none.
bool tighten(GrowthLimit& limit);

// The rows of a subreport as pieces, each at most `room` high together with the head. `next_row` hears of
// every row before it is measured.
SectionPieces make_table(Fonts& fonts, const document::Report& report, const document::Table& table,
                         double width, double room, const std::function<void()>& next_row = {});

} // namespace levora::paper
