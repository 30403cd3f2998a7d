#include "computation/due_date.h"

#include "computation/wealth_sheet.h"
#include "session/common_services.h"
#include "widgets/date_text.h"

namespace levora::computation {

int months_late(std::string_view due_date, std::string_view filing_date) {
    const auto due = parse_date(due_date);
    const auto filed = parse_date(filing_date);
    if (!due || !filed || *filed <= *due) return 0;
    if (due->year == filed->year && due->month == filed->month) return 1;
    return months_between(next_day(*due), *filed) + 1;
}

// Wanted: the interest of a changed due date is not rounded, that of a changed filing date or tax is.
void frmWealthMain::mskDueDate_Change() {
    session::procedure(session_, "frmWealthTaxMain - mskDueDate_Change",
                       [this](const auto& attempt) { attempt([this] { interest_unrounded_->work_out(); }); });
}

void frmWealthMain::mskRetDate_Change() {
    session::procedure(session_, "frmWealthTaxMain - mskRetDate_Change",
                       [this](const auto& attempt) { attempt([this] { interest_rounded_->work_out(); }); });
}

// The dates of the law, not those of the year table: only clearing the sheet looks there.
void frmWealthMain::chkAudited_Click() {
    const std::string year = cboFY.text().substr(0, 4);
    mskDueDate.set_text(as_day_month_year((chkAudited.ticked() ? "30/09/" : "31/07/") + year));
    mskRetDate.set_text(day_month_year(session_.desk.today()));
}

void frmWealthMain::connect_dates() {
    cboFY.on_click = [this] { cboFY_Click(); };
    cboFY.on_change = [this] { cboFY_Click(); };
    chkAudited.on_click = [this] { chkAudited_Click(); };
    mskDueDate.on_change = [this] { mskDueDate_Change(); };
    mskRetDate.on_change = [this] { mskRetDate_Change(); };
}

} // namespace levora::computation
