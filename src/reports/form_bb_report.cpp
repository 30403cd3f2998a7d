#include "reports/form_bb_report.h"

#include "document/report_files.h"
#include "reports/report_source.h"
#include "reports/screen_text.h"
#include "session/common_services.h"
#include "widgets/value_text.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace levora::reports {

namespace {

constexpr std::string_view screen = "frmFormBA";
constexpr int annexure_section = 10;

struct Filled {
    std::string_view object;
    std::string_view control;
};
// An object that shows a tick while a control has this text.
struct Ticked {
    std::string_view object;
    std::string_view control;
    std::string_view text;
};

constexpr std::array section3_texts{
    Filled{"mskPAN", "mskPAN"},
    Filled{"mskPin", "mskPin"},
    Filled{"mskDOB", "mskDOB"},
    Filled{"mskMobileNo", "mskMobileNo"},
    Filled{"mskOriFillDate", "mskOriFillDate"},
    Filled{"mskValuationDate", "mskValuationDate"},
    Filled{"mskReprPAN", "mskReprPAN"},
    Filled{"txtAdress1", "txtAddress1"},
    Filled{"txtAdress2", "txtAddress2"},
    Filled{"txtAdress3", "txtAddress3"},
    Filled{"txtAdress4", "txtAddress4"},
    Filled{"txtCity", "txtTown"},
    Filled{"cboState", "cboState"},
    Filled{"cboApplicableSec", "cboApplicableSec"},
    Filled{"txtWard", "txtWard"},
    Filled{"txtEmail", "txtEmail"},
    Filled{"txtReceiptNo", "txtReceiptNo"},
    Filled{"txtReprName", "txtReprName"},
    Filled{"txtReprAddress", "txtReprAddress"},
};

constexpr std::array section3_ticks{
    Ticked{"chkIndividual", "cboStatus", "Individual"},
    Ticked{"chkHUF", "cboStatus", "Hindu Undivided Family"},
    Ticked{"chkCompany", "cboStatus", "Companies"},
    Ticked{"chkMale", "cboSex", "Male"},
    Ticked{"chkFemale", "cboSex", "Female"},
    Ticked{"chkCitizenYes", "cboCitizen", "Yes"},
    Ticked{"chkCitizenNo", "cboCitizen", "No"},
    Ticked{"cboReturnCode1", "cboReturnCode", "21- On or before due date u/s 14(1)"},
    Ticked{"cboReturnCode2", "cboReturnCode", "22- After due date u/s 15"},
    Ticked{"cboReturnCode3", "cboReturnCode", "23- Revised Return u/s 15"},
    Ticked{"cboReturnCode4", "cboReturnCode", "24- In response to notice u/s 16(4)(i)"},
    Ticked{"cboReturnCode5", "cboReturnCode", "25- In response to notice u/s 17(1)"},
    Ticked{"chkResident", "cboResStatus", "Resident"},
    Ticked{"chkNonResident", "cboResStatus", "Non-Resident"},
    Ticked{"chkOrdinary", "cboResStatus", "R-NOR"},
};

constexpr std::array section3_tick_boxes{
    "chkFirstReturnYes", "chkFirstReturnNo",   "ChkCapacityReprYes",
    "ChkCapacityReprNo", "chkAssessedToITYes", "chkAssessedToITNo",
};

constexpr std::array section3_figures{
    "txtAggImmovableProperty", "txtAggMovableProperty", "txtAggrValOfJewellery",
    "txtInducibleNetWealth",   "txtAggValueOfInterest", "txtNETWEALTHInFigure",
};

constexpr std::array detail_section5_texts{
    "txtNetWealthTax", "txtLateFilingInterest", "txtTotalTaxAndInterest", "txtTaxInterestPaid",
    "txtAmtPayable",   "txtRefundAmount",       "txtBankAccountNo",       "txtMICRCode",
};

constexpr std::array detail_section5_ticks{
    Ticked{"chkSavings", "cboAccountType", "Saving"},
    Ticked{"chkCurrent", "cboAccountType", "Current"},
};

constexpr std::array verification_texts{
    Filled{"txtVerificationName", "txtVerificationName"},
    Filled{"txtVerificationFather", "txtVerificationFather"},
    Filled{"txtVerificationCapacity", "txtVerificationCapacity"},
    Filled{"txtVerificationPlace", "txtVerificationPlace"},
    Filled{"mskVerificationPAN", "mskVerificationPAN"},
    Filled{"mskVerificationDate", "mskVerificationDate"},
    Filled{"mskVerificationValuationDate", "mskValuationDate"},
    Filled{"mskVerificationAY", "mskAY"},
};

constexpr std::array other_property_texts{
    "txtMovTotalDeposit",
    "txtMovAmtBondInvestment",
    "txtMovAmtPostal",
    "txtMovAmtFirm",
    "txtMovAmtOther",
    "txtTotalValOtherProperty",
    "txtTotalLiabilityOtherProp",
    "txtNetAmtOthProperty",
};

struct Subreport {
    std::string_view name;
    std::string_view clause;
};
constexpr std::array subreports{
    Subreport{"PaidDetails", "SchBTP"}, Subreport{"SchIP", "SchIP"},       Subreport{"SchMP", "SchMP"},
    Subreport{"SchJE", "SchJ"},         Subreport{"Annexure", "Annexure"}, Subreport{"SchINW", "SchINW"},
    Subreport{"SchIFA", "SchFA"},       Subreport{"SchACE", "SchACE"},
};

struct PropertyHead {
    std::string_view head; // column 1 of the grid
    std::string_view cost, description, address, survey;
};
constexpr std::array property_heads{
    PropertyHead{"AgriculturalLand", "txtOPR12", "txtOPR11", "txtOPR21", "txtOPR31"},
    PropertyHead{"Non-AgriculturalLand", "txtOPR42", "txtOPR41", "txtOPR51", "txtOPR61"},
    PropertyHead{"CommercialBuilding", "txtOPR72", "txtOPR71", "txtOPR81", "txtOPR91"},
    PropertyHead{"ResidentialBuilding", "txtOPR102", "txtOPR101", "txtOPR111", "txtOPR121"},
};
namespace property_column {
enum { head = 1, cost, description, flat, survey = 12 };
}
// Behind the flat, each with a dash where it holds anything; the country is passed over.
constexpr std::array address_columns{5, 6, 7, 8, 9, 11};

class Filling {
public:
    explicit Filling(session::Session& session) : session_(session), report_(*session.FormBBReport) {}

