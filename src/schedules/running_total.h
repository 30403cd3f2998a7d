#pragma once

#include <string>

namespace levora::schedules {

// A total that a text field builds up one amount at a time: each partial sum is what the field's text
// would hold of it, 15 significant digits. Adds up first, so that the field is written once.
class RunningTotal {
public:
    void add(double amount);
    [[nodiscard]] double value() const { return sum_; }
    [[nodiscard]] std::string text() const;

private:
    double sum_ = 0;
};

} // namespace levora::schedules
