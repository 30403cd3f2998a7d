#pragma once

namespace levora::desktop {

class ScreenWindow;

// What the window of the sheet shows beyond its fields: a chart of how assets become tax, and on F1 why
// a figure is what it is. Other windows stay as they are.
void add_sheet_extras(ScreenWindow& window);

} // namespace levora::desktop
