#pragma once

#include <string>

namespace levora::session::testing {

// Stands between the store engine and the disk, for all stores of this program: makes the n-th
// operation fail, or cuts the power there. Operations are writes, syncs, cuts and deletions of files
// and the openings of new ones.
class FaultyDisk {
public:
    enum class Fault { disk_error, disk_full, power_cut };
    enum class Lasting { once, from_then_on };

    // Before the engine's first use in this program.
    static void install();

    // From here on; n from 1, 0 for never.
    static void fail_at(int n, Fault fault, Lasting lasting);
    static void fail_allocation_at(int n);
    static void mend();
    // Operations, or allocations, since the last fail_at or fail_allocation_at.
    static int operations();
    static int allocations();
    static bool has_failed();

    // What a power cut leaves of a folder's files: what was synced is there; of what was written
    // later, each sector is or is not, as the seed has it.
    static void follow_files(); // before the stores are opened
    static void leave_after_power_cut(const std::string& folder, unsigned seed);
};

} // namespace levora::session::testing
