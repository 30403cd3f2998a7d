#include "computation/wealth_sheet.h"

#include <array>

namespace levora::computation {

namespace {

using Sheet = frmWealthMain;

struct StoredFigure {
    std::string_view column;
    widgets::TextField Sheet::*field;
};

// Written and read in this order: every figure behind its causes, so that the stored ones stand at the
// end of a load. The dates and the tick stand between the two runs.
constexpr std::array figures_before_dates{
    StoredFigure{"AssetsValue", &Sheet::txtAssetsSec2ea},
    StoredFigure{"DeemedAssetsValue", &Sheet::txtDeemedAssets},
    StoredFigure{"TotalAssetValue", &Sheet::txtTotalAssets},
    StoredFigure{"ExemptedAssets", &Sheet::txtExemptedAssets},
    StoredFigure{"AssetChargeableWTax", &Sheet::txtAssetsChargeableToWTax},
    StoredFigure{"LessDebt", &Sheet::txtLessDebt},
    StoredFigure{"NetWealth", &Sheet::txtNetWealth},
    StoredFigure{"RoundedNetWealth", &Sheet::txtNetWealthRoundedOff},
    StoredFigure{"TaxableWealth", &Sheet::txtTaxableWealth},
    StoredFigure{"TaxOnNetWealth", &Sheet::txtWealthTaxLiability},
};
constexpr std::array figures_behind_dates{
    StoredFigure{"Interest", &Sheet::txtInterest},
    StoredFigure{"PrepainTaxInterest", &Sheet::txtPrepaidTax},
    StoredFigure{"BalanceTaxPayable", &Sheet::txtBalanceTaxIntPayable},
    StoredFigure{"Refund", &Sheet::txtTaxRefund},
};

std::string figure_text(const session::Value& value) {
    return value.is_null() ? "0" : value.text();
}

} // namespace

std::string frmWealthMain::row_key() const {
    return "AssesseeNo = " + session_.assessee_text() + " And FY = '" + session_.CurrentFY + "'";
}

void frmWealthMain::cboFY_Click() {
    mskValuationDate.set_text("31/03/" + cboFY.text().substr(0, 4));
    session_.CurrentFY = cboFY.text();
    session_.AYStartYear = session_.CurrentFY.substr(0, 4);
    ClearTaxComputation();
    txtExemptedAmount.set_text("3000000");
    LoadWealthTaxComputation();
    LoadPrepaidTaxes();
}

void frmWealthMain::ClearTaxComputation() {
    session::procedure(
        session_, "frmWealthTaxMain - ClearTaxComputation", [this](const session::Attempt& attempt) {
            for (const StoredFigure& each : figures_before_dates)
                attempt([&] { (this->*each.field).set_text(""); });
            attempt([&] { mskRetDate.set_text(day_month_year(session_.desk.today())); });
            attempt([&] { chkAudited.set_value(1); });
            look_up_due_date(attempt);
            for (widgets::TextField* field :
                 {&txtInterest, &txtTaxIntPayable, &txtPrepaidTax, &txtBalanceTaxIntPayable, &txtTaxRefund})
                attempt([&] { field->set_text(""); });
        });
}

void frmWealthMain::look_up_due_date(const session::Attempt& attempt) {
    session_.SqlText = "Select AuditRetDueDate From AYRetDate where AY = '" + session_.AYStartYear + "'";
    const session::RowSet rows = attempt([&] { return session_.ITDb.open_rows(session_.SqlText); });
    if (rows.eof()) return;
    if (const std::optional<Date> due = rows["AuditRetDueDate"].date())
        attempt([&] { mskDueDate.set_text(day_month_year(*due)); });
}

void frmWealthMain::LoadWealthTaxComputation() {
    session::procedure(
        session_, "frmWealthTaxMain - LoadWealthTaxComputation", [this](const session::Attempt& attempt) {
            session_.SqlText =
                "select * From NetWealthComputation where AssesseeNo = " + session_.assessee_text() +
                " and FY = '" + session_.CurrentFY + "'";
            const session::RowSet rows = attempt([&] { return session_.TaxDb.open_rows(session_.SqlText); });
            if (!rows.eof()) {
                const auto load = [&](const StoredFigure& each) {
                    attempt([&] { (this->*each.field).set_text(figure_text(rows[each.column])); });
                };
                for (const StoredFigure& each : figures_before_dates)
                    load(each);
                attempt([&] { chkAudited.set_value(rows["Audited"].number() == 1 ? 1 : 0); });
                attempt([&] { mskDueDate.set_text(rows["DueDate"].day_month_year_or_empty()); });
                attempt([&] { mskRetDate.set_text(rows["ReturnDate"].day_month_year_or_empty()); });
                for (const StoredFigure& each : figures_behind_dates)
                    load(each);
            }
            load_enclosures(attempt);
        });
}

void frmWealthMain::SaveWealthTaxComputation() {
    session::procedure(
        session_, "frmWealthMain - SaveWealthTaxComputation", [this](const session::Attempt& attempt) {
            session_.SqlText =
                "Select * from NetWealthComputation WHERE AssesseeNo = " + session_.assessee_text() +
                " And FY = '" + session_.CurrentFY + "'";
            session::RowSet rows = attempt(
                [&] { return session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update); });
            if (rows.eof()) {
                attempt([&] { rows.add_new(); });
                attempt([&] { rows.set("AssesseeNo", session_.AssesseeNo); });
                attempt([&] { rows.set("FY", session_.CurrentFY); });
            }
            const auto keep = [&](const StoredFigure& each) {
                attempt([&] { rows.set(each.column, (this->*each.field).value()); });
            };
            for (const StoredFigure& each : figures_before_dates)
                keep(each);
            attempt([&] { rows.set("Audited", chkAudited.value()); });
            attempt([&] { rows.set("DueDate", mskDueDate.text()); });
            attempt([&] { rows.set("ReturnDate", mskRetDate.text()); });
            for (const StoredFigure& each : figures_behind_dates)
                keep(each);
            attempt([&] { rows.update(); });
            rows.close();
            save_enclosures(attempt);
        });
}

void frmWealthMain::SaveAllComputation() {
    SaveWealthTaxComputation();
    SavePrepaidTaxes();
}

} // namespace levora::computation
