#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Figures live as text; these are the only functions that turn text into a figure and back. None of
// them looks at the machine's locale.
namespace levora {

// The leading number of a text: blanks are skipped, then a sign, digits, one decimal point and an
// exponent are taken as far as they go. Anything else ends the number, a comma too. No number is 0.
double val(std::string_view text);

// The whole text as a number, blanks at its ends allowed, digit grouping by commas allowed between
// digits; nothing when it is not one.
std::optional<double> strict_number(std::string_view text);

// The same, but a text that is no number is a Failure 13.
double to_double(std::string_view text);

// Shortest plain decimal text, up to 15 significant digits, never an exponent, no grouping.
std::string number_text(double value);

// To a whole number, halves to the even neighbour.
double round_half_even(double value);
// To this many decimals, halves away from zero: how a numeric grid cell holds what is written to it.
double round_half_away(double value, int decimals);

// Whole numbers of 32 and 16 bits, rounded half to even; a Failure 6 when they do not fit.
std::int32_t to_long(double value);
std::int16_t to_integer(double value);
// The same from a text, read strictly (Failure 13); "12,34,567" is 1234567.
std::int32_t to_long(std::string_view text);
std::int16_t to_integer(std::string_view text);

// Indian digit grouping: 1234567 is "12,34,567". The decimals are padded or rounded half away.
std::string group_indian(double value, int decimals = 0);
// Groups the whole part of a plain number text, leaving its decimals as they are.
std::string group_indian_text(std::string_view number);

// Text without regard to ASCII case, and its upper case.
bool equal_without_case(std::string_view left, std::string_view right);
std::string upper_case(std::string_view text);
// Without blanks at either end.
std::string_view trimmed(std::string_view text);

} // namespace levora
