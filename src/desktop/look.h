#pragma once

#include "widgets/control.h"

#include <QColor>

class QApplication;
class QComboBox;
class QPalette;

namespace levora::desktop {

enum class Shade { system, light, dark };

// The quiet look of all windows: one style, one light and one dark palette, one style sheet.
void apply_look(QApplication& application, Shade shade);

// Gives the items of a list the room that the style sheet tells.
void space_items(QComboBox& list);

[[nodiscard]] bool is_dark(const QPalette& palette);
// A screen's own ground as this palette shows it: the grey of computed cells follows the palette.
[[nodiscard]] QColor ground_of(unsigned rgb, const QPalette& palette);
// A text colour that can be read on the palette's ground.
[[nodiscard]] QColor ink_of(unsigned rgb, const QPalette& palette);
// The soft ground of what a person can't write in.
[[nodiscard]] QColor locked_ground(const QPalette& palette);

} // namespace levora::desktop
