#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace levora::tools {

// A line on the terminal that tells how far long work is, from half a second on; it is gone when the work
// is done. Where the standard error is no terminal, nothing is written.
class TerminalLine final {
public:
    TerminalLine();
    ~TerminalLine();
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;

    void tell(const std::string& what, int done, int of);

private:
    void write_now_and_then();

    std::mutex mutex_;
    std::condition_variable ended_;
    std::string words_;
    bool over_ = false;
    bool shown_ = false;
    std::thread writer_; // the work itself may stand in one step for long
};

} // namespace levora::tools
