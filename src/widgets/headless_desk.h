#pragma once

#include "widgets/desk.h"

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace levora::widgets {

// A queued answer that the box did not offer: a mistake of the script or test that queued it.
class AnswerNotOffered : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

// The desk of a run without a window: answers come from queues, and all that was asked is kept until
// it is taken. A box or dialog without a queued answer is dismissed, so nothing ever waits.
class HeadlessDesk : public Desk {
public:
    struct ShownMessage {
        MessageBox box;
        std::optional<Answer> answer; // nothing when dismissed
    };
    struct StartedProgram {
        std::string line;
        ProgramWindow window = ProgramWindow::normal;
    };
    struct Sheet {
        std::string grid;
        std::string header;
        std::string footer;
        int margin_left = 0;
        int margin_top = 0;
        bool preview = false;
        std::vector<std::vector<std::string>> cells; // rows of data cells, without headers
    };

    HeadlessDesk(); // today is the machine's date

    // No answer in the queue's place dismisses that box.
    void queue_answer(std::optional<Answer> answer) { answers_.push_back(answer); }
    void clear_answers() { answers_.clear(); }
    void queue_file(std::string path) { files_.push_back(std::move(path)); }
    void clear_files() { files_.clear(); }
    void queue_printer() { ++printers_; }
    void clear_printers() { printers_ = 0; }
    void set_today(const Date& today) { today_ = today; }

    // What was shown, asked or started since the last taking.
    std::vector<ShownMessage> take_messages();
    std::vector<FileDialog> take_dialogs();
    std::vector<StartedProgram> take_started();
    std::vector<Sheet> take_sheets();

    std::optional<Answer> show_message(const MessageBox& box) override; // may throw AnswerNotOffered
    std::optional<std::string> choose_file(const FileDialog& dialog) override;
    bool choose_printer() override;
    [[nodiscard]] Date today() const override { return today_; }
    void start_program(const std::string& line, ProgramWindow window) override;
    void print_sheet(const Grid& grid) override;
    void preview_sheet(const Grid& grid) override;

private:
    std::deque<std::optional<Answer>> answers_;
    std::deque<std::string> files_;
    int printers_ = 0;
    Date today_;
    std::vector<ShownMessage> messages_;
    std::vector<FileDialog> dialogs_;
    std::vector<StartedProgram> started_;
    std::vector<Sheet> sheets_;
};

} // namespace levora::widgets
