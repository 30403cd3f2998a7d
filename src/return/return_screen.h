#pragma once

#include "return/return_grids.h"
#include "session/grid_sheet.h"
#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"

#include <functional>
#include <string>

// The return of net wealth: the screen on which it is completed, and its parent window. The screen's
// controls are the return's only data; its store is the XML document of ereturn.h.
namespace levora::form_ba {

// The parent window of the return screen.
class frmITMDIParent : public session::Screen {
public:
    explicit frmITMDIParent(session::Session& session);

    void Form_Load() override;
    void Form_Unload() override;

    widgets::Menu mnuSpreadContextMenu{*this, "mnuSpreadContextMenu", "SpreadContextMenu"};
    widgets::MenuItem mnuPreviewSheet{*this, "mnuPreviewSheet", "Preview Sheet", mnuSpreadContextMenu};
    widgets::MenuItem mnuPrintSheet{*this, "mnuPrintSheet", "Print Sheet", mnuSpreadContextMenu};
};

class frmFormBA : public session::Screen {
public:
    explicit frmFormBA(session::Session& session);

    void Form_Load() override;
    void Form_Unload() override;

    // The general fields from the assessee master and the bank rows. Reports its own errors.
    void FillFromAssessee();
    // The grids from the schedule tables, tax and interest from the sheet. Schedule OPR keeps what it
    // holds. A failing statement is the caller's Failure.
    void FillFromSchedules();
    // Fills the screen from an XML document; a file without a root element gives a message.
    bool LoadXmlFile(const std::string& path); // false when it could not be read, which is told
    // Empties text fields and grids; masks and lists stay.
    void ClearFormBA();

    // The change procedures of the grids: each writes its total, row by row.
    void sprScheduleBTP_Change();
    void sprImmovableProperty_Change();
    void sprMovableProperty_Change();
    void sprJewellery_Change();
    void sprAssetInterest_Change();
    void sprInducibleNetWealth_Change();
    void sprScheduleOPR_Change();

    // The sheet of the active grid, from the pop-up menu of this screen or of its parent window.
    void preview_active_sheet();
    void print_active_sheet();

    // The tab of SSTab1 on which a control stands, from 0; -1 for those outside the tabs.
    [[nodiscard]] int tab_of(const widgets::Control& control) const;

    std::string ReturnFilePath;
    bool IsSaving = false;
    double CostOfOtherProperties = 0; // rupees: the sum of sprScheduleOPR's costs

    // --- above the tabs ---
    widgets::MaskedField mskAY{*this, "mskAY", "####-####", "A.Y."};
    widgets::Label lblFillFrom{*this, "lblFillFrom", ""};
    widgets::Tabs SSTab1{*this,
                         "SSTab1",
                         {"&General Information", "PART-B", "Schedule Details-1", "Schedule Details-2",
                          "Schedule Details-3", "Schedule-OPR"}};

    // --- General Information: " GENERAL" ---
    widgets::TextField txtFirstName{*this, "txtFirstName", " NAME"};
    widgets::TextField txtMiddleName{*this, "txtMiddleName", " NAME"};
    widgets::TextField txtName{*this, "txtName", " NAME"}; // the surname
    widgets::TextField txtAddress1{*this, "txtAddress1", "Flat/Door/Block No"};
    widgets::TextField txtAddress2{*this, "txtAddress2", "Name Of Premises /Building/Village"};
    widgets::TextField txtAddress3{*this, "txtAddress3", "Road/Street/Post Office"};
    widgets::TextField txtAddress4{*this, "txtAddress4", "Area/locality"};
    widgets::TextField txtTown{*this, "txtTown", "Town/City/District"};
    widgets::ListField cboState;
    widgets::ListField cboCountry;
    widgets::MaskedField mskPin{*this, "mskPin", "######", "PIN"};
    widgets::MaskedField mskSTDCode{*this, "mskSTDCode", "", "STD-Code Phone No"};
    widgets::MaskedField mskPhone{*this, "mskPhone", "", "STD-Code Phone No"};
    widgets::MaskedField mskMobileNo{*this, "mskMobileNo", "", "Mobile No"};
    widgets::TextField txtEmail{*this, "txtEmail", "Email Address"};
    widgets::MaskedField mskPAN{*this, "mskPAN", ">?????####?", "  PERMANENT ACCOUNT NUMBER"};
    widgets::MaskedField mskDOB{*this, "mskDOB", "##/##/####", "DOB/ DOI (DD/MM/YYYY)"};
    widgets::ListField cboSex;
    widgets::ListField cboStatus;
    widgets::ListField cboResStatus;
    widgets::TextField txtWard{*this, "txtWard", "Ward/Circle/Special Range"};
    widgets::MaskedField mskValuationDate{*this, "mskValuationDate", "##/##/####",
                                          "Valuation Date (DD/MM/YYYY)"};
    widgets::ListField cboCitizen;

