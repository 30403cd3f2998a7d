#pragma once

#include "paper/pages.h"

#include <QByteArray>

#include <string>

class QPrinter;

namespace levora::paper {

// The pages as a PDF file's bytes.
QByteArray pdf_of(const Pages& pages);
// See save_pdf of report_paper.h.
void save_pdf(const Pages& pages, const std::string& path);

// Sends the pages to a printer, or those of the range chosen for it, so many copies of all: 0 and less
// print nothing. The printer's own margins cut, they do not move. A Failure 482 when the printer can't be
// opened, 75 for a file in its place.
void print(const Pages& pages, QPrinter& printer, int copies);

} // namespace levora::paper
