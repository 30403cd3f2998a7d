#include "schedules/running_total.h"

#include "widgets/value_text.h"

#include <cmath>

namespace levora::schedules {

void RunningTotal::add(double amount) {
    sum_ += amount;
    // Whole amounts below 10^15 pass through their text unchanged.
    constexpr double exact_in_text = 1e15;
    if (std::fabs(sum_) < exact_in_text && sum_ == std::floor(sum_)) return;
    sum_ = val(number_text(sum_));
}

std::string RunningTotal::text() const {
    return number_text(sum_);
}

} // namespace levora::schedules
