#include "session/common_services.h"
#include "session/file_faults.h"
#include "widgets/value_text.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace levora::session {

namespace {

std::string present_moment() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> buffer{};
    const std::size_t length = std::strftime(buffer.data(), buffer.size(), "%Y-%m-%d %H:%M:%S", &local);
    return std::string(buffer.data(), length);
}

// A text as a field of a record: quotation marks doubled, line ends turned into blanks, so that a
// record stays one line.
std::string field(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"') result += '"';
        result += c == '\n' || c == '\r' || c == '\0' ? ' ' : c;
    }
    return result + '"';
}

// In one write, as several programs may keep the same log.
bool append(const std::filesystem::path& file, const std::string& record) {
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, shared_file_mode);
    if (descriptor < 0) return false;
    const bool written =
        ::write(descriptor, record.data(), record.size()) == static_cast<ssize_t>(record.size());
    ::close(descriptor);
    return written;
}

// Where a user's own log goes when the program's folder belongs to the machine.
std::filesystem::path state_folder() {
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state && state[0] == '/') return std::filesystem::path(state) / "levora-wealth-tax";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : "/") / ".local/state/levora-wealth-tax";
}

} // namespace

void LogError(Session& session, std::string_view procedure, const Failure& error) try {
    const std::string record = "#" + present_moment() + "#," + field(procedure) + "," +
                               number_text(error.number) + "," + field(error.what()) + "\n";
    const std::string name = "ErrorLog.txt";
    if (append(std::filesystem::path(session.program_folder) / name, record)) return;
    std::error_code ignored; // a log that can't be kept stops nobody's work
    std::filesystem::create_directories(state_folder(), ignored);
    append(state_folder() / name, record);
} catch (const std::exception&) {
    // Nor is there memory for it: the report that follows is what counts.
}

} // namespace levora::session
