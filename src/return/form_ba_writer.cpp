#include "return/form_ba_writer.h"

#include "session/common_services.h"
#include "widgets/date_text.h"

#include <array>
#include <string>
#include <string_view>

namespace levora::form_ba {

using session::StateToCode;
using widgets::ListField;
using widgets::MaskedField;
using widgets::TextField;

namespace {

constexpr std::string_view root = "FORMP2:Form"
                                  " xmlns:FORMP2=\"http://incometaxindiaefiling.example/FORMP2\""
                                  " xmlns:FBAMain=\"http://incometaxindiaefiling.example/FormBAMain\""
                                  " xmlns:Form=\"http://incometaxindiaefiling.example/common\""
                                  " xmlns:FormBA=\"http://incometaxindiaefiling.example/FormBA\""
                                  " xmlns:FormCommon=\"http://incometaxindiaefiling.example/Form/Common\""
                                  " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

// Code by the text of a list, `otherwise` for every other text.
struct Code {
    std::string_view text;
    std::string_view code;
};

template <std::size_t N>
std::string_view code_of(const ListField& list, const std::array<Code, N>& codes,
                         std::string_view otherwise) {
    for (const Code& each : codes)
        if (each.text == list.text()) return each.code;
    return otherwise;
}

constexpr std::array status_codes{Code{"Individual", "I"}, Code{"Hindu Undivided Family", "H"},
                                  Code{"Companies", "C"}};
constexpr std::array residence_codes{Code{"Non-Resident", "NRI"}, Code{"R-NOR", "NOR"}};
constexpr std::array return_sections{
    Code{"21- On or before due date u/s 14(1)", "21"}, Code{"22- After due date u/s 15", "22"},
    Code{"23- Revised Return u/s 15", "23"},           Code{"24- In response to notice u/s 16(4)(i)", "24"},
    Code{"25- In response to notice u/s 17(1)", "24"}, // Wanted: the department takes 25 as 24.
};
constexpr std::array<std::string_view, 3> due_date_codes{"J", "S", "N"}; // by position in cboAudited

class General {
public:
    General(eReturn& xml, const frmFormBA& form) : xml_(xml), form_(form) {}

    void write() {
        name_and_address();
        personal();
        filing_status();
        representative();
        statement();
        bank_and_verification();
    }

private:
    void text(std::string_view tag, const TextField& field) { xml_.WriteElement(tag, field.text()); }
    void text(std::string_view tag, const MaskedField& field) { xml_.WriteElement(tag, field.text()); }
    void date(std::string_view tag, const MaskedField& field) {
        xml_.WriteElement(tag, as_iso_date(field.text()));
    }
    void amount(std::string_view tag, const TextField& field) {
        xml_.WriteElement(tag, number_text(field.value()));
    }
    void if_any(std::string_view tag, std::string_view value) {
        if (!value.empty()) xml_.WriteElement(tag, value);
    }
    void yes_or_no(std::string_view tag, const widgets::TickBox& yes, const widgets::TickBox& no) {
        if (yes.ticked())
            xml_.WriteElement(tag, "Y");
        else if (no.ticked())
            xml_.WriteElement(tag, "N");
    }

    void name_and_address() {
        text("FBAMain:PAN", form_.mskPAN);
        if_any("FBAMain:FirstName", form_.txtFirstName.text());
        if_any("FBAMain:MiddleName", form_.txtMiddleName.text());
        text("FBAMain:SurName", form_.txtName);
        xml_.OpenTag("FBAMain:Address");
        text("FormCommon:FlatDoorBuilding", form_.txtAddress1);
        text("FormCommon:PremisesBuildingVillage", form_.txtAddress2);
        text("FormCommon:RoadStreet", form_.txtAddress3);
        text("FormCommon:AreaLocality", form_.txtAddress4);
        text("FormCommon:TownCityDistrict", form_.txtTown);
        xml_.WriteElement("FormCommon:State", StateToCode(form_.cboState.text()));
        // Wanted: any other country is looked up by an empty name, so it is written as no code at all.
        const std::string& country = form_.cboCountry.text();
        xml_.WriteElement("FormCommon:country",
                          country.empty() || country == "INDIA" ? "91" : session::CountryToISD(""));
        text("FormCommon:Pincode", form_.mskPin);
        xml_.CloseTag();
    }

    void personal() {
        text("FBAMain:MobileNo", form_.mskMobileNo);
        if (form_.mskSTDCode.text().size() > 1) text("FBAMain:StdCode", form_.mskSTDCode);
        if (form_.mskPhone.text().size() > 1) text("FBAMain:PhoneNo", form_.mskPhone);
        date("FBAMain:DateOfBirth", form_.mskDOB);
        if (!form_.cboSex.text().empty())
            xml_.WriteElement("FBAMain:Sex", form_.cboSex.text() == "Male" ? "M" : "F");
        if_any("FBAMain:Status", code_of(form_.cboStatus, status_codes, ""));
        text("FBAMain:EmailId", form_.txtEmail);
        text("FBAMain:Ward", form_.txtWard);
        xml_.WriteElement("FBAMain:CitizenFlag", form_.cboCitizen.text() == "Yes" ? "Y" : "N");
    }

