#pragma once

#include "return/ereturn.h"
#include "return/return_screen.h"

namespace levora::form_ba {

// Writes the whole document from what the screen's controls show: the two lines in front, the root
// and all below it. Nothing is recomputed and nothing is checked.
void write_document(eReturn& xml, const frmFormBA& form, const session::Session& session);

// The schedules, from the grids: what stands behind the verification block. The element of schedule
// OPR stays open, as the caller closes it.
void write_schedules(eReturn& xml, const frmFormBA& form);

} // namespace levora::form_ba
