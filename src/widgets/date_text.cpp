#include "widgets/date_text.h"

#include "widgets/value_text.h"

#include <array>
#include <cstdio>

namespace levora {

namespace {

bool is_leap(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int days_in_month(int year, int month) {
    constexpr std::array days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && is_leap(year) ? 29 : days.at(static_cast<std::size_t>(month - 1));
}

// Reads a run of digits no longer than `longest`; -1 when there is none.
int take_number(std::string_view& text, std::size_t shortest, std::size_t longest) {
    std::size_t count = 0;
    int number = 0;
    while (count < text.size() && text[count] >= '0' && text[count] <= '9') {
        if (count == longest) return -1;
        number = number * 10 + (text[count] - '0');
        ++count;
    }
    if (count < shortest) return -1;
    text.remove_prefix(count);
    return number;
}

std::string format(const char* pattern, int first, int second, int third) {
    std::array<char, 40> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), pattern, first, second, third);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::optional<Date> parse_year_first(std::string_view text) {
    Date date;
    date.year = take_number(text, 4, 4);
    if (date.year < 0 || text.empty() || text.front() != '-') return std::nullopt;
    text.remove_prefix(1);
    date.month = take_number(text, 1, 2);
    if (date.month < 0 || text.empty() || text.front() != '-') return std::nullopt;
    text.remove_prefix(1);
    date.day = take_number(text, 1, 2);
    if (!text.empty() || !is_calendar_date(date)) return std::nullopt;
    return date;
}

} // namespace

bool is_calendar_date(const Date& date) {
    return date.year >= 1 && date.year <= 9999 && date.month >= 1 && date.month <= 12 && date.day >= 1 &&
           date.day <= days_in_month(date.year, date.month);
}

Date next_day(const Date& date) {
    Date next = date;
    if (++next.day > days_in_month(next.year, next.month)) {
        next.day = 1;
        if (++next.month > 12) {
            next.month = 1;
            ++next.year;
        }
    }
    return next;
}

int months_between(const Date& from, const Date& to) {
    return (to.year - from.year) * 12 + (to.month - from.month);
}

std::optional<Date> parse_date(std::string_view whole) {
    std::string_view text = trimmed(whole);
    if (const std::optional<Date> date = parse_year_first(text)) return date;
    Date date;
    date.day = take_number(text, 1, 2);
    if (date.day < 0 || text.empty()) return std::nullopt;
    const char separator = text.front();
    if (separator != '/' && separator != '-' && separator != '.') return std::nullopt;
    text.remove_prefix(1);
    date.month = take_number(text, 1, 2);
    if (date.month < 0 || text.empty() || text.front() != separator) return std::nullopt;
    text.remove_prefix(1);
    date.year = take_number(text, 4, 4);
    if (date.year < 0 || !text.empty() || !is_calendar_date(date)) return std::nullopt;
    return date;
}

bool is_date(std::string_view text) {
    return parse_date(text).has_value();
}

std::string day_month_year(const Date& date) {
    return format("%02d/%02d/%04d", date.day, date.month, date.year);
}

std::string iso_date(const Date& date) {
    return format("%04d-%02d-%02d", date.year, date.month, date.day);
}

std::string month_day_year(const Date& date) {
    return format("%02d/%02d/%04d", date.month, date.day, date.year);
}

std::string as_day_month_year(std::string_view text) {
    const std::optional<Date> date = parse_date(text);
    return date ? day_month_year(*date) : std::string(text);
}

std::string as_iso_date(std::string_view text) {
    const std::optional<Date> date = parse_date(text);
    return date ? iso_date(*date) : std::string(text);
}

} // namespace levora
