#include "reports/form_bb_report.h"

#include "reports/screen_text.h"
#include "session/common_services.h"
#include "session/table_rows.h"
#include "widgets/value_text.h"

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace levora::reports {

namespace {

constexpr std::string_view screen = "frmFormBA";
constexpr int other_persons_total_row = 13;
constexpr int other_persons_net = 6;

// What goes into one column of TempPrint: a grid column, or a run of them joined without a separator.
struct Source {
    enum class Kind { cells, annexure_of_row, annexure_title } kind = Kind::cells;
    int first = 0;
    int last = 0;
};
constexpr Source cell(int column) {
    return {Source::Kind::cells, column, column};
}
constexpr Source joined(int first, int last) {
    return {Source::Kind::cells, first, last};
}
// "Annexure 2" where a precious stone names row 2 of the jewellery.
constexpr Source annexure_of_row{Source::Kind::annexure_of_row, 0, 0};
// "Annexure " and the item that the stone names.
constexpr Source annexure_title{Source::Kind::annexure_title, 1, 1};

struct ClauseRows {
    std::string_view clause;
    std::string_view grid;
    std::vector<Source> columns; // Col1, Col2, ...
    std::string_view total;      // the control that follows them; none when empty
};

const std::array<ClauseRows, 8>& clauses() {
    static const std::array<ClauseRows, 8> all{{
        {"SchBTP", "sprScheduleBTP", {cell(1), cell(2), cell(3), cell(4)}, "txtAmtBTPTotal"},
        {"SchIP",
         "sprImmovableProperty",
         {cell(2), joined(3, 10), cell(11), cell(12), cell(13), cell(14), cell(15), cell(16), cell(17)},
         "txtAggregateImmovableProperty"},
        {"SchMP", "sprMovableProperty", {cell(1), cell(2), cell(3), cell(4)}, "TotalValMovableProp"},
        {"SchJ",
         "sprJewellery",
         {cell(1), cell(2), cell(3), cell(4), annexure_of_row, cell(6), cell(7), cell(8), cell(9), cell(10),
          cell(11), cell(12)},
         "txtJewlNetAmtTotal"},
        {"Annexure", "sprPreciousStone", {annexure_title, cell(1), cell(2), cell(3), cell(4)}, ""},
        {"SchINW",
         "sprInducibleNetWealth",
         {cell(1), cell(2), cell(3), cell(4), cell(5), cell(6)},
         "sprInducibleNetWealth"},
        {"SchFA",
         "sprAssetInterest",
         {cell(1), cell(2), cell(3), cell(4), cell(5), cell(6), cell(7), cell(8)},
         "txtTotalInterestAmount"},
        {"SchACE", "sprAssetsClaimedExempt", {cell(1), cell(2), cell(3), cell(4)}, ""},
    }};
    return all;
}

bool has_annexure(const widgets::Grid& stones, int jewellery_row) {
    for (int row = 1; row <= stones.rows(); ++row)
        if (val(stones.text(1, row)) == jewellery_row) return true;
    return false;
}

session::Value value_of(const Source& source, const widgets::Grid& grid, int row,
                        const widgets::Grid& stones) {
    std::string text;
    switch (source.kind) {
    case Source::Kind::annexure_of_row:
        if (!has_annexure(stones, row)) return nullptr;
        return "Annexure " + number_text(row);
    case Source::Kind::annexure_title:
        text = "Annexure ";
        [[fallthrough]];
    case Source::Kind::cells:
        for (int column = source.first; column <= source.last; ++column)
            text += grid.text(column, row);
    }
    return text;
}

std::string total_of(session::Session& session, const ClauseRows& clause, const widgets::Grid& grid) {
    if (clause.total == clause.grid) return grid.text(other_persons_net, other_persons_total_row);
    return text_of(session, screen, clause.total);
}

// Schedule INW takes the named persons alone; every other schedule all rows, empty or not.
bool is_taken(const ClauseRows& clause, const widgets::Grid& grid, int row) {
    const std::string& name = grid.text(1, row);
    return clause.clause != "SchINW" || (name != "Total" && !name.empty());
}

} // namespace

void SaveBusinessAsset(session::Session& session) {
    session::procedure(session, "frmFormBA - SaveBusinessAsset", [&session](const auto& attempt) {
        session::RowSet rows = open_emptied(session, attempt, "[TempPrint]");
        const widgets::Grid& stones = grid_of(session, screen, "sprPreciousStone");
        for (const ClauseRows& clause : clauses()) {
            const widgets::Grid& grid = grid_of(session, screen, clause.grid);
            for (int row = 1; row <= grid.rows(); ++row) {
                if (!is_taken(clause, grid, row)) continue;
                attempt([&] {
                    rows.add_new();
                    rows.set("Clause", std::string(clause.clause));
                    int column = 0;
                    for (const Source& source : clause.columns)
                        rows.set("Col" + number_text(++column), value_of(source, grid, row, stones));
                    if (!clause.total.empty())
                        rows.set("Col" + number_text(++column), total_of(session, clause, grid));
                    rows.update();
                });
            }
        }
    });
}

} // namespace levora::reports
