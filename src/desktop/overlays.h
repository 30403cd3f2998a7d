#pragma once

class QWidget;

namespace levora::desktop {

// A panel that lies over others while it is open: the focus goes into it and comes back to where it
// was, and its access keys win over those of the buttons outside.
void overlay_opened(QWidget& panel);
void overlay_closed(QWidget& panel);

} // namespace levora::desktop
