#pragma once

#include <string>

class QKeyEvent;

namespace levora::desktop {

// The name that screens and grids know a key by: "Delete", "Ctrl+Insert", "Shift+Tab", "Ctrl+Alt+C".
// Empty for a key that has none (a modifier alone, a letter of another script).
std::string key_name(const QKeyEvent& event);

// True for a key that types a character into a field.
bool types_character(const QKeyEvent& event);

} // namespace levora::desktop
