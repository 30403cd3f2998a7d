#pragma once

#include "document/report.h"
#include "session/session_state.h"

#include <memory>

// The challan ITNS 282: the screen frmChallan282, saved or not, on the printed form.
namespace levora::reports {

// A new report that reads the screen each time it is viewed or printed.
std::shared_ptr<document::Report> make_challan_report(session::Session& session);

// The preview button of frmChallan282.
void preview_challan(session::Session& session);

} // namespace levora::reports
