#pragma once

#include "widgets/control.h"

#include <QString>

#include <memory>
#include <vector>

class QLabel;
class QWidget;

namespace levora::desktop {

class Acts;
class EditHistory;

// One control tied to its widget. The control is the only truth: the widget shows it, and tells it
// what a person does.
class Binding {
public:
    Binding(widgets::Control& control, QWidget* widget) : control_(control), widget_(widget) {}
    virtual ~Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    [[nodiscard]] widgets::Control& control() const { return control_; }
    [[nodiscard]] QWidget* widget() const { return widget_; } // null for timers and menus
    // The words beside the widget, which go and come with it.
    void set_label(QLabel* label) { label_ = label; }

    // Draws what the aspect names.
    virtual void refresh(widgets::Aspect aspect);
    // Everything, when the window is made.
    void refresh_all();
    // A panel that slides has the width that its screen tells; at rest it has the layout's own.
    enum class Sliding { no, yes };
    virtual void slide(Sliding /*sliding*/) {}
    // The widget lets go of the control: the screen is unloaded.
    virtual void detach() {}

protected:
    virtual void show_content() {}
    virtual void show_items() {}
    virtual void show_state();
    virtual void show_structure() {}
    // The ground that the widget is painted with by itself; none leaves it to the style sheet.
    [[nodiscard]] virtual widgets::Color own_ground() const { return control_.backcolor(); }

private:
    widgets::Control& control_;
    QWidget* widget_;
    QLabel* label_ = nullptr;
    widgets::Color ground_;
    widgets::Color ink_;
};

// Ties a control to a widget; null when the widget is not of the class that the control's kind needs.
// Timers take no widget.
std::unique_ptr<Binding> bind(widgets::Control& control, QWidget* widget, Acts& acts, EditHistory& history);

// The class of widget that the kind is drawn with, for messages.
const char* widget_class_of(widgets::ControlKind kind);

} // namespace levora::desktop
