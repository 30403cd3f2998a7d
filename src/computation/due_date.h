#pragma once

#include <string_view>

namespace levora::computation {

// Months and parts of a month from the due date to the filing date, both as texts day first: 0 when
// the return is not late or one of them is no date. Interest of section 17B is counted by them.
int months_late(std::string_view due_date, std::string_view filing_date);

// Of the tax, for each month or part of a month (section 17B).
constexpr double interest_rate_per_month = 0.01;

} // namespace levora::computation
