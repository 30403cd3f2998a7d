#pragma once

#include "session/settings.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace levora::session {

// One place in a settings text, lines from 1.
struct SettingPlace {
    Settings::Setting value;
    bool readable = true; // false for a value that is neither a text nor a whole number
    std::size_t first_line = 0;
    std::size_t last_line = 0;
};

struct SettingsTable {
    std::size_t header_line = 0;
    std::size_t last_line = 0; // of its header and values
    std::map<std::string, SettingPlace> values;
};

// The content of a settings file: its tables by key.
struct SettingsContent {
    std::map<std::string, SettingsTable> tables;
    std::string fault; // file, line and reason; empty when the text could be read

    [[nodiscard]] const SettingsTable* table(std::string_view key) const;
    [[nodiscard]] const SettingPlace* value(std::string_view key, std::string_view name) const;
};

SettingsContent read_settings(std::string_view text, const std::string& path);

// The text with one value written, or taken out when there is none; comments, order and all other
// lines stay. Nothing when the text that would come of it does not read back as it should.
std::optional<std::string> with_setting(const std::string& text, const std::string& key,
                                        const std::string& name,
                                        const std::optional<Settings::Setting>& value);

} // namespace levora::session
