#include "session/whole_files.h"

#include "session/file_faults.h"
#include "widgets/failure.h"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

const std::string suffix_beside = ".writing";

class OpenFile {
public:
    // `path` is what a fault names.
    OpenFile(std::string path, const std::string& opened, int flags, mode_t mode = 0)
        : path_(std::move(path)), descriptor_(::open(opened.c_str(), flags | O_CLOEXEC, mode)) {
        if (descriptor_ < 0) throw_file_fault(path_, errno);
    }
    ~OpenFile() { ::close(descriptor_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    void check(bool done) const {
        if (!done) throw_file_fault(path_, errno);
    }
    [[nodiscard]] int descriptor() const { return descriptor_; }

    void write(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t count = ::write(descriptor_, content.data(), content.size());
            if (count < 0 && errno == EINTR) continue;
            check(count >= 0);
            content.remove_prefix(static_cast<std::size_t>(count));
        }
    }

private:
    std::string path_;
    int descriptor_;
};

// The new file in writing, beside the one that it is for. Its name is always the same, so that what a
// kill leaves is written over the next time; its lock lets several programs write in turn.
class FileBeside {
public:
    FileBeside(const std::string& path, mode_t mode) : FileBeside(path) { // so that a failure takes it away
        for (;;) {
            file_.emplace(path_, beside_, O_RDWR | O_CREAT | O_NOFOLLOW, mode);
            file_->check(::flock(file_->descriptor(), LOCK_EX) == 0);
            if (is_mine_and_named()) break;
        }
        held_ = true;
        file_->check(::ftruncate(file_->descriptor(), 0) == 0 && ::fchmod(file_->descriptor(), mode) == 0);
    }
    ~FileBeside() {
        if (held_) ::unlink(beside_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(std::string_view content) const {
        file_->write(content);
        file_->check(::fsync(file_->descriptor()) == 0);
    }
    void take_place() {
        file_->check(::rename(beside_.c_str(), path_.c_str()) == 0);
        held_ = false;
        sync_folder_of(path_);
    }
    // A link is made only where no file stands, unlike a new name.
    void take_free_place() const {
        file_->check(::link(beside_.c_str(), path_.c_str()) == 0);
        try {
            sync_folder_of(path_);
        } catch (...) {
            ::unlink(path_.c_str());
            throw;
        }
    }

private:
    explicit FileBeside(const std::string& path) : path_(path), beside_(path + suffix_beside) {}

    // Another program may have put it in place meanwhile, and what a colleague's program left when it was
    // killed can't be given this file's mode: it makes way.
    [[nodiscard]] bool is_mine_and_named() const {
        struct stat named {};
        struct stat open {};
        file_->check(::fstat(file_->descriptor(), &open) == 0);
        if (::stat(beside_.c_str(), &named) != 0 || named.st_ino != open.st_ino) return false;
        const bool shared = open.st_nlink > 1; // a kill has left the finished file under both names
        if (open.st_uid == ::geteuid() && !shared) return true;
        file_->check(::unlink(beside_.c_str()) == 0);
        return false;
    }

    std::string path_;
    std::string beside_;
    std::optional<OpenFile> file_;
    bool held_ = false;
};

} // namespace

void sync_folder_of(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return; // a folder that may be written but not read
    const int failed = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    if (failed == EIO || failed == ENOSPC || failed == EDQUOT) throw_file_fault(path, failed);
}

std::string read_whole_file(const std::string& path) {
    const OpenFile file(path, path, O_RDONLY);
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
    FileBeside file(path, mode);
    file.write(content);
    file.take_place();
}

void write_in_place(const std::string& path, std::string_view content) {
    OpenFile(path, path, O_WRONLY).write(content);
}

bool write_missing_file(const std::string& path, std::string_view content, mode_t mode) {
    struct stat found {};
    const bool may_be_it = ::stat(path.c_str(), &found) == 0 && S_ISREG(found.st_mode) &&
                           static_cast<std::size_t>(found.st_size) == content.size();
    if (!may_be_it || read_whole_file(path) != content) {
        write_new_file(path, content, mode);
        return true;
    }
    if (::lstat((path + suffix_beside).c_str(), &found) == 0) const FileBeside left_over(path, mode);
    return false;
}

void write_new_file(const std::string& path, std::string_view content, mode_t mode) {
    const FileBeside file(path, mode);
    file.write(content);
    file.take_free_place();
}

} // namespace levora::session
