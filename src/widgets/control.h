#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace levora::widgets {

class Form;

// What of a control a view has to draw again.
enum class Aspect {
    content,   // text, value, selection, caption, tab
    items,     // the list behind a field
    state,     // enabled, visible, locked, colours, tool tip
    focus,     // the program moved the focus here
    front,     // the control was brought to the front of its siblings
    structure, // a grid's counts, headers, widths or hidden columns
};

enum class ControlKind {
    text_field,
    masked_field,
    list_field,
    column_list,
    tick_box,
    option,
    button,
    menu,
    menu_item,
    label,
    frame,
    tabs,
    timer,
    spin_buttons,
    grid,
};

// A colour as 0xRRGGBB; none is the default of the palette.
using Color = std::optional<unsigned>;
constexpr unsigned grey_rgb = 0xE0E0E0; // RGB(224,224,224), the ground of computed cells

// One thing on a screen. It belongs to the form that it was made with, which finds it by its name.
// The program's own writes go through set_ functions, a person's acts through the acting functions
// of each kind; only these honour locks, masks and key filters.
class Control {
public:
    Control(Form& form, std::string name, ControlKind kind);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] ControlKind kind() const { return kind_; }
    [[nodiscard]] Form& form() const { return form_; }

    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] Color backcolor() const { return backcolor_; }
    [[nodiscard]] Color forecolor() const { return forecolor_; }
    [[nodiscard]] const std::string& tooltip() const { return tooltip_; }
    void set_enabled(bool enabled);
    void set_visible(bool visible);
    void set_backcolor(Color color);
    void set_forecolor(Color color);
    void set_tooltip(std::string text);
    void bring_to_front();

    // Free text of the design; the title of a grid's printed sheet.
    std::string tag;
    // The words that stand beside the control on the screen, with "&" before its access key. Windows,
    // messages and accessible names take them from here.
    std::string label;

    // A person moves the focus in. Makes the control the form's active one; false when it can't be
    // entered (disabled or hidden).
    bool enter();
    // A person moves the focus out; false when the control keeps it.
    bool leave();
    // The program moves the focus here: a Failure 5 when the control can't take it.
    void set_focus();

    std::function<void()> on_enter;
    // Asked on leaving; false keeps the focus in the control.
    std::function<bool()> on_leave;

    // Tells the form's view, if there is one.
    void notify(Aspect aspect) const;

protected:
    // What a person may act upon: enabled, visible by its own flag, and the form enabled.
    [[nodiscard]] bool can_act() const;
    // Runs a handler as the event `event` of this control: see Form::run_event.
    void raise(std::string_view event, const std::function<void()>& handler) const;
    // Makes this the form's active control without the events of entering.
    void become_active();

private:
    Form& form_;
    std::string name_;
    ControlKind kind_;
    bool enabled_ = true;
    bool visible_ = true;
    Color backcolor_;
    Color forecolor_;
    std::string tooltip_;
};

} // namespace levora::widgets
