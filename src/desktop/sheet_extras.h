#pragma once

namespace levora::desktop {

class ScreenWindow;

// What the windows of the sheet and of the assets show beyond their fields: a chart of how assets become
// tax, or of what the assets are made of, and on F1 why a figure of the sheet is what it is.
void add_sheet_extras(ScreenWindow& window);

} // namespace levora::desktop
