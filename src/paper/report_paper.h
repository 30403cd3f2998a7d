#pragma once

#include "document/report.h"

#include <string>

namespace levora::paper {

// Lays a filled report out on A4 and counts its pages. Works with and without a display. A Failure 321
// when a font family is missing.
int page_count(const document::Report& report);

// Writes the report's pages as a PDF with title, author, embedded fonts and selectable text. The file
// is replaced in one step: a Failure 75 with the path and the reason leaves it as it was.
void save_pdf(const document::Report& report, const std::string& path);

} // namespace levora::paper
