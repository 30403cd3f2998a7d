#pragma once

#include "session/session_state.h"

#include <string>
#include <vector>

namespace levora::program {

// One run of the program: its session with every screen defined by name. A second run is a fresh
// process in all that can be seen.
class Program {
public:
    explicit Program(session::Surroundings surroundings);

    // Shows the start screen, whose loading is the whole start-up. False when the run has ended already:
    // after an improper call, or a report of the start-up that was dismissed.
    bool start();
    // False before the start and after the end.
    [[nodiscard]] bool running() const { return started_ && !session_.screens.ended(); }

    [[nodiscard]] session::Session& session() { return session_; }
    [[nodiscard]] const session::Session& session() const { return session_; }

    // All screens of the program, loaded or not.
    static std::vector<std::string> screen_names();

private:
    session::Session session_;
    bool started_ = false;
};

// The name of this computer, at most 15 characters, as lock rows have it.
std::string computer_name();

} // namespace levora::program
