#include "widgets/reckoning.h"

#include "widgets/value_text.h"

#include <cmath>

namespace levora::widgets {

double sum_of(std::span<const double> inputs) {
    double sum = 0;
    for (const double input : inputs)
        sum += input;
    return sum;
}

double difference_of(std::span<const double> inputs) {
    return inputs[0] - inputs[1];
}

double floored_difference_of(std::span<const double> inputs) {
    const double difference = difference_of(inputs);
    return difference < 0 ? 0 : difference;
}

double first_of(std::span<const double> inputs) {
    return inputs[0];
}

double running_sum_of(std::span<const double> inputs) {
    // Whole amounts below 10^15 pass through their text unchanged.
    constexpr double exact_in_text = 1e15;
    double sum = 0;
    for (const double input : inputs) {
        sum += input;
        if (std::fabs(sum) >= exact_in_text || sum != std::floor(sum)) sum = val(number_text(sum));
    }
    return sum;
}

} // namespace levora::widgets