    void filing_status() {
        const bool revised = form_.cboReturnType.text() == "Revised";
        if (form_.IsSaving) xml_.WriteElement("FBAMain:ReturnType", revised ? "R" : "O");
        xml_.WriteElement("FBAMain:ReturnSection", code_of(form_.cboReturnCode, return_sections, "21"));
        if (revised) {
            text("FBAMain:RecieptNo", form_.txtReceiptNo);
            date("FBAMain:RecieptDat", form_.mskOriFillDate);
        }
        yes_or_no("FBAMain:FirstReturnFlag", form_.chkFirstReturnYes, form_.chkFirstReturnNo);
        yes_or_no("FBAMain:IncomeTaxAssessedFlag", form_.chkAssessedToITYes, form_.chkAssessedToITNo);
        xml_.WriteElement("FBAMain:ResStatus", code_of(form_.cboResStatus, residence_codes, "RES"));
        date("FBAMain:ValuationDate", form_.mskValuationDate);
    }

    void representative() {
        const bool represented = form_.ChkCapacityReprYes.ticked();
        xml_.WriteElement("FBAMain:ReturnFiledByRa", represented ? "Y" : "N");
        if (!represented) return;
        text("FBAMain:RaName", form_.txtReprName);
        text("FBAMain:RaAddress", form_.txtReprAddress);
        if_any("FBAMain:RaPanNo", form_.mskReprPAN.text());
        xml_.WriteElement("FBAMain:RaApplicationSection", form_.cboApplicableSec.text());
    }

    void statement() {
        amount("FBAMain:AgregateValImmovableProp", form_.txtAggImmovableProperty);
        amount("FBAMain:AgregateValMovableProp", form_.txtAggMovableProperty);
        amount("FBAMain:AgregateValJewelleryProp", form_.txtAggrValOfJewellery);
        amount("FBAMain:AggregateValOtherPerson", form_.txtInducibleNetWealth);
        amount("FBAMain:AgreValFirmAssets", form_.txtAggValueOfInterest);
        amount("FBAMain:NetWealth", form_.txtNETWEALTHInFigure);
        amount("FBAMain:NetWealthTax", form_.txtNetWealthTax);
        amount("FBAMain:IntOnLateFiling", form_.txtLateFilingInterest);
        amount("FBAMain:TotalTaxIntPayable", form_.txtTotalTaxAndInterest);
        amount("FBAMain:PrepaidTaxInterestTotal", form_.txtTaxInterestPaid);
        amount("FBAMain:BalTaxAndIntPayable", form_.txtAmtPayable);
        amount("FBAMain:RefundAmount", form_.txtRefundAmount);
        const int due_date = form_.cboAudited.index();
        if (due_date >= 0)
            xml_.WriteElement("FBAMain:LiableAccSec44aaFlag",
                              due_date_codes[static_cast<std::size_t>(due_date)]);
    }

    void bank_and_verification() {
        xml_.OpenTag("FBAMain:AssesseeBankDetail");
        text("FBAMain:BankAcNo", form_.txtBankAccountNo);
        text("FBAMain:IfscCode", form_.txtMICRCode);
        xml_.WriteElement("FBAMain:AccountType", form_.cboAccountType.text() == "Saving" ? "S" : "C");
        xml_.CloseTag();
        xml_.OpenTag("FBAMain:declrn");
        text("FormCommon:StyledName", form_.txtVerificationName);
        text("FormCommon:LandlordName", form_.txtVerificationFather);
        text("FormCommon:AssesseePAN", form_.mskVerificationPAN);
        text("FormCommon:verDesignation", form_.txtVerificationCapacity);
        text("FormCommon:VerificationPlace", form_.txtVerificationPlace);
        date("FormCommon:VerificationDate", form_.mskVerificationDate);
        xml_.CloseTag();
    }

    eReturn& xml_;
    const frmFormBA& form_;
};

void write_header(eReturn& xml, const session::Session& session) {
    xml.OpenTag("Form:CreationInfo");
    xml.WriteElement("Form:SWVersionNo", "1.0");
    xml.WriteElement("Form:SWCreatedBy", "meridew.example");
    xml.WriteElement("Form:XMLCreatedBy", "Levora WT");
    xml.WriteElement("Form:XMLCreationDate", iso_date(session.desk.today()));
    xml.WriteElement("Form:IntermediaryCity", "Delhi");
    xml.CloseTag();
    xml.OpenTag("Form:Form_Details");
    xml.WriteElement("Form:FormName", "FORMBB");
    xml.WriteElement("Form:AssessmentYear", session.AYStartYear);
    xml.WriteElement("Form:SchemaVer", "Ver1.0");
    xml.WriteElement("Form:FormVer", "1.0");
    xml.CloseTag();
}

void WriteFormBAXml(eReturn& xml, const frmFormBA& form, const session::Session& session) {
    xml.OpenTag("FormBA:FormBA");
    write_header(xml, session);
    xml.OpenTag("FBAMain:Form_BA");
    General(xml, form).write();
    write_schedules(xml, form);
    xml.CloseTag(); // FBAMain:SchOtherProperties
    xml.CloseTag(); // FBAMain:Form_BA
    xml.CloseTag(); // FormBA:FormBA
    // Wanted: the root's end tag goes out as a start tag does. It stands at the indentation of its
    // children, and leaves 4 columns and two tags behind for the next document.
    xml.OpenTag("/FORMP2:Form");
}

} // namespace

void write_document(eReturn& xml, const frmFormBA& form, const session::Session& session) {
    xml.write_line("<?xml version=\"1.0\"?>");
    xml.write_line("<!--This file generated using Levora WT utility-->");
    xml.OpenTag(root);
    WriteFormBAXml(xml, form, session);
}

} // namespace levora::form_ba
