#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace levora::session {

struct SettingsContent;

// The settings file in the registry's place: one table a key, strings and whole numbers. It lies under
// the user's configuration folder unless a path is given. A missing file is an empty registry; a file
// that can't be read reads as empty, and is never overwritten.
class Settings {
public:
    using Setting = std::variant<std::string, std::int64_t>;

    explicit Settings(std::string path);
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    static std::string default_path();

    [[nodiscard]] const std::string& path() const { return path_; }
    // Why the file could not be read; empty when it could. Names file, line and reason.
    [[nodiscard]] std::string fault() const;

    // Reads the file afresh when another program has written it. Keys and names are found without
    // regard to case.
    [[nodiscard]] std::optional<Setting> read(const std::string& key, const std::string& name) const;
    // Keeps comments and order of the file. False when it could not be written: the file is then as it
    // was.
    bool write(const std::string& key, const std::string& name, const Setting& value);
    bool remove(const std::string& key, const std::string& name);

    // A value that hides the file's own for this run ("--data"), until write or remove names it.
    void hold(const std::string& key, const std::string& name, const Setting& value);

private:
    struct Cache;
    [[nodiscard]] const SettingsContent& content() const;
    bool change(const std::string& key, const std::string& name, const std::optional<Setting>& value);

    std::string path_;
    std::unique_ptr<Cache> cache_;
    std::map<std::pair<std::string, std::string>, Setting> held_;
};

namespace registry {
inline const std::string root = R"(Software\Meridew Data Works\)";
inline const std::string levora_it = root + "Levora IT";
inline const std::string levora_iter = root + "Levora ITeR";
inline const std::string levora_forms = root + "Levora Forms";
inline const std::string shared = root + "Shared";
} // namespace registry

} // namespace levora::session
