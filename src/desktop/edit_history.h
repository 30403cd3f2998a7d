#pragma once

#include <functional>
#include <string>
#include <vector>

namespace levora::widgets {
class Control;
class Form;
} // namespace levora::widgets

namespace levora::desktop {

// One text that a person replaced: a field's, or a cell's (column and row from 1).
struct Edit {
    std::string control;
    int column = 0; // 0 for a field
    int row = 0;
    std::string before;
    std::string after;
};

// What a person did on one screen, to be taken back and done again. What the program wrote in
// consequence follows by itself, as each edit is a person's act again.
class EditHistory {
public:
    // Hears how many edits of a step are replayed.
    using Told = std::function<void(int done)>;

    // Typing on in the same field is one edit.
    void add(Edit edit);
    // Ends the run of typing in a field.
    void end_run() { run_open_ = false; }
    void begin_step();
    // False when nothing was done in the step, or a larger one is still open.
    bool end_step();
    // Takes the step that has just ended back for good: what could be done again before it still can be.
    void take_back(widgets::Form& form, const Told& told);
    void clear();

    // What was done and not taken back, in its order.
    [[nodiscard]] std::vector<Edit> edits() const;
    [[nodiscard]] bool can_undo() const { return !done_.empty(); }
    [[nodiscard]] bool can_redo() const { return !undone_.empty(); }

    // Takes the last step back, does the last one again. Edits whose place holds something else by now
    // are left alone; their number.
    int undo(widgets::Form& form, const Told& told = {});
    int redo(widgets::Form& form, const Told& told = {});
    // How many edits the next of these would replay.
    [[nodiscard]] int edits_to_undo() const {
        return done_.empty() ? 0 : static_cast<int>(done_.back().size());
    }
    [[nodiscard]] int edits_to_redo() const {
        return undone_.empty() ? 0 : static_cast<int>(undone_.back().size());
    }

private:
    using Step = std::vector<Edit>;
    int replay(widgets::Form& form, const Step& step, std::string Edit::*from, std::string Edit::*to,
               const Told& told);

    std::vector<Step> done_;
    std::vector<Step> undone_;
    std::vector<Step> before_step_; // what the last step put out of reach
    int depth_ = 0;
    bool run_open_ = false;
    bool replaying_ = false;
};

} // namespace levora::desktop
