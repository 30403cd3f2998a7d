#include "schedules/hand_over.h"

#include "schedules/named_control.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

namespace levora::schedules {

void hand_over(const widgets::HandOver& what, const widgets::Form& from, widgets::Form& to) {
    auto& field = control_of<widgets::TextField>(to, what.to_control);
    if (what.from_row > 0)
        field.set_value(
            control_of<widgets::Grid>(from, what.from_control).value(what.from_column, what.from_row));
    else
        field.set_text(control_of<widgets::TextField>(from, what.from_control).text());
}

void leave_for_sheet(session::Session& session, const widgets::Form& screen) {
    session.screens.show("frmWealthMain");
    session.screens.unload(screen.name());
}

void show_hidden_sheet(session::Session& session) {
    const widgets::Form* sheet = session.screens.find("frmWealthMain");
    if (sheet != nullptr && !sheet->visible()) session.screens.show("frmWealthMain");
}

} // namespace levora::schedules
