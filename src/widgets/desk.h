#pragma once

#include "widgets/date_text.h"

#include <optional>
#include <string>
#include <vector>

namespace levora::widgets {

class Grid;

enum class Icon { none, critical, question, exclamation, information };
enum class Answer { ok, cancel, abort, retry, ignore, yes, no };

std::string caption_of(Answer answer);                       // "OK", "Cancel", ...
std::optional<Answer> answer_of(const std::string& caption); // the reverse
std::string name_of(Icon icon);                              // "critical", ... "" for none

struct MessageBox {
    std::string text;
    std::string title = {};
    Icon icon = Icon::none;
    std::vector<Answer> buttons = {Answer::ok};
};

enum class FileDialogKind { open, save };

struct FileDialog {
    FileDialogKind kind = FileDialogKind::open;
    std::string title;
    std::string folder;
    std::string name;
    std::string filter; // "e-Return File (*.xml)|*.xml"
    std::string extension;
};

enum class ProgramWindow { normal, minimized, maximized };

// All that a screen asks of the person and the machine. The window, the script and the tests each
// have their own desk.
class Desk {
public:
    virtual ~Desk() = default;

    // The button pressed; nothing when the box was dismissed (Esc, close box).
    virtual std::optional<Answer> show_message(const MessageBox& box) = 0;
    // The chosen path; nothing when the dialog was dismissed.
    virtual std::optional<std::string> choose_file(const FileDialog& dialog) = 0;
    // True when a printer was chosen, false for a cancel.
    virtual bool choose_printer() = 0;
    [[nodiscard]] virtual Date today() const = 0;
    // Starts an outside program; a Failure 53 when there is none. `line` is the command line as told.
    virtual void start_program(const std::string& line, ProgramWindow window) = 0;
    // Prints the grid's sheet at once, with the header, footer and margins set on the grid.
    virtual void print_sheet(const Grid& grid) = 0;
    // A preview of the grid's sheet comes up (in a screen of its own, which draws it).
    virtual void preview_sheet(const Grid& grid) = 0;
};

// A question with Yes and No: a dismissed box counts as No.
bool says_yes(Desk& desk, const MessageBox& box);

} // namespace levora::widgets
