#pragma once

#include "document/report.h"
#include "session/session_state.h"

#include <memory>

// Form BB: the return as frmFormBA shows it, on paper.
namespace levora::reports {

// Fills the work table TempPrint from the grids of frmFormBA, after emptying it. Reports its own
// errors.
void SaveBusinessAsset(session::Session& session);

// Puts the fields of frmFormBA, the rows of TempPrint as they lie there and the properties of
// schedule OPR into FormBBReport. A failure is the caller's.
void FillFormBBReport(session::Session& session);

// A new report from the layout file beside the program: Failures as of open_layout.
void open_form_bb(session::Session& session);

// The preview button of frmFormBA.
void preview_form_bb(session::Session& session);

} // namespace levora::reports
