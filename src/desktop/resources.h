#pragma once

namespace levora::desktop {

// Layouts, look and icon lie in the program; a linker drops them from a library unless asked.
void load_resources();

} // namespace levora::desktop
