#include "reports/report_source.h"

#include "reports/challan_report.h"
#include "reports/form_bb_report.h"
#include "reports/statement_report.h"
#include "widgets/value_text.h"

namespace levora::reports {

namespace {

constexpr double twips_per_millimetre = 56.7;

} // namespace

void connect_reports(session::Session& session) {
    session.paper["Challan282"] = [&session] { preview_challan(session); };
    session.paper["FormBB"] = [&session] { preview_form_bb(session); };
    session.paper["RepWealthTax"] = [&session] { preview_statement(session); };
}

std::shared_ptr<document::Report> previewed_report(const session::Session& session) {
    switch (session.PreviewSource) {
    case preview_source::challan:
        return session.ChallanReport;
    case preview_source::form_bb:
        return session.FormBBReport;
    case preview_source::statement:
        return session.WealthReport;
    default:
        return nullptr;
    }
}

int margin_twips(std::string_view millimetres) {
    return to_long(val(millimetres) * twips_per_millimetre);
}

} // namespace levora::reports
