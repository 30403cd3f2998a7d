#include "computation/wealth_sheet.h"
#include "session/command_line.h"
#include "session/common_services.h"

#include <algorithm>

namespace levora::computation {

namespace {

constexpr std::size_t computer_name_buffer = 16; // characters, with the closing NUL

void read_installation(session::Session& session) {
    namespace registry = session::registry;
    session.IsServerInstall = session.IsClientInstall = session.IsNetworkInstall = false;
    if (RegReadValue(session, registry::levora_it, "IT Installation") == "Server")
        session.IsNetworkInstall = session.IsServerInstall = true;
    else if (RegReadValue(session, registry::levora_it, "IT Installation") == "Client")
        session.IsNetworkInstall = session.IsClientInstall = true;

    // A server works on the same folder as a stand-alone installation.
    const char* const path = session.IsClientInstall ? "LVDBPathServer" : "LVDBPath";
    session.DataFolder = RegReadValue(session, registry::shared, path) + "/";
}

void build_connect_strings(session::Session& session) {
    const std::string beginning = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + session.DataFolder;
    const std::string password = "Jet OLEDB:Database Password=";
    session.TaxConnectString = beginning + "LVWTax.mdb;" + password + "mirwen72;";
    session.AssesseeConnectString = beginning + "Assessee.mdb;" + password + "l1ght3nedf4rmh0us3s";
    session.ITConnectString = beginning + "LVIT.mdb;" + password + "mirwen72";
    session.FormsConnectString = beginning + "LVForms.mdb;" + password + "mirwen72";
}

void open_if_closed(session::Connection& connection, const std::string& connect_string) {
    if (!connection.is_open()) connection.open(connect_string);
}

std::string cut_and_trimmed(std::string name) {
    name.resize(std::min(name.size(), computer_name_buffer - 1));
    name.resize(std::min(name.size(), name.find('\0')));
    return std::string(trimmed(name));
}

} // namespace

void frmWealthMain::Form_Load() {
    bool proper_call = true;
    const bool started = session::procedure(session_, "frmWealthMain - Form_Load", [&](const auto& attempt) {
        attempt([&] { read_installation(session_); });
        set_caption("Wealth Tax - Ver " LEVORA_VERSION " - " + caption());
        proper_call = attempt([&] { return read_command_line(session_); });
        if (!proper_call) return;

        build_connect_strings(session_);
        attempt([&] { open_if_closed(session_.AssesseeDb, session_.AssesseeConnectString); });
        attempt([&] { open_if_closed(session_.TaxDb, session_.TaxConnectString); });
        attempt([&] { open_if_closed(session_.ITDb, session_.ITConnectString); });
        attempt([&] { open_if_closed(session_.FormsDb, session_.FormsConnectString); });
        if (session_.IsNetworkInstall) clear_lock_row(attempt);

        InitializecontrolsAndVars();
        attempt([&] { cboFY.set_index(0); });
        attempt([&] { mskValuationDate.set_text("31/03/" + session_.CurrentFY.substr(0, 4)); });
        session::SkinButtons(*this);
        mnuWealthTax.set_visible(false);
        attempt([&] { txtExemptedAmount.set_text(exempted_amount); });
    });
    if (!proper_call)
        session_.desk.show_message(
            {.text = "Improper call to 'Wealth Tax'", .icon = widgets::Icon::critical});
    if (!proper_call || !started) session_.screens.unload(name());
}

// Wanted: the year list has no selection yet, so that the statement names an empty year.
void frmWealthMain::clear_lock_row(const session::Attempt& attempt) {
    session_.ComputerName = cut_and_trimmed(session_.machine_name);
    session_.SqlText = "DELETE * FROM WTaxAssesseeLocking WHERE ComputerName = '" + session_.ComputerName +
                       "' AND AssesseeNo = " + session_.assessee_text() + " AND FY = '" + cboFY.text() +
                       "' ;";
    attempt([this] { session_.TaxDb.execute(session_.SqlText); });
}

void frmWealthMain::InitializecontrolsAndVars() {
    session::procedure(session_, "frmWealthMain - InitializecontrolsAndVars", [this](const auto& attempt) {
        session_.SqlText =
            "SELECT Assessee_Name FROM AssesseeInfo WHERE AssesseeNo = " + session_.assessee_text() + " ;";
        const session::RowSet rows =
            attempt([this] { return session_.AssesseeDb.open_rows(session_.SqlText); });
        if (!rows.eof()) attempt([&] { txtAssesseeName.set_text(rows["Assessee_Name"].text()); });
    });
}

bool frmWealthMain::Form_QueryUnload() {
    if (session_.AssesseeDb.is_open()) session_.AssesseeDb.close();
    if (session_.TaxDb.is_open()) session_.TaxDb.close();
    session_.screens.end_process();
    return true;
}

} // namespace levora::computation
