#pragma once

#include "session/session_state.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace levora::session {

// A load that failed leaves rows in the store that are not on the screen, and a save that replaces them
// would lose them. So the person is asked first.

struct UnreadTable {
    std::string_view name; // of TaxDb
    std::string key;       // what its rows are saved under, in a statement's words
};

enum class OverUnread {
    save,  // nothing would be lost, or the person wants the rows replaced
    leave, // the rows stay, and the screen is left as its Cancel leaves it
    stay,  // the question was dismissed: nothing happens
};

// Asks where one of these tables has rows of its key. A table that can't be read, or can't take a row for
// want of a column, throws as the save would, before anything is deleted.
OverUnread ask_over_unread(Session& session, const std::vector<UnreadTable>& tables);

// Asks so, and reports what was thrown under the save's name; a report that is dismissed leaves.
OverUnread ask_over_unread(Session& session, std::string_view procedure,
                           const std::vector<UnreadTable>& tables);

// Asks so, and lets the screen leave where the person chooses that. True where the save goes on.
bool saves_over_unread(Session& session, std::string_view procedure, const std::vector<UnreadTable>& tables,
                       const std::function<void()>& leave);

// The same question about anything else that could not be read, by its name.
OverUnread ask_over_unread(Session& session, const std::string& name);

} // namespace levora::session
