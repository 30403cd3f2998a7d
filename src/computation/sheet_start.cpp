#include "computation/wealth_sheet.h"

#include <array>

namespace levora::computation {

namespace {

constexpr std::string_view version = "14.0.8";
constexpr std::string_view exempted_amount = "3000000"; // rupees, for every assessee and year

bool is_four_digit_number(std::string_view text) {
    return text.size() == 4 && strict_number(text).has_value() && text.find(',') == std::string_view::npos;
}

// Two following years joined by a hyphen.
bool ValidateFYWord(std::string_view word) {
    if (word.size() != 9) return false;
    const std::string_view first = word.substr(0, 4);
    const std::string_view last = word.substr(5);
    return is_four_digit_number(first) && word[4] == '-' && is_four_digit_number(last) &&
           val(last) == val(first) + 1;
}

std::vector<std::string> words_of(std::string_view line) {
    std::vector<std::string> words;
    for (;;) {
        const std::size_t blank = line.find(' ');
        words.emplace_back(line.substr(0, blank));
        if (blank == std::string_view::npos) return words;
        line.remove_prefix(blank + 1);
    }
}

std::string connect_string(const std::string& folder, std::string_view file) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + folder + std::string(file);
}

} // namespace

void frmWealthMain::Form_Load() {
    session::Session& s = session_;
    bool loaded = false;
    bool proper = true;
    session::procedure(s, "frmWealthMain - Form_Load", [&](const session::Attempt& attempt) {
        s.IsServerInstall = s.IsClientInstall = s.IsNetworkInstall = false;
        const auto installation = [&] {
            return session::RegReadValue(s, session::registry::levora_it, "IT Installation");
        };
        if (installation() == "Server")
            s.IsNetworkInstall = s.IsServerInstall = true;
        else if (installation() == "Client")
            s.IsNetworkInstall = s.IsClientInstall = true;
        // A server uses the same folder value as a stand-alone installation.
        const char* folder = s.IsClientInstall ? "LVDBPathServer" : "LVDBPath";
        s.DataFolder = session::RegReadValue(s, session::registry::shared, folder) + "/";
        set_caption("Wealth Tax - Ver " + std::string(version) + " - " + caption());

        proper = judge_command_line();
        if (!proper) return;
        s.TaxConnectString = connect_string(s.DataFolder, "LVWTax.mdb;Jet OLEDB:Database Password=mirwen72;");
        s.AssesseeConnectString =
            connect_string(s.DataFolder, "Assessee.mdb;Jet OLEDB:Database Password=l1ght3nedf4rmh0us3s");
        s.ITConnectString = connect_string(s.DataFolder, "LVIT.mdb;Jet OLEDB:Database Password=mirwen72");
        s.FormsConnectString =
            connect_string(s.DataFolder, "LVForms.mdb;Jet OLEDB:Database Password=mirwen72");
        open_stores(attempt);
        if (s.IsNetworkInstall) clear_lock_row(attempt);
        InitializecontrolsAndVars();
        attempt([&] { cboFY.set_index(0); });
        attempt([&] { mskValuationDate.set_text("31/03/" + s.CurrentFY.substr(0, 4)); });
        session::SkinButtons(*this);
        mnuWealthTax.set_visible(false);
        txtExemptedAmount.set_text(exempted_amount);
        loaded = true;
    });
    if (!proper) {
        s.desk.show_message({.text = "Improper call to 'Wealth Tax'", .icon = widgets::Icon::critical});
    }
    // A start that was given up, by its call or by the person, ends the program.
    if (!loaded) screens().unload(name());
}

bool frmWealthMain::judge_command_line() {
    const std::vector<std::string> words = words_of(session_.command_line);
    if (words.size() < 5 || !ValidateFYWord(words[0])) return false;
    session_.CurrentFY = words[0];
    const std::optional<double> number = strict_number(words[1]);
    if (!number || !(*number > 0)) return false;
    session_.AssesseeNo = to_long(*number);
    constexpr std::array companies{"Public_Company", "Private_Company", "Foreign_Company"};
    for (const char* company : companies)
        if (words[2] == company) session_.IsCompanyAssessee = true;
    session_.UseResidentialAddress = val(words[4]) == 1;
    return true;
}

void frmWealthMain::open_stores(const session::Attempt& attempt) {
    session::Session& s = session_;
    const auto open = [&](session::Connection& connection, const std::string& connect) {
        attempt([&] {
            if (!connection.is_open()) connection.open(connect);
        });
    };
    open(s.AssesseeDb, s.AssesseeConnectString);
    open(s.TaxDb, s.TaxConnectString);
    open(s.ITDb, s.ITConnectString);
    open(s.FormsDb, s.FormsConnectString);
}

void frmWealthMain::clear_lock_row(const session::Attempt& attempt) {
    session::Session& s = session_;
    s.ComputerName = std::string(trimmed(s.machine_name));
    // The year list has no selection yet, so that the statement names an empty year.
    s.SqlText = "DELETE * FROM WTaxAssesseeLocking WHERE ComputerName = '" + s.ComputerName +
                "' AND AssesseeNo = " + s.assessee_text() + " AND FY = '" + cboFY.text() + "' ;";
    attempt([&] { return s.TaxDb.execute(s.SqlText); });
}

void frmWealthMain::InitializecontrolsAndVars() {
    session::procedure(session_, "frmWealthMain - InitializecontrolsAndVars",
                       [&](const session::Attempt& attempt) {
                           session_.SqlText = "SELECT Assessee_Name FROM AssesseeInfo WHERE AssesseeNo = " +
                                              session_.assessee_text() + " ;";
                           const session::RowSet rows =
                               attempt([&] { return session_.AssesseeDb.open_rows(session_.SqlText); });
                           if (!rows.eof()) txtAssesseeName.set_text(rows["Assessee_Name"].text());
                       });
}

bool frmWealthMain::Form_QueryUnload() {
    if (session_.AssesseeDb.is_open()) session_.AssesseeDb.close();
    if (session_.TaxDb.is_open()) session_.TaxDb.close();
    screens().end_process();
    return true;
}

} // namespace levora::computation
