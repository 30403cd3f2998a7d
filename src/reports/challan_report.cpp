#include "reports/challan_report.h"

#include "challan/challan282.h"
#include "document/report_files.h"
#include "reports/report_source.h"
#include "reports/screen_text.h"
#include "session/common_services.h"
#include "widgets/value_text.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace levora::reports {

namespace {

constexpr std::string_view screen = "frmChallan282";

struct TaxOption {
    std::string_view option;
    std::string_view object;
    std::string_view name; // on the counterfoil; the securities transaction tax has none
};
constexpr std::array tax_options{
    TaxOption{"optHotelTax", "tickHotelTax", "HOTEL RECEIPT TAX"},
    TaxOption{"optInterestTax", "tickInterestTax", "INTEREST TAX"},
    TaxOption{"optExpenditureTax", "tickExpenditureTax", "EXPENDITURE/OTHER TAX"},
    TaxOption{"optEstateDuty", "tickEstateDuty", "ESTATE DUTY"},
    TaxOption{"optGiftTax", "tickGiftTax", "GIFT TAX"},
    TaxOption{"optSecTranTax", "tickSecTranTax", ""},
    TaxOption{"optWealthTax", "tickWealthTax", "WEALTH TAX"},
};

struct PaymentOption {
    std::string_view option;
    std::string_view object;
    std::string_view name;
};
constexpr std::array payment_options{
    PaymentOption{"optAdvTax", "tickAdvTax", "Advance Tax"},
    PaymentOption{"optSATax", "tickSATax", "Self Assessment Tax"},
    PaymentOption{"optRegularAssmtTax", "tickRegularTax", "Tax on Regular Assessment"},
};

struct Amount {
    std::string_view object;
    std::int32_t challan::frmChallan282::*member;
};
constexpr std::array amounts{
    Amount{"txtAmtTax", &challan::frmChallan282::IncomeTaxAmount},
    Amount{"txtAmtSurcharge", &challan::frmChallan282::SurchargeAmount},
    Amount{"txtAmtCess", &challan::frmChallan282::EducationCessAmount},
    Amount{"txtAmtInterest", &challan::frmChallan282::InterestAmount},
    Amount{"txtAmtPenalty", &challan::frmChallan282::PenaltyAmount},
    Amount{"txtAmtOther", &challan::frmChallan282::OtherAmount},
    Amount{"txtAmtTotal", &challan::frmChallan282::TotalAmount},
};

// A place of the total in words: crores, lakhs, thousands over two objects, the lower ones in one.
struct WordBox {
    std::int32_t unit;
    std::string_view first;
    std::string_view second;
    bool dashes_when_none;
};
constexpr std::array word_boxes{
    WordBox{10'000'000, "txtCroresA", "txtCroresB", false},
    WordBox{100'000, "txtLakhsA", "txtLakhsB", true},
    WordBox{1'000, "txtThousandsA", "txtThousandsB", true},
    WordBox{100, "txtHundreds", "", true},
    WordBox{10, "txtTens", "", true},
    WordBox{1, "txtUnits", "", true},
};

class Formatting {
public:
    Formatting(session::Session& session, document::Report& report) : session_(session), report_(report) {}

    void run() {
        for (const TaxOption& each : tax_options)
            if (chosen(each.option)) {
                tick(each.object);
                if (!each.name.empty()) set("lblTaxName", [&] { return std::string(each.name); });
            }
        set("txtPANDigits", [&] { return upper_case(text("txtPan")); });
        if (!chosen("chkPANBarCode")) {
            set("txtPANBarCode", [&] { return "*" + upper_case(text("txtPan")) + "*"; });
            set("txtPANUnderBar", [&] { return upper_case(text("txtPan")); });
        }
        copy("txtAY", "cboAssessmentYear");
        copy("txtFY", "mskFinancialYear");
        set("txtName1", [&] { return upper_case(text("txtName")); });
        set("txtAddr1", [&] { return upper_case(text("txtAddress1")); });
        set("txtAddr2", [&] { return upper_case(text("txtAddress2")); });
        for (const PaymentOption& each : payment_options)
            if (chosen(each.option)) tick(each.object);
        for (const Amount& each : amounts)
            set(each.object, [&] { return group_indian(challan().*each.member); });
        fill_word_boxes();
        for (const PaymentOption& each : payment_options)
            if (chosen(each.option)) set("txtPaymentName", [&] { return std::string(each.name); });
        copy("txtChqNo", "txtChequeNo");
        set("txtChqDate", [&] {
            const std::string date = text("mskChqDate");
            return date == "__/__/____" ? std::string() : date;
        });
        copy("txtChqBank", "cboDrawnOn");
        copy("txtChallanDate", "mskChallanDate");
        fill_counterfoil();
    }

private:
    // One statement: a failure is reported and leaves its object as it was.
    template <class Statement> void step(Statement statement) {
        try {
            statement();
        } catch (const Failure& error) {
            session::report_unanswered(session_, "Challan282 - secChallan282Data_Format", error);
        }
    }
    template <class Text> void set(std::string_view object, Text words) {
        step([&] { report_.set_text(object, words()); });
    }
    void copy(std::string_view object, std::string_view control) {
        set(object, [&] { return text(control); });
    }
    void tick(std::string_view object) {
        set(object, [] { return std::string(document::tick); });
    }
    bool chosen(std::string_view option) {
        bool is_chosen = false;
        step([&] { is_chosen = is_set(session_, screen, option); });
        return is_chosen;
    }
    [[nodiscard]] std::string text(std::string_view control) const {
        return text_of(session_, screen, control);
    }
    [[nodiscard]] challan::frmChallan282& challan() const {
        return session_.screens.get<challan::frmChallan282>(screen);
    }

    void fill_word_boxes() {
        std::int32_t rest = challan().TotalAmount;
        if (rest <= 0) return;
        for (const WordBox& box : word_boxes) {
            const std::int32_t count = rest / box.unit;
            rest -= count * box.unit;
            if (count > 0) {
                set_words(box, session::AmtPartToWords(static_cast<std::uint8_t>(count)));
            } else if (box.dashes_when_none) {
                // Wanted: crores alone stay as designed; every lower place shows its dashes.
                set(box.first, [] { return std::string("--"); });
            }
        }
    }

    void set_words(const WordBox& box, const std::string& words) {
        const std::size_t blank = box.second.empty() ? std::string::npos : words.find(' ');
        set(box.first, [&] { return words.substr(0, blank); });
        if (blank != std::string::npos) set(box.second, [&] { return words.substr(blank + 1); });
    }

    void fill_counterfoil() {
        copy("txtFoilPAN", "txtPan");
        set("txtFoilName", [&] { return upper_case(text("txtName")); });
        copy("txtFoilChqNo", "txtChequeNo");
        copy("txtFoilTotal", "txtTotal");
        set("txtFoilWords", [&] {
            const std::string total = text("txtTotal");
            return total.empty() ? std::string() : session::AmtToWords(to_long(total)) + " only";
        });
        copy("txtFoilBank", "cboDrawnOn");
        if (chosen("optSecTranTax"))
            copy("txtFoilFY", "mskFinancialYear");
        else
            copy("txtFoilAY", "cboAssessmentYear");
    }

    session::Session& session_;
    document::Report& report_;
};

} // namespace

std::shared_ptr<document::Report> make_challan_report(session::Session& session) {
    auto report =
        std::make_shared<document::Report>(document::open_layout(session.program_folder, "Challan282"));
    report->on_format = [&session](document::Report& formatted) { Formatting(session, formatted).run(); };
    return report;
}

void preview_challan(session::Session& session) {
    session::procedure(
        session, "frmChallan282 - cmdPreview_Click", [&session](const session::Attempt& attempt) {
            session.ChallanReport.reset();
            attempt([&] { session.ChallanReport = make_challan_report(session); });
            session.PreviewSource = preview_source::challan;
            const auto margin = [&session](const char* name) {
                return margin_twips(session::RegReadValue(session, session::registry::levora_forms, name));
            };
            session.ChallanReport->top_margin_twips =
                attempt([&] { return margin("Challan282 Top Margin"); });
            session.ChallanReport->left_margin_twips =
                attempt([&] { return margin("Challan282 Left Margin"); });
            session::PreviewForm(session);
        });
}

} // namespace levora::reports
