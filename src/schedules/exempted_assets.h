#pragma once

#include "session/grid_sheet.h"
#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

namespace levora::schedules {

// Columns of sprAssetExempt, one asset a row.
struct ExemptColumn {
    enum : int { asset = 1, amount, debt, net, reasons };
};

// Assets that are claimed as exempt under section 5. OK stores them and writes their total into the
// sheet, where it is only reported.
class frmAssetExempt final : public session::Screen {
public:
    explicit frmAssetExempt(session::Session& session);

    widgets::Frame frAssetExempt;
    widgets::Grid sprAssetExempt;
    widgets::Label lblNote;
    widgets::TextField txtTotalAssetExempt;
    widgets::Button cmdOK;
    widgets::Button cmdCancel;
    widgets::Menu mnuSpread;
    widgets::MenuItem mnuInsertRow;
    widgets::MenuItem mnuDeleteRow;
    widgets::MenuItem mnuPreviewSheet;
    widgets::MenuItem mnuPrintSheet;

    void Form_Load() override;
    void Form_Unload() override;

    void LoadExemptedAsset();
    void SaveExemptedAsset();

private:
    void design();
    void connect_grid();
    void connect_menu();
    void sprAssetExempt_Change(int column);
    void sprAssetExempt_KeyPress(char32_t character);
    void sheet_of_active_grid(session::SheetUse use);
    void cmdOK_Click();

    const widgets::Rule* total_ = nullptr;
    bool read_ = false; // all stored rows are on the screen
};

} // namespace levora::schedules
