#include "session/whole_files.h"

#include "session/file_faults.h"
#include "widgets/failure.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

class OpenFile {
public:
    OpenFile(const std::string& path, int descriptor) : path_(path), descriptor_(descriptor) {
        if (descriptor_ < 0) throw_file_fault(path_, errno);
    }
    ~OpenFile() { ::close(descriptor_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    void check(bool done) const {
        if (!done) throw_file_fault(path_, errno);
    }
    [[nodiscard]] int descriptor() const { return descriptor_; }

private:
    std::string path_;
    int descriptor_;
};

void write_all(const OpenFile& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = ::write(file.descriptor(), content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        file.check(count >= 0);
        content.remove_prefix(static_cast<std::size_t>(count));
    }
}

// The folder's own entry of the file must reach the disk too.
void sync_folder_of(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const OpenFile directory(
        path, ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::fsync(directory.descriptor());
}

// Writes the content to a file of another name beside `path`; gives that name.
std::string write_beside(const std::string& path, std::string_view content, mode_t mode) {
    std::string beside = path + ".XXXXXX";
    const OpenFile file(path, ::mkostemp(beside.data(), O_CLOEXEC));
    try {
        write_all(file, content);
        file.check(::fchmod(file.descriptor(), mode) == 0);
        file.check(::fsync(file.descriptor()) == 0);
    } catch (const Failure&) {
        ::unlink(beside.c_str());
        throw;
    }
    return beside;
}

} // namespace

std::string read_whole_file(const std::string& path) {
    const OpenFile file(path, ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string content;
    std::vector<char> buffer(1 << 16);
    for (;;) {
        const ssize_t count = ::read(file.descriptor(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        file.check(count >= 0);
        if (count == 0) return content;
        content.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

void replace_whole_file(const std::string& path, std::string_view content, mode_t mode) {
    const std::string beside = write_beside(path, content, mode);
    if (::rename(beside.c_str(), path.c_str()) != 0) {
        const int reason = errno;
        ::unlink(beside.c_str());
        throw_file_fault(path, reason);
    }
    sync_folder_of(path);
}

void write_new_file(const std::string& path, std::string_view content, mode_t mode) {
    const std::string beside = write_beside(path, content, mode);
    // A link is made only where no file stands, unlike a new name.
    const bool made = ::link(beside.c_str(), path.c_str()) == 0;
    const int reason = errno;
    ::unlink(beside.c_str());
    if (!made) throw_file_fault(path, reason);
    sync_folder_of(path);
}

} // namespace levora::session
