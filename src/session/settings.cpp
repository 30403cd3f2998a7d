#include "session/settings.h"

#include "session/settings_text.h"
#include "session/whole_files.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

// An open file that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int get() const { return number_; }
    [[nodiscard]] bool is_open() const { return number_ >= 0; }

private:
    int number_;
};

// A link stays a link: the file behind it is written.
std::string real_path(const std::string& path) {
    std::error_code failed;
    const auto real = std::filesystem::weakly_canonical(path, failed);
    return failed ? path : real.string();
}

struct Stamp {
    bool exists = false;
    ino_t inode = 0;
    off_t size = 0;
    long long changed = 0;

    bool operator==(const Stamp&) const = default;
};

Stamp stamp_of(const std::string& path) {
    struct stat found {};
    if (::stat(path.c_str(), &found) != 0) return {};
    return {true, found.st_ino, found.st_size,
            static_cast<long long>(found.st_mtim.tv_sec) * 1'000'000'000 + found.st_mtim.tv_nsec};
}

// The text of the file and why it could not be read; a file that is not there is an empty one.
std::pair<std::string, std::string> read_text(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) return {};
    try {
        return {read_whole_file(path), ""};
    } catch (const Failure& failure) {
        return {"", failure.what()};
    }
}

} // namespace

struct Settings::Cache {
    Stamp stamp;
    SettingsContent content;
    bool filled = false;
};

Settings::Settings(std::string path) : path_(std::move(path)), cache_(std::make_unique<Cache>()) {}

Settings::~Settings() = default;

std::string Settings::default_path() {
    const char* configuration = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    const std::filesystem::path folder = configuration && configuration[0] == '/'
                                             ? std::filesystem::path(configuration)
                                             : std::filesystem::path(home ? home : "/") / ".config";
    return (folder / "levora-wealth-tax" / "settings.toml").string();
}

const SettingsContent& Settings::content() const {
    const Stamp stamp = stamp_of(path_);
    if (cache_->filled && cache_->stamp == stamp) return cache_->content;
    const auto [text, fault] = read_text(path_);
    cache_->content = fault.empty() ? read_settings(text, path_) : SettingsContent{{}, fault};
    cache_->stamp = stamp;
    cache_->filled = true;
    return cache_->content;
}

std::string Settings::fault() const {
    return content().fault;
}

std::optional<Settings::Setting> Settings::read(const std::string& key, const std::string& name) const {
    for (const auto& [held, value] : held_)
        if (equal_without_case(held.first, key) && equal_without_case(held.second, name)) return value;
    const SettingPlace* place = content().value(key, name);
    if (!place || !place->readable) return std::nullopt;
    return place->value;
}

bool Settings::write(const std::string& key, const std::string& name, const Setting& value) {
    return change(key, name, value);
}

bool Settings::remove(const std::string& key, const std::string& name) {
    return change(key, name, std::nullopt);
}

bool Settings::change(const std::string& key, const std::string& name, const std::optional<Setting>& value) {
    std::erase_if(held_, [&](const auto& each) {
        return equal_without_case(each.first.first, key) && equal_without_case(each.first.second, name);
    });
    const std::string path = real_path(path_);
    std::error_code failed;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), failed);
    // Read, change and replace are one turn, so that no other program's write is lost.
    const Descriptor lock(::open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!lock.is_open() || ::flock(lock.get(), LOCK_EX) != 0) return false;
    const auto [text, fault] = read_text(path);
    if (!fault.empty()) return false;
    const auto changed = with_setting(text, key, name, value);
    if (!changed) return false;
    struct stat found {};
    const mode_t mode = ::stat(path.c_str(), &found) == 0 ? (found.st_mode & 07777) : 0600;
    cache_->filled = false;
    try {
        if (*changed != text) replace_whole_file(path, *changed, mode);
    } catch (const Failure&) {
        return false;
    }
    return true;
}

void Settings::hold(const std::string& key, const std::string& name, const Setting& value) {
    held_[{key, name}] = value;
}

} // namespace levora::session
