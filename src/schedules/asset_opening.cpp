#include "schedules/asset_opening.h"

#include "schedules/assets_screen.h"

#include <array>
#include <string>

namespace levora::schedules {

namespace {

struct RowName {
    std::string_view name;
    int tab;
};
constexpr std::array row_names{
    RowName{"Building", AssetTab::immovable},
    RowName{"Residential House", AssetTab::immovable},
    RowName{"Others", AssetTab::immovable},
    RowName{"Urban Land", AssetTab::urban_land},
    RowName{"Car", AssetTab::movable},
    RowName{"AirCraft", AssetTab::movable},
    RowName{"Yachts", AssetTab::movable},
    RowName{"Gold", AssetTab::movable},
    RowName{"Silver", AssetTab::movable},
    RowName{"Furnitures with precious metal", AssetTab::movable},
    RowName{"Interest in Firm or AOP", AssetTab::firm},
    RowName{"Jewellery", AssetTab::jewellery},
};

struct TabCaption {
    std::string_view words;
    bool with_name; // " (" + name + ")" behind the parent's words
};
constexpr std::array<TabCaption, asset_tabs> tab_captions{{
    {"Immovable Property", true},
    {"Urban Land", true},
    {"Movable Property", true},
    {"Interest in Firm or AOP", false},
    {"Jewellery", false},
}};

std::string caption_of(int tab, const AssetParent& parent, const std::string& row_name) {
    const TabCaption& caption = tab_captions[static_cast<std::size_t>(tab)];
    std::string text = std::string(caption.words) + " - " + std::string(parent.words);
    if (caption.with_name) text += " (" + row_name + ")";
    return text;
}

// The tab control's width while it stands alone, and what a tab's frame leaves of it.
constexpr double tabs_width_twips = 10700;
constexpr double frame_margin_twips = 200;

} // namespace

int asset_tab_of(std::string_view row_name) {
    for (const RowName& each : row_names)
        if (each.name == row_name) return each.tab;
    return -1;
}

void open_assets_for_row(session::Session& session, const AssetParent& parent) {
    auto& assets = session.screens.get<frmImmovable>("frmImmovable");
    const int tab = asset_tab_of(session.AssetRowName);
    if (tab >= 0 && (tab != AssetTab::jewellery || parent.knows_jewellery)) {
        assets.SSTabAsset.set_tab_enabled(tab, true);
        assets.SSTabAsset.set_tab(tab);
        assets.SSTabAsset.set_caption(tab, caption_of(tab, parent, session.AssetRowName));
        for (int other = 0; other < asset_tabs; ++other)
            if (other != tab) assets.SSTabAsset.set_tab_enabled(other, false);
        assets.frWTDetails.set_visible(false);
        assets.schedule(tab).frame().width_twips = tabs_width_twips - frame_margin_twips;
        session.screens.show("frmImmovable");
    }
    assets.cmdBusinessAsset.set_visible(false);
}

const AssetParent& asset_parent(const session::Session& session) {
    return session.BusinessAssetFlag ? business_parent : deemed_parent;
}

void show_assets_afresh(session::Session& session) {
    if (session.screens.find("frmImmovable") != nullptr)
        session.screens.get<frmImmovable>("frmImmovable").leave();
    session.screens.show("frmImmovable");
}

} // namespace levora::schedules
