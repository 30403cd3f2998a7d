#pragma once

#include "session/session_state.h"
#include "widgets/form.h"
#include "widgets/grid.h"

#include <string>
#include <string_view>

// Reports read the screens as they stand, each control by its name. A screen that is not loaded is
// loaded; a control that is not there is a Failure 424 that names both.
namespace levora::reports {

// The text of a field, mask or list, or the caption of a label.
std::string text_of(session::Session& session, std::string_view screen, std::string_view control);
// Whether a tick box is ticked or an option is set.
bool is_set(session::Session& session, std::string_view screen, std::string_view control);
widgets::Grid& grid_of(session::Session& session, std::string_view screen, std::string_view control);

} // namespace levora::reports
