#pragma once

#include <memory>

namespace levora::document {
class Report;
}
namespace levora::paper {
class Pages;
}
namespace levora::widgets {
class Grid;
}

namespace levora::desktop {

class DesktopDesk;
class ScreenWindow;

// Shows the report of the preview screen in its window, each time it comes up.
void add_report_pages(ScreenWindow& window, DesktopDesk* desk);
// Shows the sheet of a grid in the window of the sheet preview.
void add_sheet_pages(ScreenWindow& window, const std::shared_ptr<const paper::Pages>& pages,
                     DesktopDesk* desk);

// To the printer chosen last; the person chooses one where none is chosen yet, and for a sheet also where
// the last choice was a file. Failures as of paper::print.
void print_report(const document::Report& report, DesktopDesk& desk);
void print_grid_sheet(const widgets::Grid& grid, DesktopDesk& desk);

} // namespace levora::desktop
