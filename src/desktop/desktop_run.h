#pragma once

#include "desktop/desktop_desk.h"
#include "desktop/windows.h"
#include "program/program.h"
#include "program/run_places.h"
#include "session/settings.h"

#include <functional>
#include <memory>
#include <string>

namespace levora::paper {
class Pages;
}

namespace levora::desktop {

struct RunOptions : program::RunPlaces {
    std::string command_line;
};

// One run of the program with windows: the program, its desk and all that windows add to screens.
class DesktopRun final {
public:
    explicit DesktopRun(const RunOptions& options);
    // The same with another desk, which outlives the run.
    DesktopRun(const RunOptions& options, widgets::Desk& desk);
    ~DesktopRun();
    DesktopRun(const DesktopRun&) = delete;
    DesktopRun& operator=(const DesktopRun&) = delete;

    // False when the program ended by itself during its start.
    bool start();

    [[nodiscard]] program::Program& program() { return program_; }
    [[nodiscard]] Windows& windows() { return windows_; }

    // The program has ended by its own rules.
    std::function<void()> on_ended;

private:
    DesktopRun(const RunOptions& options, std::unique_ptr<DesktopDesk> own, widgets::Desk* other);
    void window_made(ScreenWindow* window);
    void tie_paper();

    session::Settings settings_;
    std::unique_ptr<DesktopDesk> own_desk_;
    program::Program program_;
    Windows windows_;
    std::shared_ptr<const paper::Pages> sheet_; // of the grid previewed last
};

} // namespace levora::desktop
