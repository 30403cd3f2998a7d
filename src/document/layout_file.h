#pragma once

#include "document/layout.h"

#include <string>
#include <string_view>

namespace levora::document {

// Reads a layout: an XML text with one element for each thing on the form (Report/README.txt tells
// them all). `file` is named in faults: a Failure 321 with the file, the line and what is wrong there.
Layout parse_layout(std::string_view text, const std::string& file);

// The layout in a file: a Failure 53 when it is not there, 75 when it can't be read, 321 when it is
// no layout.
Layout load_layout(const std::string& path);

} // namespace levora::document
