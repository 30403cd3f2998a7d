#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

namespace levora::schedules {

// Columns and rows of sprDeemedAsset: twelve assets and their total.
struct DeemedColumn {
    enum : int {
        deemed_asset = 1,
        type_of_asset,
        other_person,
        relationship,
        pan,
        amount,
        details,
        debt,
        net
    };
};
struct DeemedRow {
    enum : int { last_asset = 12, total };
};

// Assets of other persons that section 4 includes in the assessee's wealth. OK stores them and writes
// the total, debt deducted and never below 0, into the sheet.
class frmDeemedAsset final : public session::Screen {
public:
    explicit frmDeemedAsset(session::Session& session);

    widgets::Frame frDeemedAsset;
    widgets::Grid sprDeemedAsset;
    widgets::Button cmdDeemedAssetOk;
    widgets::Button cmdDeemedAssetCancel;

    void Form_Load() override;
    void Form_Unload() override;

    void LoadDeemedAsset();
    void SaveDeemedAsset();
    // Opens the assets screen for the row, if the click is reported for the column of the amount.
    void sprDeemedAsset_ButtonClicked(int column, int row);

private:
    void design();
    void connect();
    void sprDeemedAsset_ComboSelChange(int row);
    void cmdDeemedAssetOk_Click();
    void cmdDeemedAssetCancel_Click();

    bool read_ = false; // all stored rows are on the screen
};

} // namespace levora::schedules
