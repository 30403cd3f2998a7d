#include "widgets/fields.h"

#include "widgets/failure.h"
#include "widgets/form.h"
#include "widgets/typed_control.h"
#include "widgets/utf8.h"

#include <algorithm>
#include <utility>

namespace levora::widgets {

TextField::TextField(Form& form, std::string name, std::string text_label)
    : Control(form, std::move(name), ControlKind::text_field) {
    label = std::move(text_label);
}

void TextField::set_text(std::string_view text) {
    if (text_ == text) return;
    change(std::string(text));
}

void TextField::set_locked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    notify(Aspect::state);
}

void TextField::set_max_length(int characters) {
    max_length_ = characters;
}

void TextField::set_key_filter(bool (*accepts)(char32_t)) {
    accepts_ = accepts;
}

bool TextField::accepts(char32_t character) const {
    return !accepts_ || accepts_(character);
}

bool TextField::type(std::string_view text) {
    if (locked_ || !can_act()) return false;
    std::string taken;
    int count = 0;
    while (!text.empty()) {
        const char32_t character = take_character(text);
        if (!accepts(character)) continue;
        if (max_length_ > 0 && count == max_length_) break;
        append_character(taken, character);
        ++count;
    }
    become_active();
    if (taken != text_) change(std::move(taken));
    return true;
}

void TextField::change(std::string text) {
    text_ = std::move(text);
    raise("Change", on_change);
    notify(Aspect::content);
}

bool is_amount_key(char32_t character) {
    return (character >= U'0' && character <= U'9') || character == U'.' || character == U'-' ||
           character == U'\b';
}

TickBox::TickBox(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), ControlKind::tick_box), caption_(std::move(caption)) {}

void TickBox::set_value(int value) {
    const int wanted = value != 0 ? 1 : 0;
    if (value_ == wanted) return;
    value_ = wanted;
    raise("Click", on_click);
    notify(Aspect::content);
}

bool TickBox::click() {
    if (!can_act()) return false;
    become_active();
    set_value(1 - value_);
    return true;
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, std::string group)
    : Control(form, std::move(name), ControlKind::option), caption_(std::move(caption)),
      group_(std::move(group)) {}

void OptionButton::set_value(bool value) {
    if (value_ == value) return;
    value_ = value;
    if (value_) clear_others();
    notify(Aspect::content);
    if (value_) raise("Click", on_click);
}

bool OptionButton::click() {
    if (!can_act()) return false;
    become_active();
    if (value_)
        raise("Click", on_click);
    else
        set_value(true);
    return true;
}

void OptionButton::clear_others() {
    for (Control* each : form().controls()) {
        auto* other = as_if<OptionButton>(each);
        if (other && other != this && other->group_ == group_) other->set_value(false);
    }
}

Button::Button(Form& form, std::string name, std::string caption, ControlKind kind)
    : Control(form, std::move(name), kind), caption_(std::move(caption)) {}

void Button::set_caption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    notify(Aspect::content);
}

bool Button::click() {
    if (!can_act()) return false;
    become_active();
    raise("Click", on_click);
    return true;
}

Menu::Menu(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), ControlKind::menu), caption_(std::move(caption)) {}

MenuItem::MenuItem(Form& form, std::string name, std::string caption, const Menu& menu)
    : Button(form, std::move(name), std::move(caption), ControlKind::menu_item), menu_(menu) {}

bool MenuItem::click() {
    // A menu takes no focus: the active control stays the one that the item works on.
    if (!enabled()) return false;
    raise("Click", on_click);
    return true;
}

Label::Label(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), ControlKind::label), caption_(std::move(caption)) {}

void Label::set_caption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    notify(Aspect::content);
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), ControlKind::frame), caption_(std::move(caption)) {}

void Frame::set_caption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    notify(Aspect::content);
}

Tabs::Tabs(Form& form, std::string name, std::vector<std::string> captions)
    : Control(form, std::move(name), ControlKind::tabs) {
    for (std::string& caption : captions)
        pages_.push_back({std::move(caption)});
}

const Tabs::Page& Tabs::page(int tab) const {
    if (tab < 0 || tab >= count())
        throw Failure(error_number::invalid_call, "Invalid procedure call or argument");
    return pages_[static_cast<std::size_t>(tab)];
}

const std::string& Tabs::caption(int tab) const {
    return page(tab).caption;
}
bool Tabs::tab_enabled(int tab) const {
    return page(tab).enabled;
}
bool Tabs::tab_visible(int tab) const {
    return page(tab).visible;
}

void Tabs::set_tab(int tab) {
    (void)page(tab);
    if (tab_ == tab) return;
    tab_ = tab;
    raise("Click", on_change);
    notify(Aspect::content);
}

void Tabs::set_caption(int tab, std::string caption) {
    (void)page(tab);
    pages_[static_cast<std::size_t>(tab)].caption = std::move(caption);
    notify(Aspect::state);
}

void Tabs::set_tab_enabled(int tab, bool enabled) {
    (void)page(tab);
    pages_[static_cast<std::size_t>(tab)].enabled = enabled;
    notify(Aspect::state);
}

void Tabs::set_tab_visible(int tab, bool visible) {
    (void)page(tab);
    pages_[static_cast<std::size_t>(tab)].visible = visible;
    notify(Aspect::state);
}

bool Tabs::choose(int tab) {
    if (!can_act() || tab < 0 || tab >= count()) return false;
    if (!tab_enabled(tab) || !tab_visible(tab)) return false;
    become_active();
    set_tab(tab);
    return true;
}

Timer::Timer(Form& form, std::string name, int interval_milliseconds)
    : Control(form, std::move(name), ControlKind::timer), interval_milliseconds_(interval_milliseconds) {}

void Timer::set_running(bool running) {
    if (running_ == running) return;
    running_ = running;
    notify(Aspect::state);
}

bool Timer::tick() {
    if (!running_) return false;
    raise("Timer", on_tick);
    return true;
}

SpinButtons::SpinButtons(Form& form, std::string name, TextField& field)
    : Control(form, std::move(name), ControlKind::spin_buttons), field_(field) {}

bool SpinButtons::up() {
    return count(1);
}
bool SpinButtons::down() {
    return count(-1);
}

bool SpinButtons::count(double by) {
    if (!can_act() || !field_.enabled() || !field_.visible() || field_.locked()) return false;
    become_active();
    field_.set_value(std::max(0.0, field_.value() + by));
    return true;
}

} // namespace levora::widgets
