#include "computation/wealth_sheet.h"
#include "session/common_services.h"
#include "widgets/date_text.h"

#include <string_view>
#include <variant>

namespace levora::computation {

namespace {

using Sheet = frmWealthMain;
using StoredField =
    std::variant<widgets::TextField Sheet::*, widgets::TickBox Sheet::*, widgets::MaskedField Sheet::*>;

struct StoredColumn {
    std::string_view name;
    StoredField field;
};

// In this order each stored figure is loaded after its causes, and so stands at the end.
constexpr StoredColumn stored_columns[] = {
    {"AssetsValue", &Sheet::txtAssetsSec2ea},
    {"DeemedAssetsValue", &Sheet::txtDeemedAssets},
    {"TotalAssetValue", &Sheet::txtTotalAssets},
    {"ExemptedAssets", &Sheet::txtExemptedAssets},
    {"AssetChargeableWTax", &Sheet::txtAssetsChargeableToWTax},
    {"LessDebt", &Sheet::txtLessDebt},
    {"NetWealth", &Sheet::txtNetWealth},
    {"RoundedNetWealth", &Sheet::txtNetWealthRoundedOff},
    {"TaxableWealth", &Sheet::txtTaxableWealth},
    {"TaxOnNetWealth", &Sheet::txtWealthTaxLiability},
    {"Audited", &Sheet::chkAudited},
    {"DueDate", &Sheet::mskDueDate},
    {"ReturnDate", &Sheet::mskRetDate},
    {"Interest", &Sheet::txtInterest},
    {"PrepainTaxInterest", &Sheet::txtPrepaidTax},
    {"BalanceTaxPayable", &Sheet::txtBalanceTaxIntPayable},
    {"Refund", &Sheet::txtTaxRefund},
};

void show(widgets::TextField& field, const session::Value& stored) {
    field.set_text(stored.is_null() ? "0" : stored.text());
}
void show(widgets::TickBox& box, const session::Value& stored) {
    box.set_value(stored.number() == 1 ? 1 : 0);
}
void show(widgets::MaskedField& date, const session::Value& stored) {
    date.set_text(stored.day_month_year_or_empty());
}

session::Value to_store(const widgets::TextField& field) {
    return field.value();
}
session::Value to_store(const widgets::TickBox& box) {
    return box.value();
}
session::Value to_store(const widgets::MaskedField& date) {
    return date.text(); // as it stands: the column refuses what is no date
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
    txtExemptedAmount.set_text(exempted_amount);
    LoadWealthTaxComputation();
    LoadPrepaidTaxes();
}

void frmWealthMain::ClearTaxComputation() {
    session::procedure(session_, "frmWealthTaxMain - ClearTaxComputation", [this](const auto& attempt) {
        for (widgets::TextField* field :
             {&txtAssetsSec2ea, &txtDeemedAssets, &txtTotalAssets, &txtExemptedAssets,
              &txtAssetsChargeableToWTax, &txtLessDebt, &txtNetWealth, &txtNetWealthRoundedOff,
              &txtTaxableWealth, &txtWealthTaxLiability})
            attempt([field] { field->set_text(""); });
        attempt([this] { mskRetDate.set_text(day_month_year(session_.desk.today())); });
        attempt([this] { chkAudited.set_value(1); });

        session_.SqlText = "Select AuditRetDueDate From AYRetDate where AY = '" + session_.AYStartYear + "'";
        const session::RowSet years = attempt([this] { return session_.ITDb.open_rows(session_.SqlText); });
        if (!years.eof())
            attempt([&] {
                if (const auto due = years["AuditRetDueDate"].date())
                    mskDueDate.set_text(day_month_year(*due));
            });

        for (widgets::TextField* field :
             {&txtInterest, &txtTaxIntPayable, &txtPrepaidTax, &txtBalanceTaxIntPayable, &txtTaxRefund})
            attempt([field] { field->set_text(""); });
    });
}

void frmWealthMain::LoadWealthTaxComputation() {
    const auto load = [this](const auto& attempt) {
        session_.SqlText =
            "select * From NetWealthComputation where AssesseeNo = " + session_.assessee_text() +
            " and FY = '" + session_.CurrentFY + "'";
        const session::RowSet row = attempt([this] { return session_.TaxDb.open_rows(session_.SqlText); });
        if (!row.eof())
            for (const StoredColumn& column : stored_columns)
                attempt([&] {
                    std::visit([&](auto field) { show(this->*field, row[column.name]); }, column.field);
                });
        sheet_read_ = true;
        load_enclosures(attempt);
        enclosures_read_ = true;
    };
    sheet_read_ = false;
    enclosures_read_ = false;
    session::procedure(session_, "frmWealthTaxMain - LoadWealthTaxComputation", load);
}

void frmWealthMain::SaveWealthTaxComputation() {
    std::vector<session::UnreadTable> unread;
    if (!sheet_read_) unread.push_back({"NetWealthComputation", row_key()});
    if (!enclosures_read_) unread.push_back({"Enclosure", row_key()});
    if (!unread.empty() &&
        !goes_on(ask_over_unread(session_, "frmWealthMain - SaveWealthTaxComputation", unread)))
        return;
    session::procedure(session_, "frmWealthMain - SaveWealthTaxComputation", [this](const auto& attempt) {
        session_.SqlText = "Select * from NetWealthComputation WHERE " + row_key();
        session::RowSet row = attempt(
            [this] { return session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update); });
        if (row.eof()) {
            attempt([&] { row.add_new(); });
            attempt([&] { row.set("AssesseeNo", session_.AssesseeNo); });
            attempt([&] { row.set("FY", session_.CurrentFY); });
        }
        for (const StoredColumn& column : stored_columns)
            attempt([&] {
                std::visit([&](auto field) { row.set(column.name, to_store(this->*field)); }, column.field);
            });
        attempt([&] { row.update(); });
        attempt([&] { row.close(); });
        save_enclosures(attempt);
    });
}

bool frmWealthMain::goes_on(session::OverUnread choice) {
    stays_ = stays_ || choice == session::OverUnread::stay;
    return choice == session::OverUnread::save;
}

void frmWealthMain::SaveAllComputation() {
    stays_ = false;
    SaveWealthTaxComputation();
    SavePrepaidTaxes();
}

} // namespace levora::computation
