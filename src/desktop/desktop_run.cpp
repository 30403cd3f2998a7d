#include "desktop/desktop_run.h"

#include "desktop/kept_edits.h"
#include "desktop/paper_windows.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "desktop/sheet_extras.h"
#include "desktop/why_panel.h"
#include "paper/sheet_paper.h"
#include "widgets/form.h"

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
    tie_paper();
}

DesktopRun::~DesktopRun() = default;

bool DesktopRun::start() {
    program_.start();
    return program_.running();
}

void DesktopRun::tie_paper() {
    if (!own_desk_) return;
    own_desk_->on_print_sheet = [this](const widgets::Grid& grid) { print_grid_sheet(grid, *own_desk_); };
    own_desk_->on_preview_sheet = [this](const widgets::Grid& grid) {
        sheet_ = std::make_shared<const paper::Pages>(paper::pages_of_sheet(grid));
        if (ScreenWindow* open = windows_.find("frmSprPreview"))
            add_sheet_pages(*open, sheet_, own_desk_.get());
    };
    program_.session().print_report = [this](const std::shared_ptr<document::Report>& report) {
        print_report(*report, *own_desk_);
    };
}

void DesktopRun::window_made(ScreenWindow* window) {
    const std::string& screen = window->form()->name();
    add_why(*window, windows_);
    if (screen == "frmWealthMain" || screen == "frmImmovable") add_sheet_extras(*window, program_.session());
    if (screen == "frmWealthMain" || screen == "frmFormBA")
        keep_edits(*window, program_.session(), [this](const QString& question) {
            return widgets::says_yes(program_.session().desk, {from_qt(question),
                                                               "Figures not saved",
                                                               widgets::Icon::question,
                                                               {widgets::Answer::yes, widgets::Answer::no}});
        });
    if (screen == "frmRepPreview") add_report_pages(*window, own_desk_.get());
    if (screen == "frmSprPreview") add_sheet_pages(*window, sheet_, own_desk_.get());
}

} // namespace levora::desktop
