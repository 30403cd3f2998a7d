#include "session/store_gate.h"

#include "session/file_faults.h"

#include <cerrno>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

using Clock = std::chrono::steady_clock;

// Two places in the file are locked: whoever holds the queue is next to get the gate. So a program
// that saves over and over can't pass those who wait.
enum Place : off_t { gate_place = 0, queue_place = 1 };

bool set_lock(int descriptor, Place place, short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = place;
    lock.l_len = 1;
    return fcntl(descriptor, F_OFD_SETLK, &lock) == 0;
}

bool wait_for(int descriptor, Place place, Clock::time_point until) {
    auto pause = std::chrono::microseconds(100);
    while (!set_lock(descriptor, place, F_WRLCK)) {
        if (Clock::now() >= until) return false;
        std::this_thread::sleep_for(pause);
        if (pause < std::chrono::milliseconds(2)) pause *= 2;
    }
    return true;
}

} // namespace

StoreGate::StoreGate(const std::string& store_file)
    : path_(std::filesystem::path(store_file).replace_extension(".gate").string()) {}

StoreGate::~StoreGate() {
    close();
}

bool StoreGate::enter(std::chrono::milliseconds longest_wait) {
    if (inside_) return true;
    if (descriptor_ < 0) {
        descriptor_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, shared_file_mode);
        if (descriptor_ < 0) throw_file_fault(path_, errno);
        // The mask of the first program must not shut out its colleagues; only the owner can do this.
        (void)::fchmod(descriptor_, shared_file_mode);
    }
    const auto until = Clock::now() + longest_wait;
    if (!wait_for(descriptor_, queue_place, until)) return false;
    inside_ = wait_for(descriptor_, gate_place, until);
    set_lock(descriptor_, queue_place, F_UNLCK);
    return inside_;
}

void StoreGate::leave() {
    if (!inside_) return;
    set_lock(descriptor_, gate_place, F_UNLCK);
    inside_ = false;
}

void StoreGate::close() {
    if (descriptor_ >= 0) ::close(descriptor_); // its locks go with it
    descriptor_ = -1;
    inside_ = false;
}

} // namespace levora::session
