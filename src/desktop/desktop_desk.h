#pragma once

#include "widgets/desk.h"

#include <functional>
#include <memory>

class QPrinter;
class QWidget;

namespace levora::desktop {

// The desk of a person at a screen: boxes, dialogs and printers of the machine.
class DesktopDesk final : public widgets::Desk {
public:
    DesktopDesk();
    ~DesktopDesk() override;

    // Where the outside programs of this system lie: beside its own file.
    void set_program_folder(std::string folder) { program_folder_ = std::move(folder); }

    std::optional<widgets::Answer> show_message(const widgets::MessageBox& box) override;
    std::optional<std::string> choose_file(const widgets::FileDialog& dialog) override;
    bool choose_printer() override;
    [[nodiscard]] Date today() const override;
    void start_program(const std::string& line, widgets::ProgramWindow window) override;
    void print_sheet(const widgets::Grid& grid) override;
    void preview_sheet(const widgets::Grid& grid) override;

    // The printer chosen last; a PDF file takes its place where the machine has none. Null before the
    // first choice.
    [[nodiscard]] QPrinter* printer() const { return printer_.get(); }

    // Paper is drawn elsewhere.
    std::function<void(const widgets::Grid& grid)> on_print_sheet;
    std::function<void(const widgets::Grid& grid)> on_preview_sheet;

private:
    std::string program_folder_;
    std::unique_ptr<QPrinter> printer_;
};

// The program that takes a told one's place here, found on the machine: for a calculator the first of
// the known ones. Empty when there is none.
std::string program_for(const std::string& told);

} // namespace levora::desktop
