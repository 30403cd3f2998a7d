#include "widgets/form.h"

#include "widgets/failure.h"
#include "widgets/screens.h"

#include <cassert>
#include <utility>

namespace levora::widgets {

Form::Form(Screens& screens, std::string name, std::string caption)
    : screens_(screens), name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::add(Control& control) {
    assert(!by_name_.contains(control.name()) && "two controls of one name");
    controls_.push_back(&control);
    by_name_.emplace(control.name(), &control);
}

Control* Form::find(std::string_view control) const {
    const auto found = by_name_.find(control);
    return found == by_name_.end() ? nullptr : found->second;
}

void Form::set_caption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    if (view) view->form_changed(*this);
}

void Form::set_visible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    if (view) view->form_changed(*this);
    if (visible) {
        if (screens_.on_shown) screens_.on_shown(*this);
        Form_Activate();
    }
}

void Form::set_enabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (view) view->form_changed(*this);
}

void Form::set_busy(bool busy) {
    if (busy_ == busy) return;
    busy_ = busy;
    if (view) view->form_changed(*this);
}

void Form::bring_up() {
    if (view) view->form_raised(*this);
}

bool Form::Form_KeyDown(std::string_view /*key*/) {
    return false;
}

bool Form::press_key(std::string_view key) {
    bool answered = false;
    run_event("Form_KeyDown", [&] { answered = Form_KeyDown(key); });
    return answered;
}

void Form::show_popup(const Menu& menu) {
    if (view) view->popup_wanted(*this, menu);
}

void Form::run_event(std::string_view event, const std::function<void()>& handler) const {
    // Inside another event a Failure simply passes on, so no name has to be put together.
    if (screens_.event_depth() > 0)
        screens_.run_event({}, handler);
    else
        screens_.run_event(name_ + " - " + std::string(event), handler);
}

void Form::run_event(std::string_view control, std::string_view event,
                     const std::function<void()>& handler) const {
    if (screens_.event_depth() > 0)
        screens_.run_event({}, handler);
    else
        screens_.run_event(name_ + " - " + std::string(control) + "_" + std::string(event), handler);
}

} // namespace levora::widgets
