#include "reports/print_dialog.h"

#include "document/report.h"
#include "reports/challan_report.h"
#include "reports/form_bb_report.h"
#include "reports/report_source.h"
#include "session/common_services.h"
#include "widgets/value_text.h"

#include <string>

namespace levora::reports {

namespace {

constexpr int printer_error = 482;
const std::string challan_pre_printed = "Challan282 PrePrinted";

std::string top_setting(std::uint8_t source) {
    return source == print_source::challan ? "Challan282 Top Margin" : "FormBA Top Margin";
}
std::string left_setting(std::uint8_t source) {
    return source == print_source::challan ? "Challan282 Left Margin" : "FormBA Left Margin";
}

void send_to_printer(session::Session& session, const std::shared_ptr<document::Report>& report) {
    report->format();
    if (!session.print_report) throw Failure(printer_error, "There is no printer to print on.");
    session.print_report(report);
}

} // namespace

frmPrint::frmPrint(session::Session& session) : Screen(session, "frmPrint", "Levora IT - Print") {
    txtNoCopies.set_text("1");
    optNormalSeq.set_value(true);
    frCollated.set_visible(false);
    chkCollate.set_tooltip("If checked will print both side of the form at a time before printing next copy");
    optNormalSeq.set_tooltip("For Sequential Printing (1,2,3,4,...)");
    for (widgets::TextField* margin : {&txtTopMargin, &txtLeftMargin})
        margin->set_tooltip("Margins settings marked as ¤ will not be remembered if changed");
    chkPrePrinted.set_tooltip("Check to print selected form on Levora pre-printed stationary");
    cmdPrint.set_tooltip("Print (opens printer selection dialog)");
    cmdCancel.set_tooltip("Cancel Printing");
    connect();
}

void frmPrint::connect() {
    for (widgets::TextField* field : {&txtLeftMargin, &txtTopMargin, &txtNoCopies})
        field->on_change = [this] { SettingsChanged = true; };
    chkPrePrinted.on_click = [this] { SettingsChanged = true; };
    chkCollate.on_click = [this] {
        frCollated.set_visible(chkCollate.ticked());
        frNonCollated.set_visible(!chkCollate.ticked());
    };
    cmdPrint.on_click = [this] { cmdPrint_Click(); };
    cmdOK.on_click = [this] { cmdOK_Click(); };
    cmdCancel.on_click = [this] { close(); };
}

void frmPrint::Form_Load() {
    session::procedure(session_, "frmPrint - Form_Load", [this](const session::Attempt& attempt) {
        const auto setting = [&](const std::string& name) {
            return attempt(
                [&] { return session::RegReadValue(session_, session::registry::levora_forms, name); });
        };
        const std::uint8_t source = session_.PrintSource;
        if (source == print_source::challan)
            chkPrePrinted.set_value(to_integer(val(setting(challan_pre_printed))));
        if (source == print_source::challan || source == print_source::form_bb) {
            txtTopMargin.set_text(setting(top_setting(source)));
            txtLeftMargin.set_text(setting(left_setting(source)));
        }
        SettingsChanged = false;
    });
}

bool frmPrint::Form_KeyDown(std::string_view key) {
    if (key != "Escape") return false;
    close();
    return true;
}

void frmPrint::cmdOK_Click() {
    if (SettingsChanged) SavePrintSettings();
    close();
}

void frmPrint::SavePrintSettings() {
    const std::uint8_t source = session_.PrintSource;
    if (source != print_source::challan && source != print_source::form_bb) return;
    const auto write = [this](const std::string& name, const std::string& text) {
        session::RegWriteString(session_, session::registry::levora_forms, name, text);
    };
    write(left_setting(source), txtLeftMargin.text());
    write(top_setting(source), txtTopMargin.text());
    // Wanted: the return has no pre-printed form; its tick is neither kept nor read.
    if (source == print_source::challan) write(challan_pre_printed, number_text(chkPrePrinted.value()));
}

void frmPrint::cmdPrint_Click() {
    // Wanted: nothing is kept here, so that margins typed for this print alone are forgotten, and the
    // dialog is gone afterwards, printed or not.
    // No step is tried again either: its report closes the dialog.
    session::procedure(session_, "frmPrint - cmdPrint_Click", [this](const session::Attempt&) {
        if (!session_.desk.choose_printer()) return;
        const int top = margin_twips(txtTopMargin.text());
        const int left = margin_twips(txtLeftMargin.text());
        const int copies = to_integer(txtNoCopies.value());
        if (session_.PrintSource == print_source::challan)
            print_challan(top, left, copies);
        else if (session_.PrintSource == print_source::form_bb)
            print_form_bb(copies);
    });
    close();
}

void frmPrint::print_challan(int top_twips, int left_twips, int copies) {
    session_.ChallanReport.reset();
    session_.ChallanReport = make_challan_report(session_);
    document::Report& report = *session_.ChallanReport;
    report.top_margin_twips = top_twips;
    report.left_margin_twips = left_twips;
    report.suppress("SecChallan282Form", chkPrePrinted.ticked());
    report.copies = copies;
    send_to_printer(session_, session_.ChallanReport);
}

void frmPrint::print_form_bb(int copies) {
    open_form_bb(session_);
    session_.PreviewSource = preview_source::form_bb;
    // Wanted: TempPrint is not filled here. The schedules on paper are those of the last preview, and
    // the margins of the dialog do not move the return.
    FillFormBBReport(session_);
    document::Report& report = *session_.FormBBReport;
    report.orientation = document::Orientation::portrait;
    report.paper_size = document::PaperSize::a4;
    report.copies = copies;
    send_to_printer(session_, session_.FormBBReport);
}

} // namespace levora::reports
