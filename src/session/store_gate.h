#pragma once

#include <chrono>
#include <string>

namespace levora::session {

// The gate of one store file: programs that write wait here for their turn, so that none of them
// meets a locked store. A lock of the file "LVWTax.gate" beside the store, gone with its process.
class StoreGate {
public:
    explicit StoreGate(const std::string& store_file);
    ~StoreGate();
    StoreGate(const StoreGate&) = delete;
    StoreGate& operator=(const StoreGate&) = delete;

    // False when the gate stayed shut for as long as told. A Failure when there can't be a gate: a
    // folder that can't be written, a full disk.
    bool enter(std::chrono::milliseconds longest_wait);
    void leave();
    void close(); // leaves, and lets the gate's file go
    [[nodiscard]] bool is_inside() const { return inside_; }

private:
    std::string path_;
    int descriptor_ = -1;
    bool inside_ = false;
};

} // namespace levora::session
