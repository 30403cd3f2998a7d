#include "computation/wealth_sheet.h"
#include "session/common_services.h"

namespace levora::computation {

namespace {

constexpr int invalid_property_value = 380;
constexpr int slide_steps = 10;
constexpr int opening = 1;
constexpr int closing = 0;

// Where the panels lie while they are closed, in twips.
constexpr double closed_width = 60;
constexpr double closed_left = 11880;

void set_width(widgets::Frame& panel, double width) {
    if (width < 0) throw Failure(invalid_property_value, "Invalid property value");
    panel.width_twips = width;
}

} // namespace

// One sliding panel: the two work alike but for the width and the way of a step, in twips.
struct frmWealthMain::Slide {
    widgets::Frame& panel;
    widgets::Button& button;
    widgets::Timer& timer;
    int& direction;
    std::uint8_t& step;
    double width_step;
    double left_step;
};

frmWealthMain::Slide frmWealthMain::interest_slide() {
    return {frInterest, cmdInterest, timInterest, InterestSlideDirection, InterestSlideStep, 373.5, 372};
}

frmWealthMain::Slide frmWealthMain::prepaid_slide() {
    return {frSATax, cmdSATaxPayable, timSATax, SATaxSlideDirection, SATaxSlideStep, 805.5, 816};
}

void frmWealthMain::open_or_close(const Slide& slide) {
    slide.step = 1;
    if (slide.panel.visible()) {
        slide.direction = closing;
        slide.button.set_caption("<<");
    } else {
        slide.panel.set_visible(true);
        slide.panel.bring_to_front();
        slide.direction = opening;
        slide.button.set_caption(">>");
    }
    slide.timer.set_running(true);
}

void frmWealthMain::slide_on(const Slide& slide) {
    if (slide.step > slide_steps) {
        slide.timer.set_running(false);
        if (slide.direction == closing) slide.panel.set_visible(false);
        return;
    }
    ++slide.step;
    const double way = slide.direction == opening ? 1 : -1;
    try {
        set_width(slide.panel, slide.panel.width_twips + way * slide.width_step);
    } catch (const Failure& failure) {
        // A panel closed while it opens would become narrower than nothing: that step is let pass.
        if (failure.number != invalid_property_value) throw;
    }
    slide.panel.left_twips -= way * slide.left_step;
}

void frmWealthMain::cmdSATaxPayable_Click() {
    const bool closes = frSATax.visible();
    open_or_close(prepaid_slide());
    if (closes) {
        SavePrepaidTaxesOnClose();
    } else {
        sprSATax.set_focus();
        LoadPrepaidTaxesOnOpen();
    }
}

void frmWealthMain::cmdEnclosure_Click() {
    const bool opens = cmdEnclosure.caption() == ">>";
    frEnclosure.set_visible(opens);
    cmdEnclosure.set_caption(opens ? "<<" : ">>");
}

void frmWealthMain::connect_panels() {
    for (widgets::Frame* panel : {&frInterest, &frSATax}) {
        panel->width_twips = closed_width;
        panel->left_twips = closed_left;
    }
    cmdInterest.on_click = [this] { open_or_close(interest_slide()); };
    cmdSATaxPayable.on_click = [this] { cmdSATaxPayable_Click(); };
    cmdEnclosure.on_click = [this] { cmdEnclosure_Click(); };
    timInterest.on_tick = [this] {
        session::procedure(session_, "frmWealthTaxMain - timInterest_Timer",
                           [this](const auto& attempt) { attempt([this] { slide_on(interest_slide()); }); });
    };
    timSATax.on_tick = [this] {
        session::procedure(session_, "frmWealthTaxMain - timSATax_Timer",
                           [this](const auto& attempt) { attempt([this] { slide_on(prepaid_slide()); }); });
    };
}

} // namespace levora::computation
