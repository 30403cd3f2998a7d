#pragma once

#include "session/session_state.h"

#include <string_view>

namespace levora::session {

// "2014-2015": nine characters, two years with a hyphen between, the second one later by 1.
bool ValidateFYWord(std::string_view word);

// Reads the words of the session's command line into CurrentFY, AssesseeNo, IsCompanyAssessee and
// UseResidentialAddress, in this order, as far as they are good. False when the call is improper: less
// than five words, no year in the first, or no number above 0 in the second.
bool read_command_line(Session& session);

} // namespace levora::session
