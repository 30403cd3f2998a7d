#include "return/form_ba_reader.h"

#include "session/common_services.h"
#include "widgets/date_text.h"

#include <array>
#include <string>
#include <string_view>

namespace levora::form_ba {

using widgets::ListField;
using widgets::MaskedField;
using widgets::TextField;

namespace {

// One section of the document and the fields it fills.
class Section {
public:
    explicit Section(const XmlNode& node) : elements_(node) {}

    [[nodiscard]] std::string get(std::string_view name, std::string_view otherwise = {}) const {
        return elements_.text(name, otherwise);
    }
    void text(std::string_view name, TextField& field) const {
        quietly([&] { field.set_text(get(name)); });
    }
    void text(std::string_view name, MaskedField& field) const {
        quietly([&] { field.set_text(get(name)); });
    }
    // Placed as read; the fields that hang on it recompute with each write.
    void amount(std::string_view name, TextField& field) const {
        quietly([&] { field.set_text(get(name, "0")); });
    }
    void date_if_one(std::string_view name, MaskedField& field) const {
        quietly([&] {
            const std::optional<Date> date = parse_date(get(name));
            if (date) field.set_text(day_month_year(*date));
        });
    }
    // The position of an exact code; an unknown one leaves the list as it was.
    template <std::size_t N>
    void position(std::string_view name, const std::array<std::string_view, N>& codes,
                  ListField& list) const {
        const std::string code = get(name);
        for (std::size_t i = 0; i < N; ++i)
            if (codes[i] == code) quietly([&] { list.set_index(static_cast<int>(i)); });
    }
    void tick(std::string_view name, widgets::TickBox& yes, widgets::TickBox& no) const {
        const bool ticked = get(name) == "Y";
        yes.set_value(ticked ? 1 : 0);
        no.set_value(ticked ? 0 : 1);
    }

