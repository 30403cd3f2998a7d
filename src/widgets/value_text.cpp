#include "widgets/value_text.h"

#include "widgets/failure.h"

#include <array>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <limits>

namespace levora {

namespace {

constexpr int significant_digits = 15;

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Takes the next character of a number, passing over blanks as the leading-number reading does.
class NumberScanner {
public:
    explicit NumberScanner(std::string_view text) : text_(text) { skip(); }

    [[nodiscard]] char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    void take(std::string& into) {
        into += text_[at_++];
        skip();
    }
    void drop() {
        ++at_;
        skip();
    }

private:
    void skip() {
        while (at_ < text_.size() && is_blank(text_[at_]))
            ++at_;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

double parse_plain(std::string_view digits) {
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    // Out of range leaves the value untouched: a number too large for a double is an overflow, one
    // too small is nothing.
    if (error == std::errc::result_out_of_range) {
        const std::size_t exponent = digits.find_first_of("eE");
        const bool tiny =
            exponent != std::string_view::npos && digits.find('-', exponent) != std::string_view::npos;
        if (tiny || digits.find_first_of("123456789") == std::string_view::npos) return 0;
        const std::size_t point = digits.substr(0, exponent).find('.');
        const std::string_view whole = digits.substr(0, std::min(point, digits.size()));
        if (exponent == std::string_view::npos && whole.find_first_of("123456789") == std::string_view::npos)
            return 0;
        throw_overflow();
    }
    return value;
}

// The plain decimal digits of a text like "1.5e-07".
std::string without_exponent(std::string_view scientific) {
    const std::size_t e = scientific.find('e');
    if (e == std::string_view::npos) return std::string(scientific);
    int exponent = 0;
    std::string_view power = scientific.substr(e + 1);
    if (!power.empty() && power.front() == '+') power.remove_prefix(1);
    std::from_chars(power.data(), power.data() + power.size(), exponent);

    std::string sign, digits;
    int point = 0;
    for (const char c : scientific.substr(0, e)) {
        if (c == '-')
            sign = "-";
        else if (c == '.')
            point = static_cast<int>(digits.size());
        else
            digits += c;
    }
    if (point == 0) point = static_cast<int>(digits.size());
    point += exponent;
    if (point <= 0) return sign + "0." + std::string(static_cast<std::size_t>(-point), '0') + digits;
    const auto places = static_cast<std::size_t>(point);
    if (places >= digits.size()) return sign + digits + std::string(places - digits.size(), '0');
    return sign + digits.substr(0, places) + "." + digits.substr(places);
}

int digit_count(std::string_view number) {
    const std::string_view mantissa = number.substr(0, number.find('e'));
    int count = 0;
    int trailing_zeros = 0;
    bool leading = true;
    for (const char c : mantissa) {
        if (!is_digit(c)) continue;
        if (c == '0' && leading) continue;
        leading = false;
        ++count;
        trailing_zeros = c == '0' ? trailing_zeros + 1 : 0;
    }
    return count - trailing_zeros;
}

std::string grouped_whole(std::string_view digits) {
    std::string result;
    const std::size_t count = digits.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t behind = count - i; // digits from here to the end
        const bool boundary = i > 0 && (behind == 3 || (behind > 3 && (behind - 3) % 2 == 0));
        if (boundary) result += ',';
        result += digits[i];
    }
    return result;
}

} // namespace

double val(std::string_view text) {
    // Nearly every text is a plain whole or decimal number: read it without a copy.
    if (!text.empty() && (is_digit(text.front()) || text.front() == '-')) {
        bool plain = true;
        for (const char c : text) {
            if (!is_digit(c) && c != '.' && c != '-') {
                plain = false;
                break;
            }
        }
        if (plain) {
            double value = 0;
            const char* end = text.data() + text.size();
            const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
            if (error == std::errc() && (stop == end || *stop != '.')) return value;
        }
    }

    NumberScanner scanner(text);
    std::string number;
    if (scanner.peek() == '-')
        scanner.take(number);
    else if (scanner.peek() == '+')
        scanner.drop();
    bool digits = false;
    while (is_digit(scanner.peek())) {
        digits = true;
        scanner.take(number);
    }
    if (scanner.peek() == '.') {
        number += digits ? "" : "0";
        scanner.take(number);
        while (is_digit(scanner.peek())) {
            digits = true;
            scanner.take(number);
        }
    }
    if (!digits) return 0;
    const char exponent_mark = scanner.peek();
    if (exponent_mark == 'e' || exponent_mark == 'E' || exponent_mark == 'd' || exponent_mark == 'D') {
        scanner.drop();
        std::string exponent = "e";
        if (scanner.peek() == '-' || scanner.peek() == '+') scanner.take(exponent);
        bool exponent_digits = false;
        while (is_digit(scanner.peek())) {
            exponent_digits = true;
            scanner.take(exponent);
        }
        // from_chars takes no "+" in an exponent's place that has no digits: such an "e" ends the number.
        if (exponent_digits) number += exponent;
    }
    return parse_plain(number);
}

std::optional<double> strict_number(std::string_view text) {
    std::string_view body = trimmed(text);
    std::string number;
    if (!body.empty() && (body.front() == '-' || body.front() == '+')) {
        if (body.front() == '-') number += '-';
        body.remove_prefix(1);
    }
    bool digits = false;
    bool point = false;
    for (std::size_t i = 0; i < body.size(); ++i) {
        const char c = body[i];
        if (is_digit(c)) {
            digits = true;
            number += c;
        } else if (c == '.' && !point) {
            point = true;
            if (!digits) number += '0';
            number += c;
        } else if (c == ',' && digits && !point && i + 1 < body.size() && is_digit(body[i + 1])) {
            continue;
        } else if ((c == 'e' || c == 'E') && digits) {
            std::string_view power = body.substr(i + 1);
            std::string exponent = "e";
            if (!power.empty() && (power.front() == '-' || power.front() == '+')) {
                exponent += power.front();
                power.remove_prefix(1);
            }
            if (power.empty()) return std::nullopt;
            for (const char d : power)
                if (!is_digit(d)) return std::nullopt;
            number += exponent + std::string(power);
            break;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    return parse_plain(number);
}

double to_double(std::string_view text) {
    const std::optional<double> number = strict_number(text);
    if (!number) throw_type_mismatch();
    return *number;
}

std::string number_text(double value) {
    if (value == 0) return "0";
    if (!std::isfinite(value)) throw_overflow();
    std::array<char, 400> buffer{};
    char* const begin = buffer.data();
    char* const end = begin + buffer.size();
    constexpr double exact_whole = 1e15;
    if (std::abs(value) < exact_whole && value == std::trunc(value)) {
        const auto written = std::to_chars(begin, end, static_cast<std::int64_t>(value));
        return std::string(begin, written.ptr);
    }
    auto written = std::to_chars(begin, end, value);
    std::string_view shortest(begin, static_cast<std::size_t>(written.ptr - begin));
    std::string text;
    if (digit_count(shortest) > significant_digits) {
        written = std::to_chars(begin, end, value, std::chars_format::scientific, significant_digits - 1);
        text = without_exponent(std::string_view(begin, static_cast<std::size_t>(written.ptr - begin)));
    } else {
        text = without_exponent(shortest);
    }
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return text;
}

double round_half_even(double value) {
    return std::nearbyint(value);
}

double round_half_away(double value, int decimals) {
    if (decimals <= 0) return std::round(value);
    // Rounding what the person reads: 1.005 is held as 1.00499..., and its text says 1.005.
    const std::string text = number_text(value);
    const std::size_t point = text.find('.');
    if (point == std::string::npos || text.size() - point - 1 <= static_cast<std::size_t>(decimals))
        return value;
    const std::size_t cut = point + 1 + static_cast<std::size_t>(decimals);
    std::string kept = text.substr(0, cut);
    if (text[cut] >= '5') {
        std::size_t i = kept.size();
        bool carry = true;
        while (carry && i > 0) {
            char& c = kept[--i];
            if (!is_digit(c)) continue;
            carry = c == '9';
            c = carry ? '0' : static_cast<char>(c + 1);
        }
        if (carry) kept.insert(kept.front() == '-' ? 1 : 0, "1");
    }
    return val(kept);
}

std::int32_t to_long(double value) {
    const double whole = round_half_even(value);
    if (!(whole >= std::numeric_limits<std::int32_t>::min() &&
          whole <= std::numeric_limits<std::int32_t>::max()))
        throw_overflow();
    return static_cast<std::int32_t>(whole);
}

std::int16_t to_integer(double value) {
    const double whole = round_half_even(value);
    if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
          whole <= std::numeric_limits<std::int16_t>::max()))
        throw_overflow();
    return static_cast<std::int16_t>(whole);
}

std::int32_t to_long(std::string_view text) {
    return to_long(to_double(text));
}

std::int16_t to_integer(std::string_view text) {
    return to_integer(to_double(text));
}

std::string group_indian(double value, int decimals) {
    const double rounded = round_half_away(value, decimals);
    std::string text = number_text(rounded);
    if (decimals > 0) {
        std::size_t point = text.find('.');
        if (point == std::string::npos) {
            point = text.size();
            text += '.';
        }
        const std::size_t wanted = point + 1 + static_cast<std::size_t>(decimals);
        if (text.size() < wanted) text.append(wanted - text.size(), '0');
    }
    return group_indian_text(text);
}

std::string group_indian_text(std::string_view number) {
    std::string sign;
    if (!number.empty() && number.front() == '-') {
        sign = "-";
        number.remove_prefix(1);
    }
    std::size_t whole = 0;
    while (whole < number.size() && is_digit(number[whole]))
        ++whole;
    return sign + grouped_whole(number.substr(0, whole)) + std::string(number.substr(whole));
}

bool equal_without_case(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    for (std::size_t i = 0; i < left.size(); ++i)
        if (upper(left[i]) != upper(right[i])) return false;
    return true;
}

std::string upper_case(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    // The accented letters of western names: two bytes each, the small ones 32 above the capitals.
    for (std::size_t at = result.find('\xC3'); at != std::string::npos; at = result.find('\xC3', at + 1)) {
        if (at + 1 == result.size()) break;
        const auto second = static_cast<unsigned char>(result[at + 1]);
        constexpr unsigned char first_small = 0xA0, last_small = 0xBE, division_sign = 0xB7;
        if (second >= first_small && second <= last_small && second != division_sign)
            result[at + 1] = static_cast<char>(second - 0x20);
    }
    return result;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace levora
