#include "computation/wealth_sheet.h"

namespace levora::computation {

namespace {

constexpr double interest_per_month = 0.01; // section 17(B): each month or part of a month
constexpr int slide_moves = 10;

double unrounded(double interest) {
    return interest;
}

} // namespace

void frmWealthMain::connect_interest() {
    chkAudited.on_click = [this] { chkAudited_Click(); };
    mskDueDate.on_change = [this] { mskDueDate_Change(); };
    mskRetDate.on_change = [this] { mskRetDate_Change(); };
    cmdInterest.on_click = [this] { toggle(interest_slide_, frInterest, cmdInterest, timInterest); };
    timInterest.on_tick = [this] { step(interest_slide_, frInterest, timInterest); };
    cmdSATaxPayable.on_click = [this] {
        const bool closes = frSATax.visible();
        toggle(prepaid_slide_, frSATax, cmdSATaxPayable, timSATax);
        if (closes) {
            SavePrepaidTaxesOnClose();
        } else {
            sprSATax.set_focus();
            LoadPrepaidTaxesOnOpen();
        }
    };
    timSATax.on_tick = [this] { step(prepaid_slide_, frSATax, timSATax); };
    cmdEnclosure.on_click = [this] {
        const bool opens = cmdEnclosure.caption() == ">>";
        frEnclosure.set_visible(opens);
        cmdEnclosure.set_caption(opens ? "<<" : ">>");
    };
}

void frmWealthMain::chkAudited_Click() {
    // Wanted: the statutory date of the year's table is not looked up here, only when the sheet is
    // cleared.
    const std::string year = cboFY.text().substr(0, 4);
    mskDueDate.set_text(as_day_month_year((chkAudited.ticked() ? "30/09/" : "31/07/") + year));
    mskRetDate.set_text(day_month_year(session_.desk.today()));
}

int frmWealthMain::months_late() const {
    const std::optional<Date> due = parse_date(mskDueDate.text());
    const std::optional<Date> filed = parse_date(mskRetDate.text());
    if (!due || !filed || *filed <= *due) return 0;
    if (due->year == filed->year && due->month == filed->month) return 1;
    return months_between(next_day(*due), *filed) + 1;
}

void frmWealthMain::set_interest(double (*rounding)(double)) {
    const int months = months_late();
    if (months > 0)
        txtInterest.set_value(rounding(txtWealthTaxLiability.value() * interest_per_month * months));
    else
        txtInterest.set_text("");
}

void frmWealthMain::mskDueDate_Change() {
    session::procedure(session_, "frmWealthTaxMain - mskDueDate_Change",
                       [this](const session::Attempt& attempt) {
                           // Wanted: this handler does not round, its twin does.
                           attempt([this] { set_interest(unrounded); });
                       });
}

void frmWealthMain::mskRetDate_Change() {
    session::procedure(
        session_, "frmWealthTaxMain - mskRetDate_Change",
        [this](const session::Attempt& attempt) { attempt([this] { set_interest(round_half_even); }); });
}

void frmWealthMain::toggle(Slide& slide, widgets::Frame& panel, widgets::Button& button,
                           widgets::Timer& timer) {
    slide.step = 1;
    slide.direction = panel.visible() ? 0 : 1;
    if (slide.direction == 1) {
        panel.set_visible(true);
        panel.bring_to_front();
    }
    timer.set_running(true);
    button.set_caption(slide.direction == 1 ? ">>" : "<<");
}

void frmWealthMain::step(Slide& slide, widgets::Frame& panel, widgets::Timer& timer) {
    if (slide.step > slide_moves) {
        timer.set_running(false);
        if (slide.direction == 0) panel.set_visible(false);
        return;
    }
    ++slide.step;
    const int sign = slide.direction == 1 ? 1 : -1;
    panel.width_twips += sign * slide.wider_twips;
    panel.left_twips -= sign * slide.further_left_twips;
    panel.notify(widgets::Aspect::state);
}

} // namespace levora::computation
