#include "challan/challan282.h"

#include "widgets/value_text.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace levora::challan {

using namespace session;
using namespace widgets;

namespace {

// Education cess on tax and surcharge, by assessment year (Finance Acts 2004 and 2007). Years that
// are not here have their cess typed by hand.
struct CessYear {
    std::string_view assessment_year;
    double rate;
    bool from_surcharge; // a change of the surcharge works it out
    bool from_year;      // a click on the year does
};
// Wanted: 2009-2010 gets its cess from the tax alone. Completing its row would change the cess that
// offices have paid and stored for that year.
constexpr std::array cess_years{
    CessYear{"2005-2006", 0.02, true, true},   CessYear{"2006-2007", 0.02, true, true},
    CessYear{"2007-2008", 0.02, true, true},   CessYear{"2008-2009", 0.03, true, true},
    CessYear{"2009-2010", 0.03, false, false},
};

const CessYear* cess_year(std::string_view assessment_year) {
    const auto* found = std::ranges::find(cess_years, assessment_year, &CessYear::assessment_year);
    return found == cess_years.end() ? nullptr : found;
}
double cess_rate(const Form& form) {
    const CessYear* year = cess_year(static_cast<const frmChallan282&>(form).cboAssessmentYear.text());
    return year ? year->rate : 0;
}
double cess_of(std::span<const double> tax_surcharge_rate) {
    const double rate = tax_surcharge_rate[2];
    return rate > 0 ? (tax_surcharge_rate[0] + tax_surcharge_rate[1]) * rate : no_figure;
}
double rounded_cess_of(std::span<const double> tax_surcharge_rate) {
    return round_half_even(cess_of(tax_surcharge_rate));
}
constexpr std::string_view cess_words = "$3 times the sum of $1 and $2";
constexpr Reckoning exact_cess{cess_of, cess_words, "the rate of the assessment year"};
constexpr Reckoning cess_in_rupees{rounded_cess_of, cess_words, "the rate of the assessment year"};

// Days of the financial year, April first, so that dates compare by one number.
constexpr int day_from_april(int month, int day) {
    return (month + 8) % 12 * 100 + day;
}

// Advance tax falls due by 15 September, 15 December and 15 March; what comes later is the fourth.
int instalment_of(const Date& date) {
    const int day = day_from_april(date.month, date.day);
    if (day <= day_from_april(9, 15)) return 1;
    if (day <= day_from_april(12, 15)) return 2;
    if (day <= day_from_april(3, 15)) return 3;
    return 4;
}

// Added up in 32 bits from left to right; a sum in between that does not fit is an overflow too.
double total_of(std::span<const double> amounts) {
    std::int32_t sum = 0;
    for (const double amount : amounts)
        sum = to_long(static_cast<double>(sum) + static_cast<double>(to_long(amount)));
    return sum;
}
constexpr Reckoning total_of_amounts{total_of};

} // namespace

void frmChallan282::choose_tax(std::int32_t code) {
    TaxApplicable = code;
    ChallanDirty = true;
}

void frmChallan282::choose_payment(const std::string& code) {
    ChallanDirty = true;
    TypeOfPayment = code;
    const bool in_instalments = code == "100";
    labInstallmentNo.set_enabled(in_instalments);
    txtInstallmentNo.set_enabled(in_instalments);
    if (in_instalments)
        SetAdvTaxInstallmentNo();
    else
        txtInstallmentNo.set_text("");
}

void frmChallan282::SetAdvTaxInstallmentNo() {
    procedure(session_, "frmChallan282 - SetAdvTaxInstallmentNo", [&](const Attempt& attempt) {
        const std::optional<Date> date = parse_date(mskChallanDate.text());
        if (!date) {
            attempt([&] { txtInstallmentNo.set_text("0"); });
            return;
        }
        attempt([&] { txtInstallmentNo.set_value(instalment_of(*date)); });
        attempt([&] {
            try {
                txtInstallmentNo.set_focus();
            } catch (const Failure& error) {
                // A field that can't take the focus just now is no error worth a report.
                if (error.number != error_number::invalid_call) throw;
            }
        });
    });
}

void frmChallan282::cboAssessmentYear_Click() {
    ChallanDirty = true;
    const std::string first_year = cboAssessmentYear.text().substr(0, 4);
    mskFinancialYear.set_text(number_text(val(first_year) - 1) + "-" + first_year);
    apply_cess(CessSite::year_click);
    CalcChallanTotal();
}

