#pragma once

#include "paper/pages.h"

#include <QByteArray>

#include <functional>
#include <string>

class QPrinter;

namespace levora::paper {

// Hears how many of the pages are painted; false gives the work up.
using PagesTold = std::function<bool(int done, int of)>;

// The pages as a PDF file's bytes; empty when it was given up.
QByteArray pdf_of(const Pages& pages, const PagesTold& told = {});
// See save_pdf of report_paper.h. Given up, it leaves the file as it was.
void save_pdf(const Pages& pages, const std::string& path, const PagesTold& told = {});

// Sends the pages to a printer, or those of the range chosen for it, so many copies of all: 0 and less
// print nothing. The printer's own margins cut, they do not move. A Failure 482 when the printer can't be
// opened, 75 for a file in its place. Given up, a file stays as it was and a printer drops the rest.
void print(const Pages& pages, QPrinter& printer, int copies, const PagesTold& told = {});

} // namespace levora::paper
