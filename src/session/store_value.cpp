#include "session/data_store.h"

#include "widgets/value_text.h"

namespace levora::session {

std::string Value::text() const {
    if (const auto* text = std::get_if<std::string>(&held_)) return *text;
    return is_null() ? std::string() : number_text(number());
}

double Value::number() const {
    if (const auto* text = std::get_if<std::string>(&held_)) return val(*text);
    if (const auto* whole = std::get_if<std::int64_t>(&held_)) return static_cast<double>(*whole);
    if (const auto* number = std::get_if<double>(&held_)) return *number;
    return 0;
}

std::optional<Date> Value::date() const {
    const auto* text = std::get_if<std::string>(&held_);
    return text ? parse_date(*text) : std::nullopt;
}

std::string Value::day_month_year_or_empty() const {
    const auto found = date();
    return found ? day_month_year(*found) : std::string();
}

} // namespace levora::session
