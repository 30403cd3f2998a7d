#pragma once

#include "session/session_state.h"

#include <string>

// The statement of wealth: the assessee's particulars and the figures of frmWealthMain as they stand.
namespace levora::reports {

// The preview button of frmWealthMain.
void preview_statement(session::Session& session);

// "a, b" when both hold something, else the one that does.
std::string JoinAddress(const std::string& first, const std::string& second);
std::string JoinCity(const std::string& city, const std::string& district);

} // namespace levora::reports
