#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace levora {

// A day of the calendar, years 1 to 9999.
struct Date {
    int year = 1;
    int month = 1;
    int day = 1;

    auto operator<=>(const Date&) const = default;
};

bool is_calendar_date(const Date& date);
Date next_day(const Date& date);
// Calendar-month boundaries crossed from one date to the other, the days ignored; negative when `to`
// lies before `from`.
int months_between(const Date& from, const Date& to);

// Reads day, month, year (one or two digits, one or two digits, four digits) with "/", "-" or "."
// between, or year-month-day with "-". Nothing for a date that the calendar does not have.
std::optional<Date> parse_date(std::string_view text);
bool is_date(std::string_view text);

// "dd/MM/yyyy", "yyyy-MM-dd" and "MM/dd/yyyy".
std::string day_month_year(const Date& date);
std::string iso_date(const Date& date);
std::string month_day_year(const Date& date);

// A text that is a date in the wanted format; any other text unchanged.
std::string as_day_month_year(std::string_view text);
std::string as_iso_date(std::string_view text);

} // namespace levora
