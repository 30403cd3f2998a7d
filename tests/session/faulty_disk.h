#pragma once

#include <string>

namespace levora::session::testing {

// Stands between this program and its disk and memory: makes the n-th operation or allocation fail, or
// cuts the power there. Operations are writes, syncs, cuts, renamings and deletions of files and the
// openings of new ones, those of the store engine and our own; allocations are the engine's and those
// of C++.
class FaultyDisk {
public:
    enum class Fault { disk_error, disk_full, power_cut };
    enum class Lasting { once, from_then_on };

    // Before the engine's first use in this program.
    static void install();

    // From here on; n from 1.
    static void fail_at(int n, Fault fault, Lasting lasting);
    static void fail_allocation_at(int n, Lasting lasting);
    static void mend();
    static bool has_failed();
    // Counts one allocation of somebody else's; true when it has to fail.
    static bool refuses_memory();

    // What a power cut leaves of a folder's files: what was synced is there; of what was written
    // later, each sector is or is not, as the seed has it. A file that was renamed stands under its
    // new name or, where the folder was not synced, its old one.
    static void follow_files(); // before the stores are opened
    static void leave_after_power_cut(const std::string& folder, unsigned seed);
};

} // namespace levora::session::testing
