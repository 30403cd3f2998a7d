#include "script/script_host.h"

#include "program/program.h"
#include "script/lua_call.h"
#include "session/common_services.h"

namespace levora::script {

using program::without_trailing_separators;

namespace {

std::string text_setting(const session::Settings& settings, const std::string& key, const std::string& name) {
    const std::optional<session::Settings::Setting> setting = settings.read(key, name);
    const std::string* text = setting ? std::get_if<std::string>(&*setting) : nullptr;
    return text ? *text : std::string();
}

} // namespace

ScriptHost::ScriptHost(const HostOptions& options)
    : settings(options.settings_path), program_folder(options.program_folder) {
    if (options.data_folder) settings.hold(session::registry::shared, "LVDBPath", *options.data_folder);
    if (options.today) desk.set_today(*options.today);
    for (std::string& name : program::Program::screen_names())
        screens_.insert(std::move(name));
}

ScriptHost::~ScriptHost() = default;

bool ScriptHost::start(const std::string& command_line) {
    program_.reset();
    program_ = std::make_unique<program::Program>(session::Surroundings{
        desk, settings, program_folder, command_line, program::computer_name(), &kept_stores_});
    program_->session().print_report = [this](const std::shared_ptr<document::Report>& report) {
        printed_.push_back(report);
    };
    program_->start();
    release_ended_program();
    return running();
}

void ScriptHost::release_ended_program() {
    if (program_ && !program_->running()) program_.reset();
}

session::Session* ScriptHost::session() const {
    return program_ ? &program_->session() : nullptr;
}

std::string ScriptHost::data_folder() const {
    if (program_ && !program_->session().DataFolder.empty())
        return without_trailing_separators(program_->session().DataFolder);
    if (text_setting(settings, session::registry::levora_it, "IT Installation") == "Client") {
        const std::string of_client = text_setting(settings, session::registry::shared, "LVDBPathServer");
        if (!of_client.empty()) return without_trailing_separators(of_client);
    }
    return without_trailing_separators(text_setting(settings, session::registry::shared, "LVDBPath"));
}

widgets::Form* ScriptHost::find_screen(std::string_view name) const {
    return program_ ? program_->session().screens.find(name) : nullptr;
}

widgets::Form& ScriptHost::screen(std::string_view name) const {
    if (widgets::Form* form = find_screen(name)) return *form;
    throw ScriptError(std::string(name) + ": the screen is not loaded");
}

widgets::Control& ScriptHost::control(std::string_view screen_name, std::string_view name) const {
    const widgets::Form* form = find_screen(screen_name);
    widgets::Control* control = form ? form->find(name) : nullptr;
    if (control) return *control;
    const std::string screen_text(screen_name);
    throw ScriptError(screen_text + "." + std::string(name) + ": the screen " + screen_text +
                      (form ? " has no control of this name" : " is not loaded"));
}

const std::string& ScriptHost::kept_name(std::string_view name) {
    return *names_.emplace(name).first;
}

} // namespace levora::script
