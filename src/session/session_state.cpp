#include "session/session_state.h"

#include "session/common_services.h"
#include "widgets/value_text.h"

#include <optional>

namespace levora::session {

namespace {

using Value = decltype(Session::Variable::value);

struct NamedVariable {
    std::string_view name;
    Value (*read)(const Session& session);
};

// clang-format off
constexpr NamedVariable variables[] = {
    {"SqlText",               [](const Session& s) -> Value { return s.SqlText; }},
    {"CurrentFY",             [](const Session& s) -> Value { return s.CurrentFY; }},
    {"AYStartYear",           [](const Session& s) -> Value { return s.AYStartYear; }},
    {"AssesseeNo",            [](const Session& s) -> Value { return static_cast<double>(s.AssesseeNo); }},
    {"DataFolder",            [](const Session& s) -> Value { return s.DataFolder; }},
    {"TaxConnectString",      [](const Session& s) -> Value { return s.TaxConnectString; }},
    {"AssesseeConnectString", [](const Session& s) -> Value { return s.AssesseeConnectString; }},
    {"ITConnectString",       [](const Session& s) -> Value { return s.ITConnectString; }},
    {"FormsConnectString",    [](const Session& s) -> Value { return s.FormsConnectString; }},
    {"TaxDb",                 [](const Session&)   -> Value { return {}; }},
    {"AssesseeDb",            [](const Session&)   -> Value { return {}; }},
    {"ITDb",                  [](const Session&)   -> Value { return {}; }},
    {"FormsDb",               [](const Session&)   -> Value { return {}; }},
    {"ComputerName",          [](const Session& s) -> Value { return s.ComputerName; }},
    {"IsServerInstall",       [](const Session& s) -> Value { return s.IsServerInstall; }},
    {"IsClientInstall",       [](const Session& s) -> Value { return s.IsClientInstall; }},
    {"IsNetworkInstall",      [](const Session& s) -> Value { return s.IsNetworkInstall; }},
    {"IsCompanyAssessee",     [](const Session& s) -> Value { return s.IsCompanyAssessee; }},
    {"UseResidentialAddress", [](const Session& s) -> Value { return s.UseResidentialAddress; }},
    {"BusinessAssetFlag",     [](const Session& s) -> Value { return s.BusinessAssetFlag; }},
    {"DeemedAssetFlag",       [](const Session& s) -> Value { return s.DeemedAssetFlag; }},
    {"AssetRowName",          [](const Session& s) -> Value { return s.AssetRowName; }},
    {"OriFillMonthsLate",     [](const Session& s) -> Value { return static_cast<double>(s.OriFillMonthsLate); }},
    {"OriFillInterestRate",   [](const Session& s) -> Value { return static_cast<double>(s.OriFillInterestRate); }},
    {"ChallanReport",         [](const Session&)   -> Value { return {}; }},
    {"FormBBReport",          [](const Session&)   -> Value { return {}; }},
    {"WealthReport",          [](const Session&)   -> Value { return {}; }},
    {"SheetRowCount",         [](const Session& s) -> Value { return static_cast<double>(s.SheetRowCount); }},
    {"SheetGridName",         [](const Session& s) -> Value { return s.SheetGridName; }},
    {"PrintSource",           [](const Session& s) -> Value { return static_cast<double>(s.PrintSource); }},
    {"PreviewSource",         [](const Session& s) -> Value { return static_cast<double>(s.PreviewSource); }},
    {"XmlIndent",             [](const Session& s) -> Value { return static_cast<double>(s.XmlIndent); }},
    {"XmlTagStack",           [](const Session&)   -> Value { return {}; }},
    {"XmlTagTop",             [](const Session& s) -> Value { return static_cast<double>(s.XmlTagTop); }},
};
// clang-format on

} // namespace

Session::Session(Surroundings surroundings)
    : desk(surroundings.desk), settings(surroundings.settings),
      program_folder(std::move(surroundings.program_folder)),
      command_line(std::move(surroundings.command_line)),
      machine_name(std::move(surroundings.computer_name)) {
    for (Connection* each : {&TaxDb, &AssesseeDb, &ITDb, &FormsDb})
        each->keep_in(surroundings.kept_stores);
    screens.on_unanswered = [this](std::string_view event, const Failure& error) {
        report_unanswered(*this, event, error);
    };
    screens.on_settled = [this] {
        procedure(*this, "Session - commit_all",
                  [this](const Attempt& attempt) { attempt([this] { commit_all(); }); });
        end_event();
    };
    screens.on_broken_off = [this] {
        take_back_all();
        end_event();
    };
}

Session::~Session() = default;

int Session::asset_type() const {
    if (BusinessAssetFlag) return 1;
    return DeemedAssetFlag ? 2 : 0;
}

std::string Session::assessee_text() const {
    return number_text(AssesseeNo);
}

Session::Variable Session::variable(std::string_view name) const {
    for (const NamedVariable& each : variables)
        if (each.name == name) return {.found = true, .value = each.read(*this)};
    return {};
}

bool Session::take_back_all() noexcept {
    bool any = false;
    for (Connection* each : {&TaxDb, &AssesseeDb, &ITDb, &FormsDb})
        any = each->take_back() || any;
    return any;
}

void Session::give_up_after(const Failure& error) noexcept {
    ++given_up_;
    for (Connection* each : {&TaxDb, &AssesseeDb, &ITDb, &FormsDb})
        if (error.number == error_number::out_of_memory || each->has_loss()) each->give_up();
}

void Session::end_event() noexcept {
    for (Connection* each : {&TaxDb, &AssesseeDb, &ITDb, &FormsDb})
        each->end_event();
}

void Session::commit_each(void (Connection::*commit)()) {
    std::optional<Failure> first;
    for (Connection* each : {&TaxDb, &AssesseeDb, &ITDb, &FormsDb}) {
        try {
            (each->*commit)();
        } catch (const Failure& error) {
            if (!first) first = error;
        }
    }
    if (first) throw Failure(*first);
}

Screen::Screen(Session& session, std::string name, std::string caption)
    : Form(session.screens, std::move(name), std::move(caption)), session_(session) {}

} // namespace levora::session
