#pragma once

#include "session/common_services.h"
#include "session/session_state.h"
#include "widgets/fields.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The payment challan ITNS 282: its stored challans, its entry rules. The printed form reads this
// screen as it stands.
namespace levora::challan {

class frmChallan282 final : public session::Screen {
public:
    explicit frmChallan282(session::Session& session);

    void Form_Load() override;
    void Form_Activate() override { session::SkinButtons(*this); }
    bool Form_QueryUnload() override;
    bool Form_KeyDown(std::string_view key) override;

    // Each reports its own errors under its name.
    void LoadMasterData();
    void LoadAllChallansForAssessee();
    void LoadChallan(); // the one whose key is in ChallanID; a missing one leaves a cleared screen
    bool SaveChallan(); // sets IsNewChallan and updates the list; false when nothing was stored
    // Resets the entry fields. The receiving bank's fields and the tax chosen carry over.
    void ClearChallan();
    void SetAdvTaxInstallmentNo();
    void CalcChallanTotal();
    void LoadBankCombo();

    // The amounts as the printed form takes them, in whole rupees.
    std::int32_t IncomeTaxAmount = 0;
    std::int32_t SurchargeAmount = 0;
    std::int32_t EducationCessAmount = 0;
    std::int32_t InterestAmount = 0;
    std::int32_t PenaltyAmount = 0;
    std::int32_t OtherAmount = 0;
    std::int32_t TotalAmount = 0;

    widgets::Label Label1{*this, "Label1", "CHALLAN NO.         ITNS        282"};
    widgets::ColumnList cboChallanList{*this,
                                       "cboChallanList",
                                       {"A.Y.", "Date", "Type", "TaxPaid", "ChallanID"},
                                       "C&hallans for the Assessee (Select to load)"};
    widgets::ListField cboAssessmentYear; // "2000-2001" to "2014-2015"
    widgets::MaskedField mskFinancialYear{*this, "mskFinancialYear", "####-####", "&Financial Year"};
    widgets::MaskedField mskChallanDate{*this, "mskChallanDate", "##/##/####", "Date : "};

    // --- the assessee ---
    widgets::TextField txtName{*this, "txtName", "Full Name"};
    widgets::TextField txtPan{*this, "txtPan", "Permanent Account No."};
    widgets::TextField txtAddress1{*this, "txtAddress1", "Complete Address with City and State"};
    widgets::TextField txtAddress2{*this, "txtAddress2", "Complete Address with City and State"};
    widgets::TextField txtFileNo{*this, "txtFileNo"};

    // --- "Tax Applicable", "(Tick One)*" ---
    widgets::OptionButton optWealthTax{*this, "optWealthTax", "(0032)  WEALTH TAX", "Tax Applicable"};
    widgets::OptionButton optSecTranTax{*this, "optSecTranTax", "(0034) SECURITIES TRANSACTION TAX",
                                        "Tax Applicable"};
    widgets::OptionButton optGiftTax{*this, "optGiftTax", "(0033)  GIFT TAX", "Tax Applicable"};
    widgets::OptionButton optEstateDuty{*this, "optEstateDuty", "(0031)  ESTATE DUTY", "Tax Applicable"};
    widgets::OptionButton optExpenditureTax{*this, "optExpenditureTax", "(0028)  EXPENDITURE/OTHER TAX",
                                            "Tax Applicable"};
    widgets::OptionButton optInterestTax{*this, "optInterestTax", "(0024)  INTEREST TAX", "Tax Applicable"};
    widgets::OptionButton optHotelTax{*this, "optHotelTax", "(0023)  HOTEL RECEIPTS TAX", "Tax Applicable"};

    // --- "Type Of Payment ", "(Tick One)*" ---
    widgets::Frame frTypeOfPayment{*this, "frTypeOfPayment", "Type Of Payment "};
    widgets::OptionButton optAdvTax{*this, "optAdvTax", "Advance Tax  (100)", "Type Of Payment"};
    widgets::OptionButton optSATax{*this, "optSATax", "Self Assessment Tax  (300)", "Type Of Payment"};
    widgets::OptionButton optRegularAssmtTax{*this, "optRegularAssmtTax", "Tax on Regular Assessment  (400)",
                                             "Type Of Payment"};
    widgets::Label labInstallmentNo{*this, "labInstallmentNo", "Insta&llment No."};
    widgets::TextField txtInstallmentNo{*this, "txtInstallmentNo", "Insta&llment No."};

