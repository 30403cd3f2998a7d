#pragma once

#include "document/layout.h"

#include <QString>

#include <string_view>
#include <vector>

namespace levora::paper {

// A line of a sheet's header or footer with its look.
struct SheetLine {
    QString text;
    document::TextLook look;
};

// Reads a header or footer with its codes: "/n" is a new line, /fz"9" a size in points, /fb1 and /fb0
// bold on and off, /l, /c and /r the side. A code counts from where it stands to the end.
std::vector<SheetLine> sheet_lines(std::string_view coded);

} // namespace levora::paper
