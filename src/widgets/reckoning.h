#pragma once

#include <limits>
#include <span>
#include <string_view>

namespace levora::widgets {

// How figures are made into one, and how that reads. The words name each figure by its position, "$1 less
// $2"; without words all of them are told with "plus" between. The same object works a figure out and
// explains it.
struct Reckoning {
    double (*figure)(std::span<const double> inputs) = nullptr;
    std::string_view words = {};
    std::string_view remark = {}; // what the figures alone do not tell: a bound, the source in law
};

// What a reckoning gives that has no figure to give.
constexpr double no_figure = std::numeric_limits<double>::quiet_NaN();

double sum_of(std::span<const double> inputs);
double difference_of(std::span<const double> inputs);         // a - b
double floored_difference_of(std::span<const double> inputs); // a - b, 0 when below 0
double first_of(std::span<const double> inputs);
// The sum as a text field builds it up one amount at a time: each partial sum is what the field's text
// would hold of it, 15 significant digits.
double running_sum_of(std::span<const double> inputs);

constexpr Reckoning sum_formula{sum_of};
constexpr Reckoning running_sum{running_sum_of};
constexpr Reckoning difference_formula{difference_of, "$1 less $2"};
constexpr Reckoning floored_difference_formula{floored_difference_of, "$1 less $2", "never below 0"};
constexpr Reckoning as_it_is{first_of, "$1"};

} // namespace levora::widgets
