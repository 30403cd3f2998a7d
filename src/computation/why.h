#pragma once

#include "computation/wealth_sheet.h"

#include <string>

namespace levora::computation {

// Why a figure of the sheet is what it is, in a sentence with the figures that it was made of:
// "Net Wealth 44,12,348.75 = Assets chargeable 45,12,349 less Debt 1,00,000.25 (never below 0)". Told
// from the same rules that wrote it. A figure that no rule gives as it stands was typed or stored, and
// is told so with what the rule would give. Empty for a control that is no figure of the sheet.
std::string explain(const frmWealthMain& sheet, const widgets::Control& control);

} // namespace levora::computation
