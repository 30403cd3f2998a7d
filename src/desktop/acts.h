#pragma once

#include <QString>

#include <functional>
#include <string>

namespace levora::widgets {
class Grid;
}

namespace levora::desktop {

// What a widget asks of its window when a person acts. The screen may go away during an act, so
// nothing of it may be touched when act() answers false.
class Acts {
public:
    virtual ~Acts() = default;
    // Runs a person's act on the screen; false when the screen is gone afterwards.
    virtual bool act(const std::function<void()>& what) = 0;
    // A line at the foot of the window; empty takes it away.
    virtual void tell(const QString& words) = 0;
    // A person's replacing of one cell's text, kept for undo. False when the cell refused it.
    virtual bool edit_cell(widgets::Grid& grid, int column, int row, const std::string& text) = 0;
    // Keeps for undo what a key has made of a cell.
    virtual void keep_edit(const widgets::Grid& grid, int column, int row, const std::string& before) = 0;
    // What is done between these two is one step of undo.
    virtual void begin_step() = 0;
    virtual void end_step() = 0;
    // Ends a step and takes it back, as if it had never been.
    virtual void give_up_step() = 0;
};

} // namespace levora::desktop
