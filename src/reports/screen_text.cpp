#include "reports/screen_text.h"

#include "widgets/failure.h"
#include "widgets/fields.h"
#include "widgets/typed_control.h"

namespace levora::reports {

namespace {

constexpr int object_required = 424;

[[noreturn]] void not_there(std::string_view screen, std::string_view control) {
    throw Failure(object_required,
                  "The screen " + std::string(screen) + " has no \"" + std::string(control) + "\" to print.");
}

widgets::Control& control_of(session::Session& session, std::string_view screen, std::string_view name) {
    widgets::Control* control = session.screens.load(screen).find(name);
    if (!control) not_there(screen, name);
    return *control;
}

} // namespace

std::string text_of(session::Session& session, std::string_view screen, std::string_view name) {
    const widgets::Control& control = control_of(session, screen, name);
    if (const auto* field = widgets::as_if<widgets::TextField>(&control)) return field->text();
    if (const auto* field = widgets::as_if<widgets::MaskedField>(&control)) return field->text();
    if (const auto* list = widgets::as_if<widgets::ListField>(&control)) return list->text();
    if (const auto* label = widgets::as_if<widgets::Label>(&control)) return label->caption();
    not_there(screen, name);
}

bool is_set(session::Session& session, std::string_view screen, std::string_view name) {
    const widgets::Control& control = control_of(session, screen, name);
    if (const auto* tick = widgets::as_if<widgets::TickBox>(&control)) return tick->ticked();
    if (const auto* option = widgets::as_if<widgets::OptionButton>(&control)) return option->value();
    not_there(screen, name);
}

widgets::Grid& grid_of(session::Session& session, std::string_view screen, std::string_view name) {
    auto* grid = widgets::as_if<widgets::Grid>(&control_of(session, screen, name));
    if (!grid) not_there(screen, name);
    return *grid;
}

} // namespace levora::reports
