#include "tools/terminal_line.h"

#include <chrono>
#include <cstdio>

#include <unistd.h>

namespace levora::tools {

namespace {
using namespace std::chrono_literals;
constexpr auto patience = 500ms;
constexpr auto between_writes = 200ms;
constexpr const char* whole_line_away = "\r\033[K";
} // namespace

TerminalLine::TerminalLine() {
    if (::isatty(STDERR_FILENO)) writer_ = std::thread([this] { write_now_and_then(); });
}

TerminalLine::~TerminalLine() {
    if (!writer_.joinable()) return;
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    ended_.notify_one();
    writer_.join();
    if (shown_) std::fputs(whole_line_away, stderr);
}

void TerminalLine::tell(const std::string& what, int done, int of) {
    const std::lock_guard lock(mutex_);
    words_ = std::to_string(done + 1) + " of " + std::to_string(of) + ": " + what;
}

void TerminalLine::write_now_and_then() {
    std::unique_lock lock(mutex_);
    auto next = std::chrono::steady_clock::now() + patience;
    while (!ended_.wait_until(lock, next, [this] { return over_; })) {
        std::fprintf(stderr, "%s%s", whole_line_away, words_.c_str());
        shown_ = true;
        next = std::chrono::steady_clock::now() + between_writes;
    }
}

} // namespace levora::tools