    // --- General Information: "   FILING STATUS" ---
    widgets::ListField cboReturnType;
    widgets::ListField cboReturnCode;
    widgets::TextField txtReceiptNo{*this, "txtReceiptNo", "Original Return Ack No"};
    widgets::MaskedField mskOriFillDate{*this, "mskOriFillDate", "##/##/####", "Original Return File Date"};
    widgets::TickBox chkFirstReturnYes{*this, "chkFirstReturnYes", "Yes"};
    widgets::TickBox chkFirstReturnNo{*this, "chkFirstReturnNo", "No"};
    widgets::TickBox chkAssessedToITYes{*this, "chkAssessedToITYes", "Yes"};
    widgets::TickBox chkAssessedToITNo{*this, "chkAssessedToITNo", "No"};
    widgets::TickBox ChkCapacityReprYes{*this, "ChkCapacityReprYes", "Yes"};
    widgets::TickBox ChkCapacityReprNo{*this, "ChkCapacityReprNo", "No"};
    widgets::TextField txtReprName{*this, "txtReprName", "(a) Name of the person"};
    widgets::TextField txtReprAddress{*this, "txtReprAddress", "(b) Address of the person"};
    widgets::MaskedField mskReprPAN{*this, "mskReprPAN", ">?????####?",
                                    "(c) Permanent Account Number (PAN) of the person"};
    widgets::ListField cboApplicableSec;

    // --- PART-B: " STATEMENT OF NET WEALTH" ---
    widgets::TextField txtAggImmovableProperty{*this, "txtAggImmovableProperty",
                                               "1. Aggregate value of immovable property"};
    widgets::TextField txtAggMovableProperty{*this, "txtAggMovableProperty",
                                             "2. Aggregate value of movable property"};
    widgets::TextField txtAggrValOfJewellery{*this, "txtAggrValOfJewellery",
                                             "3. Aggregate value of jewellery, etc."};
    widgets::TextField txtInducibleNetWealth{*this, "txtInducibleNetWealth",
                                             "4. Includible net wealth of other persons"};
    widgets::TextField txtAggValueOfInterest{
        *this, "txtAggValueOfInterest",
        "5. Aggregate value of interest in assets held in a Firm/AOP as partner/member"};
    widgets::TextField txtNETWEALTHInFigure{*this, "txtNETWEALTHInFigure", "Net wealth (1+2+3+4+5)"};

    // --- PART-B: " STATEMENT OF TAX" ---
    widgets::TextField txtNetWealthTax{*this, "txtNetWealthTax", "1. Tax payable on net wealth"};
    widgets::TextField txtLateFilingInterest{*this, "txtLateFilingInterest",
                                             "2. Interest payable on late filing of return"};
    widgets::TextField txtTotalTaxAndInterest{*this, "txtTotalTaxAndInterest",
                                              "3. Total tax and interest payable (1+2)"};
    widgets::TextField txtTaxInterestPaid{*this, "txtTaxInterestPaid", "4. Tax and interest paid"};
    widgets::TextField txtAmtPayable{*this, "txtAmtPayable",
                                     "5. Amount payable ( Enter if 3 is greater than 4, else enter 0)"};
    widgets::TextField txtRefundAmount{*this, "txtRefundAmount",
                                       "6. Refund (If 4 is greater than 3, else enter 0)"};
    widgets::TextField txtBankAccountNo{*this, "txtBankAccountNo", "Enter your bank account number"};
    widgets::TextField txtMICRCode{*this, "txtMICRCode", "IFSC Code"};
    widgets::ListField cboAccountType;
    widgets::ListField cboAudited;

    // --- PART-B: " VERIFICATION" ---
    widgets::TextField txtVerificationName{*this, "txtVerificationName", "Name"};
    widgets::TextField txtVerificationFather{*this, "txtVerificationFather", "Son/ daughter of"};
    widgets::MaskedField mskVerificationPAN{*this, "mskVerificationPAN", ">?????####?",
                                            "Permanent Account Number"};
    widgets::TextField txtVerificationCapacity{*this, "txtVerificationCapacity", "Capacity"};
    widgets::TextField txtVerificationPlace{*this, "txtVerificationPlace", "Place"};
    widgets::MaskedField mskVerificationDate{*this, "mskVerificationDate", "##/##/####", "Date"};

