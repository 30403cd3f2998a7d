#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace levora::program {

// Where a run finds its settings, its own folder and its stores.
struct RunPlaces {
    std::string settings_path;
    std::string program_folder;
    std::optional<std::string> data_folder; // takes the place of "LVDBPath" for this run
};

// What the options below give, for the usage of every program that takes them.
inline constexpr std::string_view places_usage =
    "  --settings FILE          the settings file (default: the user's own)\n"
    "  --data FOLDER            the data folder, for this run only\n"
    "  --program-folder FOLDER  the program's own folder (default: where this program lies)\n";

// The user's own settings, and the folder in which the running program lies.
RunPlaces own_places();

// True when the option is "--settings", "--data" or "--program-folder": its value is taken then.
bool take_place(RunPlaces& places, std::string_view option, const std::string& value);

std::string without_trailing_separators(std::string folder);

} // namespace levora::program
