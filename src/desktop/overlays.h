#pragma once

class QPushButton;
class QWidget;

namespace levora::desktop {

// A panel that lies over others while it is open: the focus goes into it and comes back to where it
// was, and its access keys win over those of the buttons outside.
void overlay_opened(QWidget& panel);
void overlay_closed(QWidget& panel);
// The button that leaves the panel around a widget with nothing done; null where there is none.
QPushButton* cancel_of_overlay(const QWidget& inside);

} // namespace levora::desktop
