#include "return/return_screen.h"
#include "session/grid_sheet.h"
#include "widgets/typed_control.h"
#include "widgets/value_text.h"

#include <string>
#include <string_view>

namespace levora::form_ba {

using widgets::Grid;

namespace {

// The schedule's line behind the header, and where its footer takes the total from.
struct ScheduleLine {
    std::string_view grid;
    std::string_view line;
    std::string_view total_field; // empty: no footer
};

constexpr ScheduleLine schedule_lines[] = {
    {"sprImmovableProperty", "/n SCHEDULE- IP Immovale Property/n/n", "txtAggregateImmovableProperty"},
    {"sprMovableProperty", "/n SCHEDULE- MP Movable Property (Oter than jewellery)/n  /n",
     "TotalValMovableProp"},
    {"sprJewellery", "/n SCHEDULE JE (Jewellery etc. referred n Sec S2)/n  /n", "txtJewlNetAmtTotal"},
    {"sprInducibleNetWealth", "/n SCHEDULE-INW (Includible net wealth on other person)", ""},
    {"sprAssetInterest", "/n SCHEDULE-IFA (Interest held in Asset of firm or Association of Person)",
     "txtTotalInterestAmount"},
    {"sprAssetsClaimedExempt",
     "/n SCHEDULE-ACE (Assets referred to in section 2(ea) which are claimed as exempt u/s 5)", ""},
    {"sprScheduleOPR", "/n Schedule OPR :- ( To be filled up by individual or HUF only))", ""},
    {"sprPreciousStone", "/n Schedule JE :- ( Description of Precious and Semi-precious Stones))", ""},
};

std::string footer_of(const std::string& amount) {
    return val(amount) > 0 ? "/fz\"9\"/fb1/rTotal: " + amount : std::string();
}

} // namespace

// Gives the active grid its header, footer and fitted columns; null when there is no sheet to be had.
Grid* frmFormBA::prepare_sheet() {
    Grid* const grid = session::active_grid(*this);
    if (!grid) return nullptr;
    std::string header = "/n /n Assessee Name : " + txtFirstName.text() + " " + txtMiddleName.text() + " " +
                         txtName.text() + "/n /n A. Y.  : " + mskAY.text() + "/n /n Wealth Tax : Form BB" +
                         "/n /n" + grid->tag + "/n";
    std::string footer;
    for (const ScheduleLine& each : schedule_lines) {
        if (each.grid != grid->name()) continue;
        header += each.line;
        if (const auto* total = widgets::as_if<widgets::TextField>(find(each.total_field)))
            footer = footer_of(total->text());
    }
    // Wanted: here the words and the amount are added as numbers, which fails: no sheet, no message.
    if (grid == &sprInducibleNetWealth && grid->value(other_person_column::net, total_row) > 0)
        return nullptr;
    grid->print_header = header;
    grid->print_footer = footer;
    for (int column = 1; column <= grid->data_columns(); ++column)
        grid->set_column_width(column, grid->max_text_width(column));
    return grid;
}

// A sheet that can't be had, or a print that was cancelled, ends here without a word.
void frmFormBA::show_active_sheet(session::SheetUse use) {
    try {
        if (Grid* const grid = prepare_sheet()) show_grid_sheet(session_, *grid, use);
    } catch (const Failure&) {
        return;
    }
}

void frmFormBA::preview_active_sheet() {
    show_active_sheet(session::SheetUse::preview);
}

void frmFormBA::print_active_sheet() {
    show_active_sheet(session::SheetUse::print);
}

} // namespace levora::form_ba
