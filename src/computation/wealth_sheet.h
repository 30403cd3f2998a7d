#pragma once

#include "session/grid_sheet.h"
#include "session/session_state.h"
#include "session/unread_rows.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace levora::session {
class Attempt;
}

namespace levora::computation {

// Columns of the two grids of the sheet.
struct PrepaidColumn {
    enum : int { bank_name = 1, bank_branch, bsr_code, date_of_deposit, challan_number, amount };
};
struct EnclosureColumn {
    enum : int { description = 1, figure };
};

// Net wealth that is exempt for every assessee and year, in rupees, as the sheet shows it (section 3).
constexpr const char* exempted_amount = "3000000";

// The net wealth sheet of one assessee and year, in rupees, and the hub of all screens. There is no
// calculate step: the change of one field works out the next (Wealth-tax Act, sections 2(m), 3, 4, 5,
// 17B and 44C). Other screens hand their totals over by assigning txtAssetsSec2ea, txtDeemedAssets
// and txtExemptedAssets. Its loading is the start of the program, its unloading the end.
class frmWealthMain final : public session::Screen {
public:
    explicit frmWealthMain(session::Session& session);

    widgets::Label lblHeading;
    widgets::ListField cboFY;
    widgets::TextField txtAssesseeName;
    widgets::MaskedField mskValuationDate;

    // The sheet from top to bottom, each field with the button beside it.
    widgets::TextField txtAssetsSec2ea;
    widgets::Button cmdAssets;
    widgets::TextField txtDeemedAssets;
    widgets::Button cmdDeemedAssets;
    widgets::TextField txtTotalAssets;
    widgets::TextField txtExemptedAssets;
    widgets::Button cmdExemptedAsset;
    widgets::TextField txtAssetsChargeableToWTax;
    widgets::TextField txtLessDebt;
    widgets::TextField txtNetWealth;
    widgets::TextField txtNetWealthRoundedOff;
    widgets::TextField txtExemptedAmount;
    widgets::TextField txtTaxableWealth;
    widgets::TextField txtWealthTaxLiability;
    widgets::TextField txtInterest;
    widgets::Button cmdInterest;
    widgets::TextField txtTaxIntPayable;
    widgets::TextField txtPrepaidTax;
    widgets::Button cmdSATaxPayable;
    widgets::TextField txtBalanceTaxIntPayable;
    widgets::TextField txtTaxRefund;

    // Interest under section 17B.
    widgets::Frame frInterest;
    widgets::TickBox chkAudited;
    widgets::MaskedField mskDueDate;
    widgets::MaskedField mskRetDate;
    widgets::Timer timInterest;

    // Challans of tax paid.
    widgets::Frame frSATax;
    widgets::Grid sprSATax;
    widgets::Timer timSATax;

    // Documents enclosed with the return.
    widgets::Button cmdEnclosure;
    widgets::Frame frEnclosure;
    widgets::Grid sprEnclosure;

    widgets::Button cmdformBA;
    widgets::Button cmdChallan;
    widgets::Button cmdPreview;
    widgets::Button cmdSave1;
    widgets::Button cmdMainExit;

    widgets::Menu mnuWealthTax;
    widgets::MenuItem mnuAddrows;
    widgets::MenuItem mnuDeleteRows;
    widgets::MenuItem mnuPreviewSheet;
    widgets::MenuItem mnuPrintSheet;

    // The whole start-up. A call that names no year or assessee ends the program.
    void Form_Load() override;
    // Closes two connections and ends the process; nothing is saved or asked.
    bool Form_QueryUnload() override;

    void InitializecontrolsAndVars();
    // Takes the year over and loads its sheet; what was not saved is lost.
    void cboFY_Click();
    void ClearTaxComputation();
    void LoadWealthTaxComputation();
    void SaveWealthTaxComputation();
    void SaveAllComputation();

    void LoadPrepaidTaxes();
    // These three pass a Failure on to their caller.
    void LoadPrepaidTaxesOnOpen();
    void SavePrepaidTaxes();
    void SavePrepaidTaxesOnClose();

    void chkAudited_Click();
    void mskDueDate_Change();
    void mskRetDate_Change();
    // Saves, then ends the program.
    void cmdMainExit_Click();

private:
    struct Slide;
    struct PrepaidLoading;
    enum class RowSetAtEnd { dropped, closed };

    void design();
    void connect_chain();
    void add_other_rules();
    void connect_dates();
    void connect_grids();
    void connect_panels();
    void connect_buttons();

    void clear_lock_row(const session::Attempt& attempt);

    // "AssesseeNo = 17 And FY = '2014-2015'"
    [[nodiscard]] std::string row_key() const;
    void design_prepaid();
    void design_enclosures();
    void load_enclosures(const session::Attempt& attempt);
    void save_enclosures(const session::Attempt& attempt);
    void put_prepaid_row(const session::RowSet& rows, int row, const PrepaidLoading& how);
    template <class Step> void load_prepaid(const PrepaidLoading& how, const Step& step);
    // True where a save goes on; a dismissed question keeps the sheet open.
    [[nodiscard]] bool goes_on(session::OverUnread choice);
    void save_prepaid(const std::string& deletion, RowSetAtEnd at_end);

    void sheet_of_active_grid(session::SheetUse use);
    void delete_active_row(widgets::Grid& grid);
    void grid_character(widgets::Grid& grid, char32_t character);

    [[nodiscard]] Slide interest_slide();
    [[nodiscard]] Slide prepaid_slide();
    void open_or_close(const Slide& slide);
    void slide_on(const Slide& slide);
    void cmdSATaxPayable_Click();
    void cmdEnclosure_Click();

    const widgets::Rule* interest_unrounded_ = nullptr;
    const widgets::Rule* interest_rounded_ = nullptr;
    const widgets::Rule* prepaid_total_ = nullptr;

    bool sheet_read_ = false; // all that is stored of it is on the screen
    bool enclosures_read_ = false;
    bool prepaid_read_ = false;
    bool stays_ = false; // a question of the save in hand was dismissed: no exit

    int InterestSlideDirection = 0; // 1 opening, 0 closing
    std::uint8_t InterestSlideStep = 0;
    int SATaxSlideDirection = 0;
    std::uint8_t SATaxSlideStep = 0;
};

} // namespace levora::computation