    [[nodiscard]] const XmlIndex& elements() const { return elements_; }

private:
    XmlIndex elements_;
};

void read_person(frmFormBA& form, const Section& general) {
    general.text("FBAMain:PAN", form.mskPAN);
    general.text("FBAMain:FirstName", form.txtFirstName);
    general.text("FBAMain:MiddleName", form.txtMiddleName);
    general.text("FBAMain:SurName", form.txtName);
    general.text("FBAMain:MobileNo", form.mskMobileNo);
    general.text("FBAMain:StdCode", form.mskSTDCode);
    general.text("FBAMain:PhoneNo", form.mskPhone);
    general.date_if_one("FBAMain:DateOfBirth", form.mskDOB);
    form.cboSex.set_text(general.get("FBAMain:Sex") == "M" ? "Male" : "Female");
    general.position("FBAMain:Status", std::array<std::string_view, 3>{"I", "H", "C"}, form.cboStatus);
    general.text("FBAMain:EmailId", form.txtEmail);
    general.text("FBAMain:Ward", form.txtWard);
    form.cboCitizen.set_text(general.get("FBAMain:CitizenFlag") == "Y" ? "Yes" : "No");
}

void read_address(frmFormBA& form, const Section& address) {
    address.text("FormCommon:FlatDoorBuilding", form.txtAddress1);
    address.text("FormCommon:PremisesBuildingVillage", form.txtAddress2);
    address.text("FormCommon:RoadStreet", form.txtAddress3);
    address.text("FormCommon:AreaLocality", form.txtAddress4);
    address.text("FormCommon:TownCityDistrict", form.txtTown);
    quietly([&] {
        const int code = to_long(val(address.get("FormCommon:State", "0")));
        form.cboState.set_index(code == 99 ? static_cast<int>(form.cboState.items().size()) - 1 : code - 1);
    });
    address.text("FormCommon:Pincode", form.mskPin);
}

void read_filing_status(frmFormBA& form, const Section& general) {
    // Only the working copy has the element: a filed document loads as an original return.
    form.cboReturnType.set_text(general.get("FBAMain:ReturnType") == "R" ? "Revised" : "Original");
    general.position("FBAMain:ReturnSection", std::array<std::string_view, 5>{"21", "22", "23", "24", "25"},
                     form.cboReturnCode);
    general.text("FBAMain:RecieptNo", form.txtReceiptNo);
    general.date_if_one("FBAMain:RecieptDat", form.mskOriFillDate);
    general.tick("FBAMain:FirstReturnFlag", form.chkFirstReturnYes, form.chkFirstReturnNo);
    general.tick("FBAMain:IncomeTaxAssessedFlag", form.chkAssessedToITYes, form.chkAssessedToITNo);
    general.position("FBAMain:ResStatus", std::array<std::string_view, 3>{"RES", "NRI", "NOR"},
                     form.cboResStatus);
    general.date_if_one("FBAMain:ValuationDate", form.mskValuationDate);
    general.tick("FBAMain:ReturnFiledByRa", form.ChkCapacityReprYes, form.ChkCapacityReprNo);
    general.text("FBAMain:RaName", form.txtReprName);
    general.text("FBAMain:RaAddress", form.txtReprAddress);
    general.text("FBAMain:RaPanNo", form.mskReprPAN);
    general.position("FBAMain:RaApplicationSection",
                     std::array<std::string_view, 5>{"19(1)", "19(2)", "21A", "21AA(1)", "22(1)"},
                     form.cboApplicableSec);
}

void read_statement(frmFormBA& form, const Section& general) {
    general.amount("FBAMain:AgregateValImmovableProp", form.txtAggImmovableProperty);
    general.amount("FBAMain:AgregateValMovableProp", form.txtAggMovableProperty);
    general.amount("FBAMain:AgregateValJewelleryProp", form.txtAggrValOfJewellery);
    general.amount("FBAMain:AggregateValOtherPerson", form.txtInducibleNetWealth);
    general.amount("FBAMain:AgreValFirmAssets", form.txtAggValueOfInterest);
    general.amount("FBAMain:NetWealth", form.txtNETWEALTHInFigure);
    general.amount("FBAMain:NetWealthTax", form.txtNetWealthTax);
    general.amount("FBAMain:IntOnLateFiling", form.txtLateFilingInterest);
    general.amount("FBAMain:TotalTaxIntPayable", form.txtTotalTaxAndInterest);
    general.amount("FBAMain:PrepaidTaxInterestTotal", form.txtTaxInterestPaid);
    general.amount("FBAMain:BalTaxAndIntPayable", form.txtAmtPayable);
    general.amount("FBAMain:RefundAmount", form.txtRefundAmount);
    general.position("FBAMain:LiableAccSec44aaFlag", std::array<std::string_view, 3>{"J", "S", "N"},
                     form.cboAudited);
}

void read_bank(frmFormBA& form, const Section& bank) {
    bank.text("FBAMain:BankAcNo", form.txtBankAccountNo);
    bank.text("FBAMain:IfscCode", form.txtMICRCode);
    bank.position("FBAMain:AccountType", std::array<std::string_view, 2>{"S", "C"}, form.cboAccountType);
}

void read_verification(frmFormBA& form, const Section& declaration) {
    declaration.text("FormCommon:StyledName", form.txtVerificationName);
    declaration.text("FormCommon:LandlordName", form.txtVerificationFather);
    declaration.text("FormCommon:AssesseePAN", form.mskVerificationPAN);
    declaration.text("FormCommon:verDesignation", form.txtVerificationCapacity);
    declaration.text("FormCommon:VerificationPlace", form.txtVerificationPlace);
    quietly([&] {
        form.mskVerificationDate.set_text(
            as_day_month_year(declaration.get("FormCommon:VerificationDate", "____-__-__")));
    });
}

} // namespace

void ReadFormBAXml(frmFormBA& form, const XmlDocument& document) {
    const XmlNode root = document.root();
    if (!root.is_named("FORMP2:Form")) return;
    const std::optional<XmlNode> form_node = root.child("FormBA:FormBA");
    if (!form_node) return;
    const std::optional<XmlNode> form_ba = form_node->child("FBAMain:Form_BA");
    if (!form_ba) return;
    const Section general(*form_ba);
    read_person(form, general);
    if (const auto address = form_ba->child("FBAMain:Address")) read_address(form, Section(*address));
    // Wanted: whatever the file says, it is India.
    form.cboCountry.set_text("INDIA");
    read_filing_status(form, general);
    read_statement(form, general);
    if (const auto bank = form_ba->child("FBAMain:AssesseeBankDetail")) read_bank(form, Section(*bank));
    if (const auto declaration = form_ba->child("FBAMain:declrn"))
        read_verification(form, Section(*declaration));
    read_schedules(form, *form_ba, general.elements());
}

} // namespace levora::form_ba
