#include "session/faulty_disk.h"

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <new>
#include <optional>
#include <random>
#include <sstream>
#include <vector>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

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
    bool fails_on = false;
    int allocations = 0;
    int own_work = 0;
    bool failed = false;

    // Closing a file that was read here gives up this program's locks on it, so contents are only
    // followed where a power cut is tried, and no second program is about.
    bool follows_contents = false;
    std::map<std::string, std::string> synced;                // content of each file at its last sync
    std::map<std::string, std::string> deleted;               // files whose folder was not synced since
    std::map<std::string, std::optional<std::string>> placed; // what stood there before a renaming
};

Disk& disk() {
    static Disk one;
    return one;
}

// What is done here for the test's own sake has memory.
struct OwnWork {
    OwnWork() { ++disk().own_work; }
    ~OwnWork() { --disk().own_work; }
};

std::string content_of(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// Counts one operation of our own files; false where it meets a fault, which errno then tells.
bool goes_well() {
    Disk& d = disk();
    ++d.operations;
    const bool fails =
        d.fail_at > 0 && (d.operations == d.fail_at ||
                          (d.operations > d.fail_at && d.lasting == FaultyDisk::Lasting::from_then_on));
    if (!fails) return true;
    d.failed = true;
    errno = d.fault == FaultyDisk::Fault::disk_full ? ENOSPC : EIO;
    return false;
}

// Counts one operation; the engine's number of the fault that it meets, or SQLITE_OK.
int meet(int disk_error) {
    if (goes_well()) return SQLITE_OK;
    return disk().fault == FaultyDisk::Fault::disk_full ? SQLITE_FULL : disk_error;
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
    const OwnWork own_work;
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
    const OwnWork own_work;
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
    const OwnWork own_work;
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
    return FaultyDisk::refuses_memory() ? nullptr : disk().memory.xMalloc(size);
}
void* reallocate(void* old, int size) {
    return FaultyDisk::refuses_memory() ? nullptr : disk().memory.xRealloc(old, size);
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

void FaultyDisk::fail_allocation_at(int n, Lasting lasting) {
    Disk& d = disk();
    d.fail_allocation_at = n;
    d.fails_on = lasting == Lasting::from_then_on;
    d.allocations = 0;
    d.failed = false;
}

bool FaultyDisk::refuses_memory() {
    Disk& d = disk();
    if (d.fail_allocation_at == 0 || d.own_work > 0) return false;
    ++d.allocations;
    if (d.allocations < d.fail_allocation_at || (d.allocations > d.fail_allocation_at && !d.fails_on))
        return false;
    d.failed = true;
    return true;
}

void FaultyDisk::mend() {
    disk().follows_contents = false;
    disk().fail_at = 0;
    disk().fail_allocation_at = 0;
}

bool FaultyDisk::has_failed() {
    return disk().failed;
}

void FaultyDisk::follow_files() {
    disk().synced.clear();
    disk().deleted.clear();
    disk().placed.clear();
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
    for (const auto& [path, before] : disk().placed) {
        if (!path.starts_with(folder) || random() % 2 == 0) continue;
        if (before)
            std::ofstream(path, std::ios::binary | std::ios::trunc) << *before;
        else
            std::filesystem::remove(path);
    }
    for (const auto& [path, synced] : disk().deleted)
        if (path.starts_with(folder) && random() % 2 == 0 && !std::filesystem::exists(path))
            std::ofstream(path, std::ios::binary) << synced;
    disk().synced.clear();
    disk().deleted.clear();
    disk().placed.clear();
}

} // namespace levora::session::testing

// The linker leads our own calls of the machine here (see CMakeLists.txt).
namespace {

using namespace levora::session::testing;

std::string path_of(int descriptor) {
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor)).string();
}

void place(const char* from, const char* to) {
    const OwnWork own_work;
    Disk& d = disk();
    if (!d.follows_contents) return;
    const bool stood = std::filesystem::exists(to);
    d.placed.try_emplace(to, stood ? std::optional(content_of(to)) : std::nullopt);
    d.synced[to] = d.synced[from];
    d.synced.erase(from);
}

void* memory(std::size_t size) noexcept {
    return FaultyDisk::refuses_memory() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* memory_or_throw(std::size_t size) {
    if (void* const found = memory(size)) return found;
    throw std::bad_alloc();
}

} // namespace

extern "C" {
int __real_open(const char* path, int flags, mode_t mode);
ssize_t __real_write(int descriptor, const void* bytes, std::size_t count);
int __real_ftruncate(int descriptor, off_t size);
int __real_rename(const char* from, const char* to);
int __real_link(const char* from, const char* to);

int __wrap_open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
        if (!goes_well()) return -1;
    }
    return __real_open(path, flags, mode);
}
ssize_t __wrap_write(int descriptor, const void* bytes, std::size_t count) {
    if (goes_well()) return __real_write(descriptor, bytes, count);
    const int reason = errno; // what fits still goes down
    (void)!__real_write(descriptor, bytes, count / 2);
    errno = reason;
    return -1;
}
int __wrap_fsync(int descriptor) {
    const OwnWork own_work;
    if (!goes_well()) return -1;
    Disk& d = disk();
    if (!d.follows_contents) return 0;
    const std::string path = path_of(descriptor);
    if (std::filesystem::is_directory(path))
        std::erase_if(d.placed, [&](const auto& each) {
            return std::filesystem::path(each.first).parent_path() == path;
        });
    else
        d.synced[path] = content_of(path);
    return 0;
}
int __wrap_ftruncate(int descriptor, off_t size) {
    return goes_well() ? __real_ftruncate(descriptor, size) : -1;
}
int __wrap_rename(const char* from, const char* to) {
    if (!goes_well()) return -1;
    place(from, to);
    return __real_rename(from, to);
}
int __wrap_link(const char* from, const char* to) {
    if (!goes_well()) return -1;
    place(from, to);
    return __real_link(from, to);
}
}

void* operator new(std::size_t size) {
    return memory_or_throw(size);
}
void* operator new[](std::size_t size) {
    return memory_or_throw(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return memory(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return memory(size);
}
void operator delete(void* place) noexcept {
    std::free(place);
}
void operator delete[](void* place) noexcept {
    std::free(place);
}
void operator delete(void* place, std::size_t) noexcept {
    std::free(place);
}
void operator delete[](void* place, std::size_t) noexcept {
    std::free(place);
}
