#pragma once

#include "desktop/edit_history.h"

#include <QString>

#include <functional>
#include <vector>

namespace levora::session {
class Session;
}

namespace levora::desktop {

class ScreenWindow;

// Figures that were typed but not saved, kept in a file against a crash. An orderly end, a save and a
// refusal take the file away; nothing of it reaches a store without the person's word.
struct KeptEdits {
    static bool write(const QString& path, const std::vector<Edit>& edits);
    static std::vector<Edit> read(const QString& path); // empty when there is no such file
};

// Keeps what is typed on the sheet and on the return, and offers it back when the screen comes up after
// a crash. `ask` puts a question and says yes or no.
void keep_edits(ScreenWindow& window, const session::Session& session,
                std::function<bool(const QString& question)> ask);

} // namespace levora::desktop
