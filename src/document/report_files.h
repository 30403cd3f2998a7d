#pragma once

#include "document/layout.h"

#include <string>

namespace levora::document {

// The layout of a report: the file of its name in the "Report" folder of the program's folder. The
// challan and the statement have a copy built in, used where that file is not there; Form BB needs
// its file. Failures as of load_layout.
Layout open_layout(const std::string& program_folder, const std::string& name);

std::string layout_path(const std::string& program_folder, const std::string& name);

} // namespace levora::document
