#include "widgets/fields.h"

#include "widgets/failure.h"
#include "widgets/form.h"
#include "widgets/utf8.h"

#include <utility>

namespace levora::widgets {

namespace {

constexpr int invalid_property_value = 380;
constexpr char placeholder = '_';

enum class Place { digit, letter, capital, literal };

struct MaskPlace {
    Place kind;
    char literal;
};

std::vector<MaskPlace> places_of(const std::string& mask) {
    std::vector<MaskPlace> places;
    bool capitals = false;
    for (const char c : mask) {
        if (c == '>')
            capitals = true;
        else if (c == '#')
            places.push_back({Place::digit, 0});
        else if (c == '?')
            places.push_back({capitals ? Place::capital : Place::letter, 0});
        else
            places.push_back({Place::literal, c});
    }
    return places;
}

bool is_ascii_letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// What the place holds when this character is put there; nothing when it does not fit.
std::optional<char> fit(const MaskPlace& place, char c) {
    switch (place.kind) {
    case Place::digit:
        return c >= '0' && c <= '9' ? std::optional(c) : std::nullopt;
    case Place::letter:
        return is_ascii_letter(c) ? std::optional(c) : std::nullopt;
    case Place::capital:
        return is_ascii_letter(c) ? std::optional(upper_case({&c, 1}).front()) : std::nullopt;
    case Place::literal:
        return c == place.literal ? std::optional(c) : std::nullopt;
    }
    return std::nullopt;
}

std::string empty_text_of(const std::string& mask) {
    std::string text;
    for (const MaskPlace& place : places_of(mask))
        text += place.kind == Place::literal ? place.literal : placeholder;
    return text;
}

} // namespace

MaskedField::MaskedField(Form& form, std::string name, std::string mask, std::string text_label)
    : Control(form, std::move(name), ControlKind::masked_field), mask_(std::move(mask)),
      empty_text_(empty_text_of(mask_)), text_(empty_text_) {
    label = std::move(text_label);
}

void MaskedField::set_text(std::string_view text) {
    if (mask_.empty()) {
        if (text_ != text) change(std::string(text));
        return;
    }
    if (text.empty()) text = empty_text_;
    const std::vector<MaskPlace> places = places_of(mask_);
    std::string held;
    bool fits = text.size() == places.size();
    for (std::size_t i = 0; fits && i < places.size(); ++i) {
        const char c = text[i];
        if (c == placeholder && places[i].kind != Place::literal) {
            held += c;
            continue;
        }
        const std::optional<char> taken = fit(places[i], c);
        fits = taken.has_value();
        if (taken) held += *taken;
    }
    if (!fits) throw Failure(invalid_property_value, "Invalid property value");
    if (held != text_) change(std::move(held));
}

void MaskedField::set_locked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    notify(Aspect::state);
}

std::string MaskedField::filled(std::string_view typed) const {
    if (mask_.empty()) return std::string(typed);
    const std::vector<MaskPlace> places = places_of(mask_);
    std::string held = empty_text_;
    std::size_t at = 0;
    for (const char c : typed) {
        while (at < places.size() && places[at].kind == Place::literal && c != places[at].literal)
            ++at;
        if (at == places.size()) break;
        if (c == placeholder) {
            ++at; // an open place typed over stays open
            continue;
        }
        if (const std::optional<char> taken = fit(places[at], c)) held[at++] = *taken;
    }
    return held;
}

bool MaskedField::type(std::string_view text) {
    if (locked_ || !can_act()) return false;
    std::string held = filled(text);
    become_active();
    if (held != text_) change(std::move(held));
    return true;
}

void MaskedField::change(std::string text) {
    text_ = std::move(text);
    raise("Change", on_change);
    notify(Aspect::content);
}

} // namespace levora::widgets