    // --- "DETAILS OF PAYMENT", "Amount (In Rs. Only)" ---
    widgets::TextField txtIncomeTax{*this, "txtIncomeTax", "Tax"};
    widgets::TextField txtSurcharge{*this, "txtSurcharge", "Surcharge"};
    widgets::TextField txtEducationCess{*this, "txtEducationCess", "Education Cess"};
    widgets::TextField txtInterest{*this, "txtInterest", "Interest"};
    widgets::TextField txtPenalty{*this, "txtPenalty", "Penalty"};
    widgets::TextField txtOther{*this, "txtOther", "Other"};
    widgets::TextField txtTotal{*this, "txtTotal", "Total"};

    widgets::TextField txtChequeNo{*this, "txtChequeNo", "Che&que No."};
    widgets::MaskedField mskChqDate{*this, "mskChqDate", "##/##/####", "Dat&ed"};
    widgets::ListField cboDrawnOn{*this, "cboDrawnOn", widgets::ListStyle::editable, "Dra&wn On"};

    // --- "RECEIVING BANK DETAILS - to be filled after payment" ---
    widgets::MaskedField mskDateOfPayment{*this, "mskDateOfPayment", "##/##/####", "Date of Payment"};
    widgets::ListField cboPaymentBank{*this, "cboPaymentBank", widgets::ListStyle::editable,
                                      "Bank Branch Name"};
    widgets::TextField txtBSRCode{*this, "txtBSRCode", "BSR Code"};
    widgets::TextField txtChallanSrNo{*this, "txtChallanSrNo", "Challan Serial No"};

    // --- paper ---
    widgets::TickBox chkPANBarCode{*this, "chkPANBarCode", "Hide PAN Barcode"};
    widgets::TextField txtTopMargin{*this, "txtTopMargin", "&Top Margin              mm"};
    widgets::SpinButtons UpDownITR1TM{*this, "UpDownITR1TM", txtTopMargin};
    widgets::TextField txtLeftMargin{*this, "txtLeftMargin", "&Left Margin               mm"};
    widgets::SpinButtons UpDownITR1LM{*this, "UpDownITR1LM", txtLeftMargin};

    widgets::Button cmdNew{*this, "cmdNew", "&New"};
    widgets::Button cmdSave{*this, "cmdSave", "&Save"};
    widgets::Button cmdDelete1{*this, "cmdDelete1", "&Delete"};
    widgets::Button cmdPreview{*this, "cmdPreview", "Pre&view"};
    widgets::Button cmdPrint{*this, "cmdPrint", "&Print"};

private:
    // Where the cess is worked out: the three sites differ.
    enum class CessSite { year_click, income_tax, surcharge };

    void design();
    void wire_lists();
    void wire_options();
    void wire_amounts();
    void add_rules();
    void wire_other_fields();
    void wire_buttons();

    void cboAssessmentYear_Click();
    void cboPaymentBank_Click();
    void choose_tax(std::int32_t code);
    void choose_payment(const std::string& code);
    // Takes the field into its amount, works out the cess where the field is a site of it, and adds up.
    void take_amount(const widgets::TextField& field, std::int32_t& amount,
                     std::optional<CessSite> cess = std::nullopt);
    void apply_cess(CessSite site);

    void cboChallanList_Click();
    bool cmdSave_Click(); // false when the challan could not be stored
    void cmdNew_Click();
    void cmdDelete1_Click();
    // What to do with the unsaved challan; Cancel when the box was dismissed.
    widgets::Answer ask_to_save(const char* title);
    [[nodiscard]] bool may_overwrite();
    void write_columns(session::RowSet& row) const;
    void show_row(const session::RowSet& row);
    void show_options(const session::RowSet& row);
    void list_saved_challan();
    [[nodiscard]] int listed_row() const; // of the challan on the screen, -1 when none

    const widgets::Rule* cess_ = nullptr;
    const widgets::Rule* unrounded_cess_ = nullptr;

    bool ChallanDirty = false;  // something changed since the last load, clear or save
    bool challan_read_ = true;  // all that is stored of it is on the screen
    int ListRow = -1;           // of cboChallanList: the challan now shown, -1 when none
    bool SaveCancelled = false; // Cancel at the prompt that a list change raised
    bool IsNewChallan = false;  // the last SaveChallan added a row
    std::string ChallanNo;      // "ITNS282"
    std::int32_t ChallanID = 0; // key of the challan on the screen
    bool BanksLoaded = false;   // see LoadBankCombo
    std::string TypeOfPayment;  // "100", "300" or "400"
    std::int32_t TaxApplicable = 0;
};

} // namespace levora::challan
