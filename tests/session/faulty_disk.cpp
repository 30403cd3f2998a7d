#include "session/faulty_disk.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <vector>

#include <sqlite3.h>

namespace levora::session::testing {

namespace {

struct Disk {
    sqlite3_vfs* real = nullptr;
    sqlite3_vfs faulty{};
    sqlite3_mem_methods memory{};

    int fail_at = 0;
    FaultyDisk::Fault fault = FaultyDisk::Fault::disk_error;
    FaultyDisk::Lasting lasting = FaultyDisk::Lasting::once;
    int operations = 0;
    int fail_allocation_at = 0;
    int allocations = 0;
    bool failed = false;

    // Closing a file that was read here gives up this program's locks on it, so contents are only
    // followed where a power cut is tried, and no second program is about.
    bool follows_contents = false;
    std::map<std::string, std::string> synced;  // content of each file at its last sync
    std::map<std::string, std::string> deleted; // files whose folder was not synced since
};

Disk& disk() {
    static Disk one;
    return one;
}

std::string content_of(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// Counts one operation; the engine's number of the fault that it meets, or SQLITE_OK.
int meet(int disk_error) {
    Disk& d = disk();
    ++d.operations;
    const bool now =
        d.fail_at > 0 && (d.operations == d.fail_at ||
                          (d.operations > d.fail_at && d.lasting == FaultyDisk::Lasting::from_then_on));
    if (!now) return SQLITE_OK;
    d.failed = true;
    return d.fault == FaultyDisk::Fault::disk_full ? SQLITE_FULL : disk_error;
}

struct File {
    sqlite3_file base;
    sqlite3_file* real;
    std::string* path;
};

File* of(sqlite3_file* file) {
    return reinterpret_cast<File*>(file);
}
sqlite3_file* real(sqlite3_file* file) {
    return of(file)->real;
}

int close_file(sqlite3_file* file) {
    const int code = real(file)->pMethods ? real(file)->pMethods->xClose(real(file)) : SQLITE_OK;
    sqlite3_free(real(file));
    delete of(file)->path;
    return code;
}
int write_file(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
    if (const int code = meet(SQLITE_IOERR_WRITE)) return code;
    return real(file)->pMethods->xWrite(real(file), bytes, count, at);
}
int truncate_file(sqlite3_file* file, sqlite3_int64 size) {
    if (meet(SQLITE_IOERR_TRUNCATE)) return SQLITE_IOERR_TRUNCATE;
    return real(file)->pMethods->xTruncate(real(file), size);
}
int sync_file(sqlite3_file* file, int flags) {
    if (meet(SQLITE_IOERR_FSYNC)) return SQLITE_IOERR_FSYNC;
    if (disk().follows_contents) disk().synced[*of(file)->path] = content_of(*of(file)->path);
    (void)flags; // the machine itself stays up: the content kept here stands in for the platter
    return SQLITE_OK;
}
int read_file(sqlite3_file* file, void* bytes, int count, sqlite3_int64 at) {
    return real(file)->pMethods->xRead(real(file), bytes, count, at);
}
int file_size(sqlite3_file* file, sqlite3_int64* size) {
    return real(file)->pMethods->xFileSize(real(file), size);
}
int lock_file(sqlite3_file* file, int lock) {
    return real(file)->pMethods->xLock(real(file), lock);
}
int unlock_file(sqlite3_file* file, int lock) {
    return real(file)->pMethods->xUnlock(real(file), lock);
}
int check_lock(sqlite3_file* file, int* result) {
    return real(file)->pMethods->xCheckReservedLock(real(file), result);
}
int control_file(sqlite3_file* file, int operation, void* argument) {
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}
int sector_size(sqlite3_file* file) {
    return real(file)->pMethods->xSectorSize(real(file));
}
int characteristics(sqlite3_file*) {
    return 0; // the plainest disk: nothing is atomic, nothing is in order
}

const sqlite3_io_methods methods = {
    1,         close_file,  read_file,  write_file,   truncate_file, sync_file,       file_size,
    lock_file, unlock_file, check_lock, control_file, sector_size,   characteristics, nullptr,
    nullptr,   nullptr,     nullptr,    nullptr,      nullptr};

int open_file(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out_flags) {
    Disk& d = disk();
    file->pMethods = nullptr;
    const bool makes = name && (flags & SQLITE_OPEN_CREATE) != 0 && !std::filesystem::exists(name);
    if (makes && meet(SQLITE_CANTOPEN)) return SQLITE_CANTOPEN;
    auto* inner = static_cast<sqlite3_file*>(sqlite3_malloc(d.real->szOsFile));
    if (!inner) return SQLITE_NOMEM;
    std::memset(inner, 0, static_cast<std::size_t>(d.real->szOsFile));
    const int code = d.real->xOpen(d.real, name, inner, flags, out_flags);
    if (code != SQLITE_OK) {
        if (inner->pMethods) inner->pMethods->xClose(inner);
        sqlite3_free(inner);
        return code;
    }
    const std::string path = name ? name : "";
    // What stood there before this program was on the platter; a new file's name may survive alone.
    if (makes) d.deleted.erase(path);
    if (d.follows_contents) d.synced.try_emplace(path, makes ? std::string() : content_of(path));
    of(file)->real = inner;
    of(file)->path = new std::string(path);
    file->pMethods = &methods;
    return SQLITE_OK;
}

int delete_file(sqlite3_vfs*, const char* name, int sync_folder) {
    Disk& d = disk();
    if (meet(SQLITE_IOERR_DELETE)) return SQLITE_IOERR_DELETE;
    const int code = d.real->xDelete(d.real, name, 0);
    if (code != SQLITE_OK) return code;
    if (const auto at = d.synced.find(name); at != d.synced.end()) {
        if (sync_folder == 0) d.deleted[name] = at->second;
        d.synced.erase(at);
    }
    if (sync_folder != 0) d.deleted.clear();
    return SQLITE_OK;
}

void* allocate(int size) {
    Disk& d = disk();
    ++d.allocations;
    if (d.fail_allocation_at > 0 && d.allocations >= d.fail_allocation_at) {
        d.failed = true;
        return nullptr;
    }
    return d.memory.xMalloc(size);
}
void* reallocate(void* old, int size) {
    Disk& d = disk();
    ++d.allocations;
    if (d.fail_allocation_at > 0 && d.allocations >= d.fail_allocation_at) {
        d.failed = true;
        return nullptr;
    }
    return d.memory.xRealloc(old, size);
}

int last_error(sqlite3_vfs*, int, char*) {
    const Disk& d = disk();
    return d.failed && d.fault == FaultyDisk::Fault::disk_full ? ENOSPC : EIO;
}

} // namespace

void FaultyDisk::install() {
    Disk& d = disk();
    if (d.real) return;
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &d.memory);
    sqlite3_mem_methods counted = d.memory;
    counted.xMalloc = allocate;
    counted.xRealloc = reallocate;
    sqlite3_config(SQLITE_CONFIG_MALLOC, &counted);
    d.real = sqlite3_vfs_find(nullptr);
    d.faulty = *d.real;
    d.faulty.zName = "faulty";
    d.faulty.szOsFile = sizeof(File);
    d.faulty.xOpen = open_file;
    d.faulty.xDelete = delete_file;
    d.faulty.xGetLastError = last_error;
    // The rest of the real one takes itself as its first argument, and finds its own data there.
    sqlite3_vfs_register(&d.faulty, 1);
}

void FaultyDisk::fail_at(int n, Fault fault, Lasting lasting) {
    Disk& d = disk();
    d.fail_at = n;
    d.fault = fault;
    d.lasting = fault == Fault::power_cut ? Lasting::from_then_on : lasting;
    d.operations = 0;
    d.failed = false;
}

void FaultyDisk::fail_allocation_at(int n) {
    Disk& d = disk();
    d.fail_allocation_at = n;
    d.allocations = 0;
    d.failed = false;
}

void FaultyDisk::mend() {
    disk().follows_contents = false;
    disk().fail_at = 0;
    disk().fail_allocation_at = 0;
}

int FaultyDisk::operations() {
    return disk().operations;
}

int FaultyDisk::allocations() {
    return disk().allocations;
}

bool FaultyDisk::has_failed() {
    return disk().failed;
}

void FaultyDisk::follow_files() {
    disk().synced.clear();
    disk().deleted.clear();
    disk().follows_contents = true;
}

void FaultyDisk::leave_after_power_cut(const std::string& folder, unsigned seed) {
    constexpr std::size_t sector = 512;
    std::mt19937 random(seed);
    for (const auto& [path, synced] : disk().synced) {
        if (!path.starts_with(folder)) continue;
        const std::string written = content_of(path);
        std::string left =
            random() % 2 == 0 ? synced : synced + written.substr(std::min(synced.size(), written.size()));
        for (std::size_t at = 0; at < left.size(); at += sector)
            if (random() % 2 == 0 && at < written.size())
                left.replace(at, std::min(sector, left.size() - at),
                             written.substr(at, std::min(sector, left.size() - at)));
        std::ofstream(path, std::ios::binary | std::ios::trunc) << left;
    }
    for (const auto& [path, synced] : disk().deleted)
        if (path.starts_with(folder) && random() % 2 == 0 && !std::filesystem::exists(path))
            std::ofstream(path, std::ios::binary) << synced;
    disk().synced.clear();
    disk().deleted.clear();
}

} // namespace levora::session::testing
