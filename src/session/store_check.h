#pragma once

#include "session/work_told.h"

#include <string>
#include <vector>

namespace levora::session {

// What is wrong with a data folder, in plain sentences that name store, table, column and row; empty
// when all is well. Nothing is changed.
std::vector<std::string> find_faults(const std::string& folder, const WorkTold& told = {});

} // namespace levora::session
