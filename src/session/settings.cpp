#include "session/settings.h"

#include "session/file_faults.h"
#include "session/settings_text.h"
#include "widgets/value_text.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <vector>

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

bool read_all(int descriptor, std::string& text) {
    std::vector<char> buffer(1 << 16);
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count == 0) return true;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

bool write_all(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// The whole new file stands beside the old one, on the disk, before it takes its place.
bool replace_file(const std::string& path, const std::string& text, mode_t mode) {
    std::string beside = path + ".XXXXXX";
    const Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file.is_open()) return false;
    if (!write_all(file.get(), text) || ::fchmod(file.get(), mode) != 0 || ::fsync(file.get()) != 0 ||
        ::rename(beside.c_str(), path.c_str()) != 0) {
        ::unlink(beside.c_str());
        return false;
    }
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.is_open()) ::fsync(directory.get());
    return true;
}

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

std::string read_text(const std::string& path, std::string& text) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.is_open()) return errno == ENOENT ? std::string() : path + ": " + reason_of(errno);
    return read_all(file.get(), text) ? std::string() : path + ": " + reason_of(errno);
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
    std::string text;
    const std::string fault = read_text(path_, text);
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
    std::string text;
    if (!read_text(path, text).empty()) return false;
    const auto changed = with_setting(text, key, name, value);
    if (!changed) return false;
    struct stat found {};
    const mode_t mode = ::stat(path.c_str(), &found) == 0 ? (found.st_mode & 07777) : 0600;
    const bool replaced = *changed == text || replace_file(path, *changed, mode);
    cache_->filled = false;
    return replaced;
}

void Settings::hold(const std::string& key, const std::string& name, const Setting& value) {
    held_[{key, name}] = value;
}

} // namespace levora::session
