#include "widgets/control.h"

#include "widgets/failure.h"
#include "widgets/form.h"

#include <utility>

namespace levora::widgets {

Control::Control(Form& form, std::string name, ControlKind kind)
    : form_(form), name_(std::move(name)), kind_(kind) {
    form_.add(*this);
}

Control::~Control() = default;

void Control::notify(Aspect aspect) const {
    if (form_.view) form_.view->control_changed(*this, aspect);
}

void Control::set_enabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    notify(Aspect::state);
}

void Control::set_visible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    notify(Aspect::state);
}

void Control::set_backcolor(Color color) {
    if (backcolor_ == color) return;
    backcolor_ = color;
    notify(Aspect::state);
}

void Control::set_forecolor(Color color) {
    if (forecolor_ == color) return;
    forecolor_ = color;
    notify(Aspect::state);
}

void Control::set_tooltip(std::string text) {
    if (tooltip_ == text) return;
    tooltip_ = std::move(text);
    notify(Aspect::state);
}

void Control::bring_to_front() {
    notify(Aspect::front);
}

bool Control::can_act() const {
    return enabled_ && visible_ && form_.enabled();
}

void Control::become_active() {
    form_.set_active_control(this);
}

void Control::raise(std::string_view event, const std::function<void()>& handler) const {
    if (!handler) return;
    form_.run_event(std::string_view(name_), event, handler);
}

bool Control::enter() {
    if (!can_act()) return false;
    become_active();
    raise("GotFocus", on_enter);
    return true;
}

bool Control::leave() {
    bool let_go = true;
    if (on_leave) raise("Validate", [this, &let_go] { let_go = on_leave(); });
    return let_go;
}

void Control::set_focus() {
    if (!enabled_ || !visible_)
        throw Failure(error_number::invalid_call, "Invalid procedure call or argument");
    become_active();
    notify(Aspect::focus);
    raise("GotFocus", on_enter);
}

} // namespace levora::widgets
