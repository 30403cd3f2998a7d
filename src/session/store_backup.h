#pragma once

#include "session/work_told.h"

#include <string>

namespace levora::session {

// One file that holds a whole data folder: its stores as they stood at one moment, with the other
// programs still running, and the returns' working copies. A file that is there is a Failure 75.
void back_up_folder(const std::string& folder, const std::string& file, const WorkTold& told = {});
// The folder as it was, into one that has no stores yet; the backup is checked before anything is
// written.
void restore_folder(const std::string& file, const std::string& folder, const WorkTold& told = {});

} // namespace levora::session
