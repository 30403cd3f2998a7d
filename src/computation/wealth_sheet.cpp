#include "computation/wealth_sheet.h"

#include "session/common_services.h"

#include <initializer_list>

namespace levora::computation {

namespace {

constexpr const char* date_mask = "##/##/####";

} // namespace

frmWealthMain::frmWealthMain(session::Session& session)
    : Screen(session, "frmWealthMain", "Wealth Tax Computation"),
      lblHeading(*this, "lblHeading", "WEALTH TAX COMPUTATION"),
      cboFY(*this, "cboFY", widgets::ListStyle::pick, "A.Y", {"2014-2015"}),
      txtAssesseeName(*this, "txtAssesseeName", "Assessee Name"),
      mskValuationDate(*this, "mskValuationDate", date_mask, "Valuation Date"),
      txtAssetsSec2ea(*this, "txtAssetsSec2ea",
                      "1. Assets [Sec.2(ea)] (Value of Assets belonging to the Assessee as on the "
                      "valuation Date)"),
      cmdAssets(*this, "cmdAssets", "&Assets"),
      txtDeemedAssets(*this, "txtDeemedAssets", "Add: Deemed Assets [Sec.4]"),
      cmdDeemedAssets(*this, "cmdDeemedAssets", "&Deemed Assets"),
      txtTotalAssets(*this, "txtTotalAssets", "Total"),
      txtExemptedAssets(*this, "txtExemptedAssets",
                        "Less: Exempted Assets (Sec. 5) ( Only for reporting purpose. do not include in "
                        "point no. 1)"),
      cmdExemptedAsset(*this, "cmdExemptedAsset", "Exe&mpted Assets"),
      txtAssetsChargeableToWTax(*this, "txtAssetsChargeableToWTax", "Assets chargeable to wealth Tax"),
      txtLessDebt(*this, "txtLessDebt",
                  "Debt incurred in relation to Assets included in the Net Wealth [Sec. 2(m)]"),
      txtNetWealth(*this, "txtNetWealth", "Net Wealth"),
      txtNetWealthRoundedOff(*this, "txtNetWealthRoundedOff",
                             "Net Wealth Rounded off  to the nearest multiple of one hundred "
                             "rupees(Sec.44C)"),
      txtExemptedAmount(*this, "txtExemptedAmount", "Exempted Amount"),
      txtTaxableWealth(*this, "txtTaxableWealth", "Taxable Wealth"),
      txtWealthTaxLiability(*this, "txtWealthTaxLiability", "Tax on Net Wealth  @ 1%"),
      txtInterest(*this, "txtInterest", "Add: Interest on late Filing of Return u/s 17(B)"),
      cmdInterest(*this, "cmdInterest", "<<"),
      txtTaxIntPayable(*this, "txtTaxIntPayable", "Tax and Interest Payable"),
      txtPrepaidTax(*this, "txtPrepaidTax", "Less : Prepaid Tax and  Interest"),
      cmdSATaxPayable(*this, "cmdSATaxPayable", "<<"),
      txtBalanceTaxIntPayable(*this, "txtBalanceTaxIntPayable", "Balance Tax and Interest Payable"),
      txtTaxRefund(*this, "txtTaxRefund", "Tax Refundable"),
      frInterest(*this, "frInterest", "Interest u/s 17(B)"), chkAudited(*this, "chkAudited", "Audited"),
      mskDueDate(*this, "mskDueDate", date_mask, "Due Date of Return"),
      mskRetDate(*this, "mskRetDate", date_mask, "Return Filing Date"), timInterest(*this, "timInterest", 1),
      frSATax(*this, "frSATax", "Prepaid Tax and Interest"), sprSATax(*this, "sprSATax", 6, 500),
      timSATax(*this, "timSATax", 1), cmdEnclosure(*this, "cmdEnclosure", ">>"),
      frEnclosure(*this, "frEnclosure", "Enclosure"), sprEnclosure(*this, "sprEnclosure", 2, 5),
      cmdformBA(*this, "cmdformBA", "Wealth Tax  &Return"), cmdChallan(*this, "cmdChallan", "&Challan"),
      cmdPreview(*this, "cmdPreview", "Statement of Wealth Tax"), cmdSave1(*this, "cmdSave1", "&Save"),
      cmdMainExit(*this, "cmdMainExit", "E&xit"), mnuWealthTax(*this, "mnuWealthTax", "Spread Menu"),
      mnuAddrows(*this, "mnuAddrows", "&Add Rows", mnuWealthTax),
      mnuDeleteRows(*this, "mnuDeleteRows", "&Delete Rows", mnuWealthTax),
      mnuPreviewSheet(*this, "mnuPreviewSheet", "Pre&view", mnuWealthTax),
      mnuPrintSheet(*this, "mnuPrintSheet", "&Print", mnuWealthTax) {
    design();
    connect_chain();
    add_other_rules();
    connect_dates();
    connect_grids();
    connect_panels();
    connect_buttons();
}

void frmWealthMain::design() {
    for (widgets::TextField* computed :
         {&txtAssesseeName, &txtAssetsSec2ea, &txtDeemedAssets, &txtTotalAssets, &txtExemptedAssets,
          &txtAssetsChargeableToWTax, &txtNetWealth, &txtNetWealthRoundedOff, &txtExemptedAmount,
          &txtTaxableWealth, &txtWealthTaxLiability, &txtTaxIntPayable, &txtPrepaidTax,
          &txtBalanceTaxIntPayable, &txtTaxRefund}) {
        computed->set_locked(true);
        computed->set_backcolor(widgets::grey_rgb);
    }
    // The amount of an earlier year; the start puts the year's own in its place, which runs the chain.
    txtExemptedAmount.set_text("1500000");

    cmdInterest.label = frInterest.caption();
    cmdSATaxPayable.label = frSATax.caption();
    cmdEnclosure.label = frEnclosure.caption();
    sprSATax.label = frSATax.caption();
    sprEnclosure.label = frEnclosure.caption();
    sprSATax.tag = frSATax.caption();
    sprEnclosure.tag = frEnclosure.caption();

    for (widgets::Frame* panel : {&frInterest, &frSATax, &frEnclosure})
        panel->set_visible(false);
}

void frmWealthMain::connect_buttons() {
    const widgets::Screens& screens = session_.screens;
    cmdAssets.set_enabled(screens.defined("frmImmovable"));
    cmdDeemedAssets.set_enabled(screens.defined("frmDeemedAsset"));
    cmdExemptedAsset.set_enabled(screens.defined("frmAssetExempt"));
    cmdformBA.set_enabled(screens.defined("frmFormBA"));
    cmdChallan.set_enabled(screens.defined("frmChallan282"));
    cmdPreview.set_enabled(session_.paper.contains("RepWealthTax"));

    cmdAssets.on_click = [this] {
        session_.BusinessAssetFlag = false;
        session_.DeemedAssetFlag = false;
        session_.screens.load("frmImmovable").set_enabled(true);
        session_.screens.show("frmImmovable");
        set_visible(false);
    };
    cmdDeemedAssets.on_click = [this] {
        session_.DeemedAssetFlag = true;
        session_.screens.show("frmDeemedAsset");
        set_visible(false);
    };
    cmdExemptedAsset.on_click = [this] {
        session_.screens.load("frmAssetExempt").set_enabled(true);
        session_.screens.show("frmAssetExempt");
        set_visible(false);
    };
    cmdformBA.on_click = [this] {
        session_.screens.show("frmITMDIParent");
        session_.screens.show("frmFormBA");
    };
    cmdChallan.on_click = [this] { session_.screens.show("frmChallan282"); };
    cmdPreview.on_click = [this] {
        if (const auto report = session_.paper.find("RepWealthTax"); report != session_.paper.end())
            report->second();
    };
    cmdSave1.on_click = [this] { SaveAllComputation(); };
    cmdMainExit.on_click = [this] { cmdMainExit_Click(); };

    mnuAddrows.on_click = [this] {
        // Wanted: the Insert key alone, which makes no character, so that no row is added here.
        if (widgets::Grid* grid = session::active_grid(*this)) grid->press_key("Insert");
    };
    mnuDeleteRows.on_click = [this] {
        if (widgets::Grid* grid = session::active_grid(*this)) grid->press_key("Escape");
    };
    mnuPreviewSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::preview); };
    mnuPrintSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::print); };
}

void frmWealthMain::cmdMainExit_Click() {
    SaveAllComputation();
    if (stays_) return;
    session_.screens.unload(name());
}

// Wanted: sheets of this screen carry margins, but neither header nor footer.
void frmWealthMain::sheet_of_active_grid(session::SheetUse use) {
    if (widgets::Grid* grid = session::active_grid(*this)) session::show_grid_sheet(session_, *grid, use);
}

} // namespace levora::computation
