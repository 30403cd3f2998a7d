#include "document/report_files.h"

#include "document/built_in_layouts.h"
#include "document/layout_file.h"

#include <filesystem>

namespace levora::document {

std::string layout_path(const std::string& program_folder, const std::string& name) {
    return program_folder + "/Report/" + name + ".rpt";
}

Layout open_layout(const std::string& program_folder, const std::string& name) {
    const std::string path = layout_path(program_folder, name);
    std::error_code none;
    if (!std::filesystem::exists(path, none)) {
        if (name == "Challan282") return parse_layout(built_in::challan_282, "Challan282.rpt");
        if (name == "RepWealthTax") return parse_layout(built_in::rep_wealth_tax, "RepWealthTax.rpt");
    }
    return load_layout(path);
}

} // namespace levora::document
