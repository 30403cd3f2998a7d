#include "session/settings_text.h"

#include "widgets/value_text.h"

#include <array>
#include <cstdio>
#include <utility>
#include <vector>

#include <toml++/toml.h>

namespace levora::session {

namespace {

std::string line_number(std::size_t line) {
    return number_text(static_cast<double>(line));
}

SettingsTable read_table(const toml::table& table) {
    SettingsTable result;
    result.header_line = table.source().begin.line;
    result.last_line = result.header_line;
    for (const auto& [name, node] : table) {
        if (node.is_table() || node.is_array_of_tables()) continue;
        SettingPlace place;
        place.first_line = node.source().begin.line;
        place.last_line = node.source().end.line;
        if (const auto* text = node.as_string())
            place.value = text->get();
        else if (const auto* number = node.as_integer())
            place.value = number->get();
        else
            place.readable = false;
        result.last_line = std::max(result.last_line, place.last_line);
        result.values.emplace(std::string(name.str()), std::move(place));
    }
    return result;
}

std::string basic_string(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (code < 0x20 || code == 0x7F) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04X", code);
            result += escape.data();
        } else {
            result += c;
        }
    }
    return result + '"';
}

std::string value_text(const Settings::Setting& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return basic_string(*text);
    return std::to_string(std::get<std::int64_t>(value));
}

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& each : lines)
        text += each;
    return text;
}

// The comment behind a value on its line; the value itself may hold a "#" within its quotes.
std::string trailing_comment(const std::string& line) {
    char quote = '\0';
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quote == '"' && c == '\\')
            ++i;
        else if (quote != '\0' && c == quote)
            quote = '\0';
        else if (quote == '\0' && (c == '"' || c == '\''))
            quote = c;
        else if (quote == '\0' && c == '#')
            return "  " + std::string(trimmed(line.substr(i)));
    }
    return {};
}

// The same settings, apart from the one that was to change?
bool reads_back(const SettingsContent& before, const SettingsContent& after, const std::string& key,
                const std::string& name, const std::optional<Settings::Setting>& value) {
    if (!after.fault.empty()) return false;
    const SettingPlace* changed = after.value(key, name);
    if (value ? !(changed && changed->readable && changed->value == *value) : changed != nullptr)
        return false;
    auto others = [&](const SettingsContent& content) {
        std::map<std::pair<std::string, std::string>, std::pair<bool, Settings::Setting>> result;
        for (const auto& [table, each] : content.tables)
            for (const auto& [setting, place] : each.values)
                if (!equal_without_case(table, key) || !equal_without_case(setting, name))
                    result[{table, setting}] = {place.readable, place.value};
        return result;
    };
    return others(before) == others(after);
}

} // namespace

const SettingsTable* SettingsContent::table(std::string_view key) const {
    for (const auto& [name, each] : tables)
        if (equal_without_case(name, key)) return &each;
    return nullptr;
}

const SettingPlace* SettingsContent::value(std::string_view key, std::string_view name) const {
    // A key may stand twice, in two spellings: the first that has the value counts.
    for (const auto& [table_name, each] : tables) {
        if (!equal_without_case(table_name, key)) continue;
        for (const auto& [value_name, place] : each.values)
            if (equal_without_case(value_name, name)) return &place;
    }
    return nullptr;
}

SettingsContent read_settings(std::string_view text, const std::string& path) {
    SettingsContent content;
    try {
        const toml::table root = toml::parse(text, path);
        for (const auto& [key, node] : root)
            if (const auto* table = node.as_table()) content.tables.emplace(key.str(), read_table(*table));
    } catch (const toml::parse_error& error) {
        content.fault = path + ", line " + line_number(error.source().begin.line) + ": " +
                        std::string(error.description());
    }
    return content;
}

std::optional<std::string> with_setting(const std::string& text, const std::string& key,
                                        const std::string& name,
                                        const std::optional<Settings::Setting>& value) {
    const SettingsContent before = read_settings(text, "");
    if (!before.fault.empty()) return std::nullopt;
    std::vector<std::string> lines = lines_of(text);
    if (!lines.empty() && lines.back().back() != '\n') lines.back() += '\n';
    const std::string written = value ? basic_string(name) + " = " + value_text(*value) : std::string();

    if (const SettingPlace* place = before.value(key, name)) {
        const auto first = lines.begin() + static_cast<std::ptrdiff_t>(place->first_line) - 1;
        const auto last = lines.begin() + static_cast<std::ptrdiff_t>(place->last_line);
        const std::string comment = place->first_line == place->last_line ? trailing_comment(*first) : "";
        const auto at = lines.erase(first, last);
        if (value) lines.insert(at, written + comment + "\n");
    } else if (value) {
        if (const SettingsTable* table = before.table(key)) {
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(table->last_line), written + "\n");
        } else {
            if (!lines.empty()) lines.emplace_back("\n");
            lines.push_back("[" + basic_string(key) + "]\n");
            lines.push_back(written + "\n");
        }
    }
    std::string result = joined(lines);
    if (!reads_back(before, read_settings(result, ""), key, name, value)) return std::nullopt;
    return result;
}

} // namespace levora::session
