#pragma once

#include <cstdint>
#include <string>

namespace levora::session {

// One client in one file: the rows of all stores and the working copies of the returns.
// A client without any row is a Failure 53, a file that is there 75.
void export_client(const std::string& folder, std::int64_t assessee_no, const std::string& file);
// Brings a client into another folder under the same number: whole or not at all. A folder that knows
// the number already is left alone (75). The number comes back.
std::int64_t import_client(const std::string& file, const std::string& folder);

} // namespace levora::session
