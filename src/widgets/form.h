#pragma once

#include "widgets/control.h"
#include "widgets/rules.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace levora::widgets {

class Grid;
class Menu;
class Screens;

// What a window listens to. It is told after the logic's own events and never decides anything.
class View {
public:
    virtual ~View() = default;
    virtual void control_changed(const Control& control, Aspect aspect) = 0;
    // One cell, columns and rows from 1 (0 the headers); -1 is all of them.
    virtual void cell_changed(const Grid& grid, int column, int row) = 0;
    virtual void active_cell_changed(const Grid& grid) = 0;
    // Caption, enabled, visible, pointer, or "bring up" asked by the program.
    virtual void form_changed(const Form& form) = 0;
    virtual void form_raised(const Form& form) = 0;
    virtual void popup_wanted(const Form& form, const Menu& menu) = 0;
};

// A screen: its controls in the order of its declaration, found by name. It is loaded from its
// making to its unloading; shown or hidden in between.
class Form {
public:
    Form(Screens& screens, std::string name, std::string caption);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool modal() const { return modal_; }
    [[nodiscard]] bool busy() const { return busy_; } // the pointer is the hourglass
    [[nodiscard]] Screens& screens() const { return screens_; }
    void set_caption(std::string caption);
    void set_visible(bool visible);
    void set_enabled(bool enabled);
    void set_modal(bool modal) { modal_ = modal; }
    void set_busy(bool busy);
    void bring_up();

    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    [[nodiscard]] Control* find(std::string_view control) const; // null when there is none

    // The control last entered or acted upon; null at first.
    [[nodiscard]] Control* active_control() const { return active_; }
    void set_active_control(Control* control) { active_ = control; }

    // Runs once when the screen is loaded, before it is shown.
    virtual void Form_Load() {}
    // Runs each time the screen comes up.
    virtual void Form_Activate() {}
    // Asked before the screen goes away; false keeps it.
    virtual bool Form_QueryUnload() { return true; }
    // The last word before the screen is gone.
    virtual void Form_Unload() {}
    // A key that the screen sees before its controls, by name: "Ctrl+Alt+C", "Escape". True when it
    // was answered.
    virtual bool Form_KeyDown(std::string_view key);
    // A person presses such a key.
    bool press_key(std::string_view key);

    // A right click asks for the menu: the view, if there is one, shows it.
    void show_popup(const Menu& menu);

    // Runs a handler as an event of this form, named as "cmdSave1_Click". A Failure that nothing
    // inside has answered passes to the event that is running, if there is one; from the outermost
    // one it goes to Screens::on_unanswered under "<form> - <event>".
    void run_event(std::string_view event, const std::function<void()>& handler) const;
    void run_event(std::string_view control, std::string_view event,
                   const std::function<void()>& handler) const;

    Rules rules; // what writes its figures

    View* view = nullptr; // set by the window that draws this form

private:
    friend class Control;
    void add(Control& control);

    Screens& screens_;
    std::string name_;
    std::string caption_;
    bool visible_ = false;
    bool enabled_ = true;
    bool modal_ = false;
    bool busy_ = false;
    std::vector<Control*> controls_;
    std::unordered_map<std::string_view, Control*> by_name_;
    Control* active_ = nullptr;
};

} // namespace levora::widgets
