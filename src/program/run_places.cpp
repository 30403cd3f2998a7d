#include "program/run_places.h"

#include "session/settings.h"

#include <filesystem>

namespace levora::program {

RunPlaces own_places() {
    std::error_code error;
    const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe", error);
    return {.settings_path = session::Settings::default_path(),
            .program_folder = error ? std::filesystem::current_path().string() : own.parent_path().string(),
            .data_folder = std::nullopt};
}

bool take_place(RunPlaces& places, std::string_view option, const std::string& value) {
    if (option == "--settings")
        places.settings_path = value;
    else if (option == "--data")
        places.data_folder = without_trailing_separators(value);
    else if (option == "--program-folder")
        places.program_folder = without_trailing_separators(value);
    else
        return false;
    return true;
}

std::string without_trailing_separators(std::string folder) {
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    return folder;
}

} // namespace levora::program
