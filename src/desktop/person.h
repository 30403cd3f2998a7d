#pragma once

#include <string>

namespace levora::widgets {
class Control;
}

// What a person does to a control, whatever its kind: by its text.
namespace levora::desktop {

// The text of a field, list or tick box ("1", "0"), or of a grid's cell; column 0 is the field itself.
std::string text_at(const widgets::Control& control, int column, int row);
// Types, chooses or ticks so that the text becomes this; false when the control refuses it.
bool replace_text(widgets::Control& control, int column, int row, const std::string& text);

} // namespace levora::desktop
