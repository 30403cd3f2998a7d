#pragma once

#include <functional>
#include <string>

namespace levora::session {

// Hears what long work on a data folder comes to next, a store or a table, and how much of it is done.
using WorkTold = std::function<void(const std::string& what, int done, int of)>;

} // namespace levora::session
