#include "desktop/desktop_run.h"

#include "desktop/screen_window.h"
#include "desktop/sheet_extras.h"

namespace levora::desktop {

DesktopRun::DesktopRun(const RunOptions& options)
    : DesktopRun(options, std::make_unique<DesktopDesk>(), nullptr) {}

DesktopRun::DesktopRun(const RunOptions& options, widgets::Desk& desk)
    : DesktopRun(options, nullptr, &desk) {}

DesktopRun::DesktopRun(const RunOptions& options, std::unique_ptr<DesktopDesk> own, widgets::Desk* other)
    : settings_(options.settings_path), own_desk_(std::move(own)),
      program_(session::Surroundings{other ? *other : *own_desk_, settings_, options.program_folder,
                                     options.command_line, program::computer_name()}),
      windows_(program_.session().screens) {
    if (options.data_folder) settings_.hold(session::registry::shared, "LVDBPath", *options.data_folder);
    if (own_desk_) own_desk_->set_program_folder(options.program_folder);
    QObject::connect(&windows_, &Windows::ended, [this] {
        if (on_ended) on_ended();
    });
    QObject::connect(&windows_, &Windows::made, [this](ScreenWindow* window) { window_made(window); });
}

DesktopRun::~DesktopRun() = default;

bool DesktopRun::start() {
    program_.start();
    return program_.running();
}

void DesktopRun::window_made(ScreenWindow* window) {
    add_sheet_extras(*window);
}

} // namespace levora::desktop
