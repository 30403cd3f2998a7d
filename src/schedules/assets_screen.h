#pragma once

#include "schedules/assets_firm.h"
#include "schedules/assets_immovable.h"
#include "schedules/assets_jewellery.h"
#include "schedules/assets_movable.h"
#include "schedules/assets_urban_land.h"
#include "session/grid_sheet.h"
#include "session/session_state.h"
#include "widgets/fields.h"

#include <array>
#include <string>

namespace levora::schedules {

// Tabs of SSTabAsset, by index.
struct AssetTab {
    enum : int { immovable, urban_land, movable, firm, jewellery };
};
constexpr int asset_tabs = 5;

// The assets of one assessee and year: five schedules and their summary. It works for the main
// schedule, for one row of the business assets or for one row of the deemed assets, as the session's
// flags say. Every opening loads all schedules, OK saves all of them and unloads the screen.
class frmImmovable final : public session::Screen {
public:
    explicit frmImmovable(session::Session& session);

    widgets::Tabs SSTabAsset;
    ImmovableSchedule immovable;
    UrbanLandSchedule urban_land;
    MovableSchedule movable;
    FirmSchedule firm;
    JewellerySchedule jewellery;

    // The summary, read-only. Any change of the six sums them up in txtTotalNetAmount.
    widgets::Frame frWTDetails;
    widgets::TextField txtNetImmovableProperty;
    widgets::TextField txtNetMovableProperty;
    widgets::TextField txtNetUrbanLand;
    widgets::TextField txtNetInterestInFirm;
    widgets::TextField txtNetBusinessAssets;
    widgets::TextField txtNetJewellery;
    widgets::TextField txtTotalNetAmount;

    // What writes the summary, tab by tab; the business assets are handed over.
    struct {
        const widgets::Rule *immovable, *movable, *urban_land, *firm, *jewellery;
    } summary{};

    widgets::Button cmdOK;
    widgets::Button cmdBusinessAsset;

    widgets::Menu mnuContextMenu;
    widgets::MenuItem mnuAddColumn;
    widgets::MenuItem mnuDeleteColumn;
    widgets::Menu mnuConxtRow;
    widgets::MenuItem mnuInsertRow;
    widgets::MenuItem mnuDeleteRow;
    widgets::MenuItem mnuPreview;
    widgets::MenuItem mnuPrint;

    void Form_Load() override;
    // Refuses the close box: OK and the business assets are the only ways out. With the sheet hidden
    // behind it, nothing would be left on view.
    bool Form_QueryUnload() override { return leaving_; }
    void Form_Unload() override;
    // The program's own unloading, without a save.
    void leave();

    // The schedule of a tab.
    [[nodiscard]] AssetSchedule& schedule(int tab);

    void LoadAssetComputation();
    void SaveAssetComputation();
    // Shows as many item columns as `new_count` says, adding what the grid lacks; data of hidden
    // columns stay. `old_count` is the count applied last and becomes the new one. The column that
    // was touched last; 0 when none was.
    int ResizeSpr(widgets::Grid& spr, int new_count, int& old_count);

    // The last row of sprUrbanLand while its sheet is printed or previewed, with the tab's three totals.
    // The session's SheetGridName tells that it stands there, and keeps the grid from recomputing.
    void add_sheet_total_row();
    void remove_sheet_total_row();

private:
    void connect_summary();
    void connect_counts();
    void connect_menus();
    void connect_buttons();
    [[nodiscard]] bool in_main_mode() const;

    void load_asset_details(const session::Attempt& attempt);
    void save_asset_details(const session::Attempt& attempt);
    void cmdOK_Click();
    void cmdBusinessAsset_Click();
    void cboNumberOfProperty_Change();
    void cboNumberOfJewellery_Change();
    void mnuAddColumn_Click();
    void mnuDeleteColumn_Click();
    void sheet_of_active_grid(session::SheetUse use);

    const widgets::Rule* total_ = nullptr;
    bool leaving_ = false;
    int tables_read_ = 0;     // whose rows are all on the screen
    int property_count_ = 0;  // applied last
    int jewellery_count_ = 0; //
    int jewellery_current_column_ = 1;
};

} // namespace levora::schedules
