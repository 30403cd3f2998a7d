#pragma once

namespace levora::session {
class Session;
}

namespace levora::desktop {

class ScreenWindow;

// What the windows of the sheet and of the assets show beyond their fields: charts of how assets become
// tax and of what the assets are made of.
void add_sheet_extras(ScreenWindow& window, session::Session& session);

} // namespace levora::desktop
