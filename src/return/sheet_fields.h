#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"

#include <string_view>

// The fields of the net wealth sheet that the return takes over, found by their names.
namespace levora::form_ba {

const widgets::TextField& sheet_text(const session::Session& session, std::string_view field);
const widgets::MaskedField& sheet_mask(const session::Session& session, std::string_view field);
const widgets::ListField& sheet_list(const session::Session& session, std::string_view field);

} // namespace levora::form_ba
