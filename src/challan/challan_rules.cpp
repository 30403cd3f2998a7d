#include "challan/challan282.h"

#include "widgets/value_text.h"

#include <array>
#include <initializer_list>

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
std::int32_t sum_of(std::initializer_list<std::int32_t> amounts) {
    std::int32_t sum = 0;
    for (const std::int32_t amount : amounts)
        sum = to_long(static_cast<double>(sum) + static_cast<double>(amount));
    return sum;
}

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
    const double base = txtIncomeTax.value() + txtSurcharge.value();
    for (const CessYear& each : cess_years) {
        if (each.assessment_year != cboAssessmentYear.text()) continue;
        // Wanted: the click on the year alone leaves the figure unrounded.
        if (site == CessSite::year_click) {
            if (each.from_year) txtEducationCess.set_value(base * each.rate);
        } else if (site == CessSite::income_tax || each.from_surcharge) {
            txtEducationCess.set_value(round_half_even(base * each.rate));
        }
    }
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
            TotalAmount = sum_of({IncomeTaxAmount, SurchargeAmount, EducationCessAmount, InterestAmount,
                                  PenaltyAmount, OtherAmount});
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
