#pragma once

#include "session/session_state.h"

#include <array>
#include <string_view>

namespace levora::schedules {

// What one schedule adds to the assets, in rupees, debts deducted.
struct CompositionPart {
    std::string_view schedule; // as the assets screen heads it
    double amount = 0;
};
using AssetComposition = std::array<CompositionPart, 6>;

// The assets by schedule as the last OK of the assets screen stored them; all 0 before it. Made for
// pictures beside the figures: a store that can't be read gives zeros, and no report of its own.
AssetComposition asset_composition(session::Session& session);

} // namespace levora::schedules