    // --- Schedule Details-1 ---
    widgets::Grid sprScheduleBTP;
    widgets::TextField txtAmtBTPTotal{*this, "txtAmtBTPTotal", "Total"};
    widgets::Grid sprImmovableProperty;
    widgets::TextField txtAggregateImmovableProperty{*this, "txtAggregateImmovableProperty", "Total"};
    widgets::Grid sprMovableProperty;
    widgets::TextField TotalValMovableProp{*this, "TotalValMovableProp", "Total"};

    // --- Schedule Details-2 ---
    widgets::Grid sprJewellery;
    widgets::TextField txtJewlNetAmtTotal{*this, "txtJewlNetAmtTotal", "Total"};
    widgets::Frame frPreciousStone{*this, "frPreciousStone",
                                   "Description of Precious and Semi-precious Stones"};
    widgets::Grid sprPreciousStone;               // in frPreciousStone
    widgets::Button cmdOK{*this, "cmdOK", "&OK"}; // in frPreciousStone
    widgets::Grid sprInducibleNetWealth;

    // --- Schedule Details-3 ---
    widgets::Grid sprAssetInterest;
    widgets::TextField txtTotalInterestAmount{*this, "txtTotalInterestAmount", "Total"};
    widgets::Grid sprAssetsClaimedExempt;

    // --- Schedule-OPR ---
    widgets::Grid sprScheduleOPR;
    widgets::TextField txtMovTotalDeposit;
    widgets::TextField txtMovAmtBondInvestment;
    widgets::TextField txtMovAmtPostal;
    widgets::TextField txtMovAmtFirm;
    widgets::TextField txtMovAmtOther;
    widgets::TextField txtTotalValOtherProperty{*this, "txtTotalValOtherProperty",
                                                "Total value at cost of other properties"};
    widgets::TextField txtTotalLiabilityOtherProp{*this, "txtTotalLiabilityOtherProp",
                                                  "Total liability in relation to other properties"};
    widgets::TextField txtNetAmtOthProperty{*this, "txtNetAmtOthProperty", "Net amount of other properties"};

    // --- below the tabs ---
    widgets::Button cmdFillFromComputation{*this, "cmdFillFromComputation", "Fill From Computation"};
    widgets::Button cmdSave{*this, "cmdSave", "&Save"};
    // Form BB: its report is filled and shown outside this room, through the session's paper.
    widgets::Button cmdPreview{*this, "cmdPreview", "Pre&view"};
    widgets::Button cmdPrint{*this, "cmdPrint", "&Print"};
    widgets::Button btnGenerate{*this, "btnGenerate", "e-Return"};
    widgets::Button btnImport{*this, "btnImport", "Import XML"};
    widgets::Button cmdValidatitor{*this, "cmdValidatitor", "&Check With Validator"};
    widgets::Button cmdClose{*this, "cmdClose", "&Close"};

    widgets::Menu mnuSpreadContext{*this, "mnuSpreadContext", "SpreadContextMenu"};
    widgets::MenuItem mnuPreviewSheet{*this, "mnuPreviewSheet", "Preview Sheet", mnuSpreadContext};
    widgets::MenuItem mnuPrintSheet{*this, "mnuPrintSheet", "Print Sheet", mnuSpreadContext};

private:
    void design_grids();
    void connect_chain();
    void add_totals();
    void connect_grid_keys();
    void connect_filing_status();
    void connect_buttons();

    // What the fill takes over, for the explanation of a figure.
    void tell_fills();
    void mskOriFillDate_LostFocus();
    widgets::Grid* prepare_sheet();
    void show_active_sheet(session::SheetUse use);

    // Runs one statement of a fill: see FillFromAssessee.
    using Step = std::function<void(const std::function<void()>&)>;
    void fill_from_master(const Step& step);
    void fill_for_every_assessee(const Step& step);
    void fill_from_bank(const Step& step);
    void fill_prepaid_taxes();
    void fill_immovable_property();
    void fill_movable_property();
    void clear_other_persons();
    void fill_other_persons();
    void fill_firms();
    void fill_jewellery();
    void LoadPreciousStones();
    void fill_exempt_assets();

    void cmdFillFromComputation_Click();
    void cmdSave_Click();
    void btnGenerate_Click();
    void btnImport_Click();
    void cmdValidatitor_Click();
    void cmdPrint_Click();
    void cmdClose_Click();

    std::string unread_copy_; // the working copy that could not be read, until it is replaced
    const widgets::Rule* btp_total_ = nullptr;
    const widgets::Rule* immovable_total_ = nullptr;
    const widgets::Rule* movable_total_ = nullptr;
    const widgets::Rule* jewellery_total_ = nullptr;
    const widgets::Rule* firms_total_ = nullptr;
    const widgets::Rule* other_persons_ = nullptr;
    const widgets::Rule* other_property_ = nullptr;
};

} // namespace levora::form_ba
