#pragma once

#include "desktop/binding.h"

namespace levora::desktop {

std::unique_ptr<Binding> bind_text(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history);
std::unique_ptr<Binding> bind_mask(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history);
std::unique_ptr<Binding> bind_list(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history);
std::unique_ptr<Binding> bind_column_list(widgets::Control& control, QWidget* widget, Acts& acts);

} // namespace levora::desktop
