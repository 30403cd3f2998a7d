#pragma once

#include "session/common_services.h"
#include "session/grid_sheet.h"
#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace levora::computation {

class frmWealthMain;

// A field that a figure is made of, and whether it is added (+1) or taken off (-1).
struct SheetTerm {
    widgets::TextField frmWealthMain::*field;
    int sign;
};

// One step of the chain from assets to tax: the target is `shape` of the signed sum of its sources, in
// rupees. The chain itself and the explanation of a figure both walk these.
struct SheetLink {
    widgets::TextField frmWealthMain::*target;
    std::vector<SheetTerm> sources;
    double (*shape)(double sum);
    std::string_view shape_words; // what the shape does, for a person; empty when it does nothing
};

std::span<const SheetLink> sheet_links();

// The net wealth sheet: each figure is a text field, and the change of one field's text recomputes the
// next (Wealth-tax Act, 1957: sections 2(ea), 2(m), 4, 5, 17(B), 44C). Its loading is the start of the
// program. Amounts are rupees.
class frmWealthMain : public session::Screen {
public:
    explicit frmWealthMain(session::Session& session);

    widgets::ListField cboFY;
    widgets::TextField txtAssesseeName;
    widgets::MaskedField mskValuationDate;
    widgets::TextField txtAssetsSec2ea, txtDeemedAssets, txtTotalAssets, txtExemptedAssets;
    widgets::TextField txtAssetsChargeableToWTax, txtLessDebt, txtNetWealth, txtNetWealthRoundedOff;
    widgets::TextField txtExemptedAmount, txtTaxableWealth, txtWealthTaxLiability, txtInterest;
    widgets::TextField txtTaxIntPayable, txtPrepaidTax, txtBalanceTaxIntPayable, txtTaxRefund;
    widgets::Button cmdAssets, cmdDeemedAssets, cmdExemptedAsset;
    widgets::Button cmdInterest, cmdSATaxPayable, cmdEnclosure;
    widgets::Button cmdformBA, cmdChallan, cmdPreview, cmdSave1, cmdMainExit;
    widgets::Frame frInterest;
    widgets::MaskedField mskDueDate, mskRetDate;
    widgets::TickBox chkAudited;
    widgets::Timer timInterest;
    widgets::Frame frSATax;
    widgets::Grid sprSATax;
    widgets::Timer timSATax;
    widgets::Frame frEnclosure;
    widgets::Grid sprEnclosure;
    widgets::Menu mnuWealthTax;
    widgets::MenuItem mnuAddrows, mnuDeleteRows, mnuPreviewSheet, mnuPrintSheet;

    void Form_Load() override;
    bool Form_QueryUnload() override;
    void InitializecontrolsAndVars();

    void ClearTaxComputation();
    void LoadWealthTaxComputation();
    void SaveWealthTaxComputation();
    void SaveAllComputation();
    void LoadPrepaidTaxes();
    void LoadPrepaidTaxesOnOpen();
    void SavePrepaidTaxes();
    void SavePrepaidTaxesOnClose();

    void cboFY_Click();
    void chkAudited_Click();
    void mskDueDate_Change();
    void mskRetDate_Change();
    void cmdMainExit_Click();

private:
    // The direction of a sliding panel (1 opening, 0 closing) and the moves made; twips a move.
    struct Slide {
        double wider_twips;
        double further_left_twips;
        int direction = 0;
        int step = 0;
    };
    struct PrepaidLoading;

    void design_grids();
    void connect_chain();
    void connect_interest();
    void connect_grids();
    void connect_buttons();
    void follow(widgets::TextField frmWealthMain::*target);
    void txtNetWealth_Change();
    void txtWealthTaxLiability_Change();
    void settle_balance();

    bool judge_command_line();
    void open_stores(const session::Attempt& attempt);
    void clear_lock_row(const session::Attempt& attempt);
    void ShowScreen(std::string_view screen);
    void cmdPreview_Click();
    void sheet_of_active_grid(session::SheetUse use);

    void look_up_due_date(const session::Attempt& attempt);
    void set_interest(double (*rounding)(double));
    [[nodiscard]] int months_late() const;
    void load_enclosures(const session::Attempt& attempt);
    void save_enclosures(const session::Attempt& attempt);
    void load_prepaid(const PrepaidLoading& loading, session::RowSet rows);
    void save_prepaid(const std::string& delete_statement);
    void sprSATax_Change(int column);
    void grid_key_char(widgets::Grid& grid, char32_t character);
    void toggle(Slide& slide, widgets::Frame& panel, widgets::Button& button, widgets::Timer& timer);
    void step(Slide& slide, widgets::Frame& panel, widgets::Timer& timer);
    // " where AssesseeNo = 17 And FY = '2014-2015'"
    [[nodiscard]] std::string row_key() const;

    Slide interest_slide_{373.5, 372};
    Slide prepaid_slide_{805.5, 816};
};

} // namespace levora::computation
