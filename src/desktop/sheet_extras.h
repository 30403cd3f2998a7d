#pragma once

namespace levora::desktop {

class ScreenWindow;

// What the window of the sheet shows beyond its fields: a chart of how assets become tax. Other
// windows stay as they are.
void add_sheet_extras(ScreenWindow& window);

} // namespace levora::desktop
