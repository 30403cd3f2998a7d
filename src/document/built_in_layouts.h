#pragma once

#include <string_view>

// The layout files of the Report folder as they were when the program was built.
namespace levora::document::built_in {

extern const std::string_view challan_282;
extern const std::string_view rep_wealth_tax;

} // namespace levora::document::built_in
