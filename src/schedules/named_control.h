#pragma once

#include "widgets/failure.h"
#include "widgets/form.h"
#include "widgets/typed_control.h"

#include <string>
#include <string_view>

namespace levora::schedules {

// A control of another screen by its name, so that screens that hand over to each other need not know
// each other's class. A Failure 424 when the screen has no such control of that kind.
template <class T> T& control_of(const widgets::Form& form, std::string_view name) {
    auto* control = widgets::as_if<T>(form.find(name));
    if (control == nullptr) throw Failure(424, "Object required: " + form.name() + "." + std::string(name));
    return *control;
}

} // namespace levora::schedules
