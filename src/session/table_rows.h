#pragma once

#include "session/common_services.h"
#include "session/data_store.h"
#include "session/session_state.h"

#include <string>

namespace levora::session {

// Steps of a load or a save on TaxDb. `from` names a table and the rows of it in a statement's words:
// "[Urban Land] Where AssesseeNo = 17". SqlText holds each statement while it runs.

RowSet open_rows(Session& session, const Attempt& attempt, const std::string& from,
                 RowSetUse use = RowSetUse::read);

// Deletes the rows, and opens the table for those that take their place.
RowSet open_emptied(Session& session, const Attempt& attempt, const std::string& from);

} // namespace levora::session
