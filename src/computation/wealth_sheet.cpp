#include "computation/wealth_sheet.h"

#include <array>

namespace levora::computation {

namespace {

constexpr std::string_view date_mask = "##/##/####";

} // namespace

frmWealthMain::frmWealthMain(session::Session& session)
    : Screen(session, "frmWealthMain", "Wealth Tax Computation"),
      cboFY(*this, "cboFY", widgets::ListStyle::pick, "A.Y", {"2014-2015"}),
      txtAssesseeName(*this, "txtAssesseeName", "Assessee Name"),
      mskValuationDate(*this, "mskValuationDate", std::string(date_mask), "Valuation Date"),
      txtAssetsSec2ea(*this, "txtAssetsSec2ea",
                      "1. Assets [Sec.2(ea)] (Value of Assets belonging to the Assessee as on the valuation "
                      "Date)"),
      txtDeemedAssets(*this, "txtDeemedAssets", "Deemed Assets [Sec.4]"),
      txtTotalAssets(*this, "txtTotalAssets", "Total"),
      txtExemptedAssets(*this, "txtExemptedAssets",
                        "Exempted Assets (Sec. 5) ( Only for reporting purpose. do not include in point no. "
                        "1)"),
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
      txtTaxIntPayable(*this, "txtTaxIntPayable", "Tax and Interest Payable"),
      txtPrepaidTax(*this, "txtPrepaidTax", "Less : Prepaid Tax and  Interest"),
      txtBalanceTaxIntPayable(*this, "txtBalanceTaxIntPayable", "Balance Tax and Interest Payable"),
      txtTaxRefund(*this, "txtTaxRefund", "Tax Refundable"), cmdAssets(*this, "cmdAssets", ""),
      cmdDeemedAssets(*this, "cmdDeemedAssets", ""), cmdExemptedAsset(*this, "cmdExemptedAsset", ""),
      cmdInterest(*this, "cmdInterest", "<<"), cmdSATaxPayable(*this, "cmdSATaxPayable", "<<"),
      cmdEnclosure(*this, "cmdEnclosure", ">>"), cmdformBA(*this, "cmdformBA", "Wealth Tax  &Return"),
      cmdChallan(*this, "cmdChallan", "&Challan"), cmdPreview(*this, "cmdPreview", "Statement of Wealth Tax"),
      cmdSave1(*this, "cmdSave1", "&Save"), cmdMainExit(*this, "cmdMainExit", "E&xit"),
      frInterest(*this, "frInterest", "Interest u/s 17(B)"),
      mskDueDate(*this, "mskDueDate", std::string(date_mask), "Due Date of Return"),
      mskRetDate(*this, "mskRetDate", std::string(date_mask), "Return Filing Date"),
      chkAudited(*this, "chkAudited", "Audited"), timInterest(*this, "timInterest", 1),
      frSATax(*this, "frSATax", "Prepaid Tax and Interest"),
      sprSATax(*this, "sprSATax", 6, 500, "Prepaid Tax and Interest"), timSATax(*this, "timSATax", 1),
      frEnclosure(*this, "frEnclosure", "Enclosure"), sprEnclosure(*this, "sprEnclosure", 2, 5, "Enclosure"),
      mnuWealthTax(*this, "mnuWealthTax", "Spread Menu"),
      mnuAddrows(*this, "mnuAddrows", "Add Row(s)", mnuWealthTax),
      mnuDeleteRows(*this, "mnuDeleteRows", "Delete Row(s)", mnuWealthTax),
      mnuPreviewSheet(*this, "mnuPreviewSheet", "Preview Sheet", mnuWealthTax),
      mnuPrintSheet(*this, "mnuPrintSheet", "Print Sheet", mnuWealthTax) {
    for (widgets::TextField* locked :
         {&txtAssetsSec2ea, &txtDeemedAssets, &txtTotalAssets, &txtExemptedAssets, &txtAssetsChargeableToWTax,
          &txtNetWealth, &txtNetWealthRoundedOff, &txtExemptedAmount, &txtTaxableWealth,
          &txtWealthTaxLiability, &txtTaxIntPayable, &txtPrepaidTax, &txtBalanceTaxIntPayable, &txtTaxRefund})
        locked->set_locked(true);
    txtAssesseeName.set_locked(true);
    cmdAssets.label = "Assets";
    cmdDeemedAssets.label = "Deemed Assets";
    cmdExemptedAsset.label = "Exempted Assets";
    cmdInterest.label = "Interest u/s 17(B)";
    cmdSATaxPayable.label = "Prepaid Tax and Interest";
    cmdEnclosure.label = "Enclosure";
    for (widgets::Frame* panel : {&frInterest, &frSATax, &frEnclosure})
        panel->set_visible(false);
    design_grids();
    connect_chain();
    connect_interest();
    connect_grids();
    connect_buttons();
}

void frmWealthMain::connect_buttons() {
    cboFY.on_click = [this] { cboFY_Click(); };
    cboFY.on_change = [this] { cboFY_Click(); };
    cmdAssets.on_click = [this] {
        session_.BusinessAssetFlag = false;
        session_.DeemedAssetFlag = false;
        screens().load("frmImmovable").set_enabled(true);
        ShowScreen("frmImmovable");
    };
    cmdDeemedAssets.on_click = [this] {
        session_.DeemedAssetFlag = true;
        ShowScreen("frmDeemedAsset");
    };
    cmdExemptedAsset.on_click = [this] {
        screens().load("frmAssetExempt").set_enabled(true);
        ShowScreen("frmAssetExempt");
    };
    cmdformBA.on_click = [this] {
        screens().show("frmITMDIParent");
        screens().show("frmFormBA");
    };
    cmdChallan.on_click = [this] { screens().show("frmChallan282"); };
    cmdPreview.on_click = [this] { cmdPreview_Click(); };
    cmdSave1.on_click = [this] {
        SaveWealthTaxComputation();
        SavePrepaidTaxes();
    };
    cmdMainExit.on_click = [this] { cmdMainExit_Click(); };
    mnuPreviewSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::preview); };
    mnuPrintSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::print); };

    struct Opener {
        widgets::Button& button;
        std::string_view screen;
    };
    const std::array openers{
        Opener{cmdAssets, "frmImmovable"},          Opener{cmdDeemedAssets, "frmDeemedAsset"},
        Opener{cmdExemptedAsset, "frmAssetExempt"}, Opener{cmdformBA, "frmFormBA"},
        Opener{cmdChallan, "frmChallan282"},        Opener{cmdPreview, "frmRepPreview"}};
    for (const Opener& opener : openers)
        opener.button.set_enabled(screens().defined(opener.screen));
}

void frmWealthMain::ShowScreen(std::string_view screen) {
    screens().show(screen);
    set_visible(false);
}

void frmWealthMain::cmdPreview_Click() {
    const auto statement = session_.paper.find("RepWealthTax");
    if (statement != session_.paper.end()) statement->second();
}

void frmWealthMain::cmdMainExit_Click() {
    SaveAllComputation();
    screens().unload(name());
}

void frmWealthMain::sheet_of_active_grid(session::SheetUse use) {
    // Wanted: the sheets of this screen carry no header.
    if (widgets::Grid* grid = session::active_grid(*this)) session::show_grid_sheet(session_, *grid, use);
}

} // namespace levora::computation
