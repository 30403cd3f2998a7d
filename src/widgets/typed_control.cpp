#include "widgets/typed_control.h"

#include <stdexcept>

namespace levora::widgets {

void throw_other_kind(const Control& control) {
    throw std::logic_error(control.name() + " is taken for a control of another kind");
}

} // namespace levora::widgets
