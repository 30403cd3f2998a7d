#pragma once

#include "session/session_state.h"

#include <string_view>

namespace levora::schedules {

// A screen whose rows open the assets screen for one asset, and how the two speak to each other.
struct AssetParent {
    std::string_view screen; // "frmBusinessAssets"
    std::string_view grid;   // takes the total of the opened tab in column 5 of its active row
    std::string_view words;  // in the caption of the tab
    bool knows_jewellery;    // whether a row "Jewellery" opens anything
};
constexpr AssetParent business_parent{"frmBusinessAssets", "sprAssetOfBusiness", "Business Asset", true};
constexpr AssetParent deemed_parent{"frmDeemedAsset", "sprDeemedAsset", "Deemed Asset", false};

// The tab that a kind of asset is valued on, from 0; -1 for a name that opens nothing.
int asset_tab_of(std::string_view row_name);

// Opens frmImmovable for the row named by the session's AssetRowName, with the parent's flag set
// before: selects its tab, gives it a caption, leaves it the only one enabled, hides the summary and
// cmdBusinessAsset, shows the screen. A name that opens nothing still hides cmdBusinessAsset.
void open_assets_for_row(session::Session& session, const AssetParent& parent);

// The parent that the session's flags name.
const AssetParent& asset_parent(const session::Session& session);

// Shows frmImmovable as a new opening of it: a screen that is still loaded is unloaded first.
void show_assets_afresh(session::Session& session);

} // namespace levora::schedules
