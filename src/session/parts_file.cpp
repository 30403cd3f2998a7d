#include "session/parts_file.h"

#include "session/file_faults.h"
#include "session/whole_files.h"
#include "session/whole_folder.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

const std::string copies_folder = "ITR";

std::string mark_of(PartsFile::Kind kind) {
    return kind == PartsFile::Kind::backup ? "Levora Wealth Tax backup 1" : "Levora Wealth Tax client 1";
}

bool is_copy_name(const std::string& name) {
    return name.starts_with(copies_folder + "/WT ") &&
           name.find('/', copies_folder.size() + 1) == std::string::npos;
}

} // namespace

PartsFile::PartsFile(std::string path, Kind kind) : PartsFile() { // so that a failure takes the file away
    path_ = std::move(path);
    struct stat found {};
    if (::lstat(path_.c_str(), &found) == 0) throw_file_fault(path_, EEXIST);
    beside_journal_ = path_ + ".part-journal";
    beside_ = path_ + ".part";
    // Of a run that was killed. It may be a finished file under both names, and so is not written into.
    ::unlink(beside_journal_.c_str());
    ::unlink(beside_.c_str());
    const int descriptor = ::open(beside_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, shared_file_mode);
    if (descriptor < 0) throw_file_fault(beside_, errno);
    (void)::fchmod(descriptor, shared_file_mode);
    file_number_ = ::fstat(descriptor, &found) == 0 ? found.st_ino : 0;
    ::close(descriptor);
    store_ = std::make_unique<OpenStore>(beside_);
    store_->run("BEGIN");
    store_->run("CREATE TABLE mark (text TEXT)");
    store_->run("INSERT INTO mark VALUES (" + as_literal(mark_of(kind)) + ")");
    store_->run("CREATE TABLE part (name TEXT PRIMARY KEY, content BLOB NOT NULL)");
}

PartsFile PartsFile::open(const std::string& path, Kind kind) {
    PartsFile result;
    result.path_ = path;
    result.store_ = std::make_unique<OpenStore>(path);
    std::string mark;
    try {
        const PreparedStatement select = result.store_->prepare("SELECT text FROM mark");
        if (result.store_->step(select.get())) mark = column_value(select.get(), 0).text();
    } catch (const Failure& failure) {
        if (failure.number != SQLITE_ERROR) throw;
        mark.clear(); // a store of another kind has no such table
    }
    if (mark != mark_of(kind))
        throw Failure(error_number::path_access,
                      path + ": this is no file of the kind \"" + mark_of(kind) + "\"");
    return result;
}

bool PartsFile::stands_beside() const {
    struct stat found {};
    return !beside_.empty() && ::lstat(beside_.c_str(), &found) == 0 && found.st_ino == file_number_;
}

PartsFile::~PartsFile() {
    store_.reset();
    if (!stands_beside()) return;
    ::unlink(beside_.c_str());
    ::unlink(beside_journal_.c_str()); // a failing disk may have left it
}

void PartsFile::put(const std::string& name, const std::string& content) {
    const PreparedStatement insert = store_->prepare("INSERT INTO part VALUES (?, CAST(? AS BLOB))");
    bind_value(*store_, insert.get(), 1, name);
    bind_value(*store_, insert.get(), 2, content);
    store_->step(insert.get());
}

std::map<std::string, std::string> PartsFile::parts() {
    std::map<std::string, std::string> result;
    const PreparedStatement select = store_->prepare("SELECT name, content FROM part");
    while (store_->step(select.get()))
        result.emplace(column_value(select.get(), 0).text(), column_value(select.get(), 1).text());
    return result;
}

void PartsFile::finish() {
    store_->run("COMMIT");
    store_.reset();
    if (!stands_beside()) throw_file_fault(path_, EEXIST); // another program makes it too
    if (::link(beside_.c_str(), path_.c_str()) != 0) throw_file_fault(path_, errno);
    sync_folder_of(path_);
}

std::map<std::string, std::string> working_copies(const std::string& folder, const std::string& start) {
    std::map<std::string, std::string> parts;
    std::error_code none;
    for (const auto& each :
         std::filesystem::directory_iterator(std::filesystem::path(folder) / copies_folder, none)) {
        const std::string name = each.path().filename().string();
        // What a kill has left in writing is no copy.
        if (name.starts_with(start) && !name.ends_with(".writing") && each.is_regular_file(none))
            parts.emplace(copies_folder + "/" + name, read_whole_file(each.path().string()));
    }
    return parts;
}

std::vector<std::string> write_working_copies(const std::string& folder,
                                              const std::map<std::string, std::string>& parts) {
    const std::filesystem::path below = std::filesystem::path(folder) / copies_folder;
    std::vector<std::string> made;
    try {
        for (const auto& [name, content] : parts) {
            if (!is_copy_name(name)) continue;
            make_folder(below.string());
            make_room(made);
            std::string file = (std::filesystem::path(folder) / name).string();
            if (write_missing_file(file, content, shared_file_mode)) made.push_back(std::move(file));
        }
    } catch (...) {
        remove_files(made);
        throw;
    }
    return made;
}

void remove_files(const std::vector<std::string>& files) {
    for (const std::string& each : files)
        ::unlink(each.c_str());
}

} // namespace levora::session
