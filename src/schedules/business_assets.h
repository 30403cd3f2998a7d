#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

namespace levora::schedules {

// Columns of sprAssetOfBusiness, one asset a row.
struct BusinessColumn {
    enum : int { asset = 1, balance_sheet, fifth, with_fifth, individual, details, taken };
};

// Assets of a business of the assessee (Schedule III, Part D): the value of the single asset replaces
// the balance-sheet figure only where it exceeds that by more than 20 %. OK stores them and gives the
// total to the assets screen.
class frmBusinessAssets final : public session::Screen {
public:
    explicit frmBusinessAssets(session::Session& session);

    widgets::Frame frBusinessAssets;
    widgets::Grid sprAssetOfBusiness;
    widgets::TextField txtTotalBusinessAsset;
    widgets::Button cmdBusinessAssetSave;
    widgets::Button cmdCancel;

    void Form_Load() override;
    void Form_Unload() override;

    void LoadBusinessassets();
    void SaveBusinessAsset();

private:
    void design();
    void connect();
    void sprAssetOfBusiness_ButtonClicked(int row);
    void cmdBusinessAssetSave_Click();
    void cmdCancel_Click();

    const widgets::Rule* total_ = nullptr;
    bool read_ = false; // all stored rows are on the screen
};

} // namespace levora::schedules
