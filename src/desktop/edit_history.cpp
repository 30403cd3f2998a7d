#include "desktop/edit_history.h"

#include "desktop/person.h"
#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/grid.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace levora::desktop {

namespace {
constexpr std::size_t longest_history = 1000;
}

void EditHistory::add(Edit edit) {
    if (replaying_ || edit.before == edit.after) return;
    if (depth_ > 0) {
        done_.back().push_back(std::move(edit));
        return;
    }
    undone_.clear();
    if (edit.column == 0 && run_open_ && !done_.empty() && done_.back().size() == 1) {
        Edit& last = done_.back().front();
        if (last.control == edit.control && last.column == 0 && last.after == edit.before) {
            last.after = std::move(edit.after);
            return;
        }
    }
    run_open_ = edit.column == 0;
    done_.push_back({std::move(edit)});
    if (done_.size() > longest_history) done_.erase(done_.begin());
}

void EditHistory::begin_step() {
    if (depth_++ == 0) done_.emplace_back();
    run_open_ = false;
}

bool EditHistory::end_step() {
    if (--depth_ > 0 || done_.empty()) return false;
    if (done_.back().empty()) {
        done_.pop_back();
        return false;
    }
    before_step_ = std::exchange(undone_, {});
    return true;
}

void EditHistory::take_back(widgets::Form& form, const Told& told) {
    undo(form, told);
    undone_ = std::move(before_step_);
}

std::vector<Edit> EditHistory::edits() const {
    std::vector<Edit> all;
    for (const Step& step : done_)
        all.insert(all.end(), step.begin(), step.end());
    return all;
}

void EditHistory::clear() {
    if (depth_ > 0) return; // a step is being put together
    done_.clear();
    undone_.clear();
    run_open_ = false;
}

int EditHistory::replay(widgets::Form& form, const Step& step, std::string Edit::*from, std::string Edit::*to,
                        const Told& told) {
    int left_alone = 0;
    int done = 0;
    replaying_ = true;
    for (const Edit& edit : step) {
        if (told) told(done++);
        widgets::Control* control = form.find(edit.control);
        if (!control || text_at(*control, edit.column, edit.row) != edit.*from ||
            !replace_text(*control, edit.column, edit.row, edit.*to))
            ++left_alone;
    }
    replaying_ = false;
    return left_alone;
}

int EditHistory::undo(widgets::Form& form, const Told& told) {
    if (done_.empty() || depth_ > 0) return 0;
    run_open_ = false;
    Step step = std::move(done_.back());
    done_.pop_back();
    Step backwards(step.rbegin(), step.rend());
    const int left_alone = replay(form, backwards, &Edit::after, &Edit::before, told);
    undone_.push_back(std::move(step));
    return left_alone;
}

int EditHistory::redo(widgets::Form& form, const Told& told) {
    if (undone_.empty() || depth_ > 0) return 0;
    run_open_ = false;
    Step step = std::move(undone_.back());
    undone_.pop_back();
    const int left_alone = replay(form, step, &Edit::before, &Edit::after, told);
    done_.push_back(std::move(step));
    return left_alone;
}

} // namespace levora::desktop