void frmChallan282::apply_cess(CessSite site) {
    const CessYear* year = cess_year(cboAssessmentYear.text());
    if (!year) return;
    // Wanted: the click on the year alone leaves the figure unrounded.
    if (site == CessSite::year_click) {
        if (year->from_year) unrounded_cess_->work_out();
    } else if (site == CessSite::income_tax || year->from_surcharge) {
        cess_->work_out();
    }
}

void frmChallan282::add_rules() {
    const std::vector<Source> sources{txtIncomeTax, txtSurcharge, {cboAssessmentYear, cess_rate}};
    rules.tell(txtEducationCess, "typed here");
    unrounded_cess_ = &rules.add({txtEducationCess, sources, exact_cess});
    cess_ = &rules.add({txtEducationCess, sources, cess_in_rupees});
    rules.add({txtTotal,
               {txtIncomeTax, txtSurcharge, txtEducationCess, txtInterest, txtPenalty, txtOther},
               total_of_amounts});
    rules.tell(txtInstallmentNo, "typed here, or the one of advance tax that $1 falls into",
               {mskChallanDate});
}

void frmChallan282::take_amount(const TextField& field, std::int32_t& amount, std::optional<CessSite> cess) {
    procedure(session_, "frmChallan282 - " + field.name() + "_Change", [&](const Attempt& attempt) {
        attempt([&] { amount = to_long(field.value()); });
        if (cess) attempt([&] { apply_cess(*cess); });
        CalcChallanTotal();
    });
}

void frmChallan282::CalcChallanTotal() {
    procedure(session_, "frmChallan282 - CalcChallanTotal", [&](const Attempt& attempt) {
        attempt([&] {
            const std::array<double, 6> amounts{
                static_cast<double>(IncomeTaxAmount),     static_cast<double>(SurchargeAmount),
                static_cast<double>(EducationCessAmount), static_cast<double>(InterestAmount),
                static_cast<double>(PenaltyAmount),       static_cast<double>(OtherAmount)};
            TotalAmount = to_long(total_of_amounts.figure(amounts));
        });
        attempt([&] { txtTotal.set_text(group_indian(TotalAmount)); });
    });
}

void frmChallan282::LoadBankCombo() {
    // Wanted: nothing ever sets the flag, so every visit reads the banks afresh, and the list of
    // cboPaymentBank, which is not cleared, grows by all of them each time.
    if (BanksLoaded) return;
    procedure(session_, "frmChallan282 - LoadBankCombo", [&](const Attempt& attempt) {
        session_.SqlText =
            "SELECT Item FROM AICustomisedItems WHERE ItemGroup = 'Bank' AND Item <> '' AND NOT "
            "ITEM IS NULL ORDER BY SrNo";
        RowSet rows = attempt([&] { return session_.AssesseeDb.open_rows(session_.SqlText); });
        const std::string drawn_on = cboDrawnOn.text();
        const std::string payment_bank = cboPaymentBank.text();
        cboDrawnOn.clear_items();
        for (; !rows.eof(); rows.move_next()) {
            const std::string bank = attempt([&] { return rows["Item"].text(); });
            cboDrawnOn.add_item(bank);
            cboPaymentBank.add_item(bank);
        }
        rows.close();
        cboDrawnOn.set_text(drawn_on);
        cboPaymentBank.set_text(payment_bank);
    });
}

void frmChallan282::cboPaymentBank_Click() {
    procedure(session_, "frmChallan282 - cboPaymentBank_Click", [&](const Attempt& attempt) {
        // Wanted: the text as typed; a name with an apostrophe ends in the error report.
        session_.SqlText = "SELECT OtherInfo1 FROM AICustomisedItems WHERE ItemGroup = 'Bank' AND Item = '" +
                           cboPaymentBank.text() + "' AND OtherInfo1 <> '' AND NOT OtherInfo1 IS NULL ";
        RowSet rows = attempt([&] { return session_.AssesseeDb.open_rows(session_.SqlText); });
        if (!rows.eof()) attempt([&] { txtBSRCode.set_text(rows["OtherInfo1"].text()); });
        rows.close();
    });
}

} // namespace levora::challan
