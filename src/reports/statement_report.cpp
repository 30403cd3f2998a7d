#include "reports/statement_report.h"

#include "document/report.h"
#include "document/report_files.h"
#include "reports/report_source.h"
#include "reports/screen_text.h"
#include "schedules/asset_composition.h"
#include "session/common_services.h"
#include "widgets/value_text.h"

#include <array>
#include <string_view>

namespace levora::reports {

namespace {

constexpr std::string_view screen = "frmWealthMain";

struct Figure {
    std::string_view object;
    std::string_view control;
};
constexpr std::array figures{
    Figure{"txtRepDeemedAssets", "txtDeemedAssets"},
    Figure{"txtRepAssetsChargeable", "txtAssetsChargeableToWTax"},
    Figure{"txtRepAssetsSec2ea", "txtAssetsSec2ea"},
    Figure{"txtRepBalance", "txtBalanceTaxIntPayable"},
    Figure{"txtRepExemptedAssets", "txtExemptedAssets"},
    Figure{"txtRepInterest", "txtInterest"},
    Figure{"txtRepLessDebt", "txtLessDebt"},
    Figure{"txtRepNetWealth", "txtNetWealth"},
    Figure{"txtRepNetWealthRounded", "txtNetWealthRoundedOff"},
    Figure{"txtRepPrepaidTax", "txtPrepaidTax"},
    Figure{"txtRepTaxableWealth", "txtTaxableWealth"},
    Figure{"txtRepTaxIntPayable", "txtTaxIntPayable"},
    Figure{"txtRepRefund", "txtTaxRefund"},
    Figure{"txtRepTotalAssets", "txtTotalAssets"},
    Figure{"txtRepWealthTax", "txtWealthTaxLiability"},
};

// The bars below the figures, and the sheet's fields that they show.
constexpr std::array flow_bars{
    Figure{"barAssets", "txtAssetsSec2ea"},
    Figure{"barDeemedAssets", "txtDeemedAssets"},
    Figure{"barAssetsChargeable", "txtAssetsChargeableToWTax"},
    Figure{"barDebt", "txtLessDebt"},
    Figure{"barNetWealth", "txtNetWealth"},
    Figure{"barTaxableWealth", "txtTaxableWealth"},
    Figure{"barWealthTax", "txtWealthTaxLiability"},
};
// In the order of an asset composition.
constexpr std::array<std::string_view, 6> schedule_bars{"barImmovable", "barMovable",  "barUrbanLand",
                                                        "barFirm",      "barBusiness", "barJewellery"};

struct Word {
    double code;
    std::string_view word;
};
constexpr std::array statuses{Word{0, "Individual"}, Word{1, "Hindu Undivided Family"}, Word{10, "Companies"},
                              Word{11, "Companies"}, Word{13, "Companies"}};
constexpr std::array sexes{Word{0, "Male"}, Word{1, "Female"}};

// A coded column in words; a code without a word as it stands.
template <class Words> std::string in_words(const session::Value& value, const Words& words) {
    if (value.is_null() || !strict_number(value.text())) return value.text();
    for (const Word& each : words)
        if (each.code == value.number()) return std::string(each.word);
    return value.text();
}

std::string assessee_table(const session::Session& session) {
    return "[" + session.DataFolder + "Assessee.mdb; PWD=l1ght3nedf4rmh0us3s].AssesseeInfo";
}

void show_particulars(document::Report& report, const session::RowSet& row) {
    for (const char* column : {"Office_Name", "Assessee_Name", "Father_Name", "Ward", "PAN"})
        report.set_text(column, row[column].text());
    report.set_text("Date_of_Birth", row["Date_of_Birth"].day_month_year_or_empty());
    report.set_text("Status", in_words(row["Status"], statuses));
    report.set_text("Sex", in_words(row["Sex"], sexes));
}

void ReportHeaderSection1_Format(session::Session& session, document::Report& report) {
    // Not tried again: what fails leaves its lines blank, and formatting goes on.
    session::procedure(session, "RepWealthTax - ReportHeaderSection1_Format", [&](const session::Attempt&) {
        report.set_text("txtRepFY", "F.Y. " + text_of(session, screen, "cboFY"));
        const char* columns =
            session.UseResidentialAddress
                ? "ResAddress1, ResAddress2,ResAddress3,ResAddress4 ,ResCity, ResDistrict, ResPIN"
                : "Address1, Address2 ,Address3,Address4,City,District, PIN";
        session.SqlText = std::string("SELECT ") + columns + " FROM " + assessee_table(session) +
                          " where AssesseeNo=" + session.assessee_text() + " ";
        const session::RowSet row = session.ITDb.open_rows(session.SqlText);
        if (row.eof()) return;
        const auto column = [&row](std::size_t at) { return row[row.columns().at(at)]; };
        report.set_text("txtRepAddress1", JoinAddress(column(0).text(), column(1).text()));
        report.set_text("txtRepAddress2", JoinAddress(column(2).text(), column(3).text()));
        report.set_text("txtRepCity", JoinCity(column(4).text(), column(5).text()));
        report.set_text("txtRepPIN", column(6).is_null() ? "" : "PIN: " + column(6).text());
    });
}

void FillStatementFigures(session::Session& session, document::Report& report) {
    // Wanted: four characters against nine, so 2009 itself still has the old limit; the caption looks
    // at nothing else, not at the exempted amount of the sheet.
    const bool raised = session.AYStartYear >= "2009-2010";
    report.set_text("lblWealthTaxRate", std::string("Wealth Tax  @ 1% on Net Wealth in excess of Rs ") +
                                            (raised ? "30,00,000" : "15,00,000"));
    for (const Figure& each : figures)
        report.set_text(each.object, text_of(session, screen, each.control));
}

// A layout that a practice made its own may do without the bars.
void set_bar(document::Report& report, std::string_view bar, double amount) {
    if (report.has_object(bar)) report.set_text(bar, number_text(amount));
}

void fill_bars(session::Session& session, document::Report& report) {
    for (const Figure& each : flow_bars)
        set_bar(report, each.object, val(text_of(session, screen, each.control)));
    const schedules::AssetComposition parts = schedules::asset_composition(session);
    for (std::size_t at = 0; at < parts.size(); ++at)
        set_bar(report, schedule_bars.at(at), parts.at(at).amount);
}

// Father's name and its caption show for an individual only.
void ShowIndividualFields(document::Report& report) {
    const bool individual = report.text("Status") == "Individual";
    report.suppress("Father_Name", !individual);
    report.suppress("Father's Name", !individual);
}

} // namespace

std::string JoinAddress(const std::string& first, const std::string& second) {
    return !first.empty() && !second.empty() ? first + ", " + second : first + second;
}

std::string JoinCity(const std::string& city, const std::string& district) {
    // Wanted: a city without a district keeps its comma and blank.
    if (!city.empty() && upper_case(city) != upper_case(district)) return city + ", " + district;
    return district;
}

void preview_statement(session::Session& session) {
    session::procedure(
        session, "RepWealthTax - cmdPreview_Click", [&session](const session::Attempt& attempt) {
            session.WealthReport.reset();
            attempt([&] {
                session.WealthReport = std::make_shared<document::Report>(
                    document::open_layout(session.program_folder, "RepWealthTax"));
            });
            document::Report& report = *session.WealthReport;
            session.SqlText =
                "SELECT Office_Name,Assessee_Name, Father_Name, Address1, Address2, Status, Ward, PAN, "
                "Date_of_Birth, Sex FROM " +
                assessee_table(session) + " where AssesseeNo=" + session.assessee_text() + " ";
            const session::RowSet row =
                attempt([&] { return session.AssesseeDb.open_rows(session.SqlText); });
            if (!row.eof()) attempt([&] { show_particulars(report, row); });
            report.on_format = [&session](document::Report& shown) {
                ReportHeaderSection1_Format(session, shown);
                FillStatementFigures(session, shown);
                fill_bars(session, shown);
                ShowIndividualFields(shown);
            };
            session.PreviewSource = preview_source::statement;
            session::PreviewForm(session);
        });
}

} // namespace levora::reports
