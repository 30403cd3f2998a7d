#include "return/sheet_fields.h"

#include "widgets/failure.h"
#include "widgets/typed_control.h"

#include <string>

namespace levora::form_ba {

namespace {

template <class Field> const Field& field_of_sheet(const session::Session& session, std::string_view name) {
    const widgets::Form* sheet = session.screens.find("frmWealthMain");
    const auto* field = sheet ? widgets::as_if<Field>(sheet->find(name)) : nullptr;
    if (!field)
        throw Failure(error_number::object_not_set, "frmWealthMain." + std::string(name) + " is not there");
    return *field;
}

} // namespace

const widgets::TextField& sheet_text(const session::Session& session, std::string_view field) {
    return field_of_sheet<widgets::TextField>(session, field);
}

const widgets::MaskedField& sheet_mask(const session::Session& session, std::string_view field) {
    return field_of_sheet<widgets::MaskedField>(session, field);
}

const widgets::ListField& sheet_list(const session::Session& session, std::string_view field) {
    return field_of_sheet<widgets::ListField>(session, field);
}

} // namespace levora::form_ba
