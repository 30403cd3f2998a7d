#pragma once

#include <string>

#include <sys/types.h>

namespace levora::session {

// Files of a data folder belong to its owner and group alone, whatever the program's mask says.
constexpr mode_t shared_file_mode = 0660;
constexpr mode_t shared_folder_mode = 0770;

// Throws what the machine's error number says of this path: 61 for a full disk, 70 for a missing
// permission, 76 for a missing folder, 53 for a missing file, 75 for all else.
[[noreturn]] void throw_file_fault(const std::string& path, int system_error);
// "No space left on device"
std::string reason_of(int system_error);

} // namespace levora::session