    void fill_sections() {
        report_.set_text("mskAY", text("mskAY"));
        report_.set_text("txtName", full_name());
        for (const Filled& each : section3_texts)
            copy(each);
        report_.set_text("mskPhone", std::string(trimmed(text("mskSTDCode") + " " + text("mskPhone"))));
        for (const Ticked& each : section3_ticks)
            tick(each);
        for (const std::string_view each : section3_tick_boxes)
            if (is_set(session_, screen, each)) report_.set_text(each, std::string(document::tick));
        for (const std::string_view each : section3_figures)
            copy({each, each});

        for (const std::string_view each : detail_section5_texts)
            copy({each, each});
        for (const Ticked& each : detail_section5_ticks)
            tick(each);

        report_.set_text("txtFooter", std::string(trimmed(full_name())) + " / A.Y-" + text("mskAY"));

        for (const Filled& each : verification_texts)
            copy(each);
    }

    void fill_subreports() {
        for (const Subreport& each : subreports) {
            session_.SqlText = "Select * From [TempPrint] Where Clause='" + std::string(each.clause) + "'";
            session::RowSet rows = session_.TaxDb.open_rows(session_.SqlText);
            const bool empty = rows.eof();
            report_.set_rows(each.name, document::RowTable::of(rows));
            if (each.name == "Annexure" && empty) report_.suppress_section(annexure_section, true);
        }
    }

    void fill_other_properties() {
        const widgets::Grid& grid = grid_of(session_, screen, "sprScheduleOPR");
        for (int row = 1; row <= grid.rows(); ++row)
            for (const PropertyHead& each : property_heads)
                if (grid.text(property_column::head, row) == each.head) fill_property(each, grid, row);
        for (const std::string_view each : other_property_texts)
            copy({each, each});
    }

private:
    [[nodiscard]] std::string text(std::string_view control) const {
        return text_of(session_, screen, control);
    }
    [[nodiscard]] std::string full_name() const {
        return upper_case(text("txtFirstName") + " " + text("txtMiddleName") + " " + text("txtName"));
    }
    void copy(const Filled& each) { report_.set_text(each.object, text(each.control)); }
    void tick(const Ticked& each) {
        if (text(each.control) == each.text) report_.set_text(each.object, std::string(document::tick));
    }

    void fill_property(const PropertyHead& head, const widgets::Grid& grid, int row) {
        std::string address = grid.text(property_column::flat, row);
        for (const int column : address_columns)
            if (const std::string& part = grid.text(column, row); !part.empty()) address += "-" + part;
        const auto leading_number = [&](int column) { return number_text(val(grid.text(column, row))); };
        report_.set_text(head.cost, leading_number(property_column::cost));
        report_.set_text(head.description, grid.text(property_column::description, row));
        report_.set_text(head.address, address);
        // Wanted: survey and plot numbers go as numbers too; "44/2" prints as 44, and none as 0.
        report_.set_text(head.survey, leading_number(property_column::survey));
    }

    session::Session& session_;
    document::Report& report_;
};

} // namespace

void FillFormBBReport(session::Session& session) {
    Filling filling(session);
    filling.fill_sections();
    filling.fill_subreports();
    filling.fill_other_properties();
}

void open_form_bb(session::Session& session) {
    session.FormBBReport.reset();
    session.FormBBReport =
        std::make_shared<document::Report>(document::open_layout(session.program_folder, "FormBB"));
}

void preview_form_bb(session::Session& session) {
    session::procedure(session, "frmFormBA - cmdPreview_Click", [&session](const auto& attempt) {
        SaveBusinessAsset(session);
        attempt([&] { open_form_bb(session); });
        session.PreviewSource = preview_source::form_bb;
        attempt([&] { FillFormBBReport(session); });
        session.FormBBReport->orientation = document::Orientation::portrait;
        session.FormBBReport->paper_size = document::PaperSize::a4;
        session::PreviewForm(session);
    });
}

} // namespace levora::reports
