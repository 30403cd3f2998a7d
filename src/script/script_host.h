#pragma once

#include "program/run_places.h"
#include "session/kept_stores.h"
#include "session/session_state.h"
#include "session/settings.h"
#include "widgets/control.h"
#include "widgets/form.h"
#include "widgets/headless_desk.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace levora::document {
class Report;
}
namespace levora::program {
class Program;
}

namespace levora::script {

struct HostOptions : program::RunPlaces {
    std::optional<Date> today;
};

// What one script works with: the desk that answers and records, the settings, and the run of the
// program that is up, if any. It outlives every start.
class ScriptHost {
public:
    explicit ScriptHost(const HostOptions& options);
    ~ScriptHost();
    ScriptHost(const ScriptHost&) = delete;
    ScriptHost& operator=(const ScriptHost&) = delete;

    widgets::HeadlessDesk desk;
    session::Settings settings;
    const std::string program_folder; // without a trailing separator
    std::string error_text;           // of the call that failed last; see raise_error

    // Starts the program afresh; one that still runs is killed. True when it runs afterwards.
    bool start(const std::string& command_line);
    [[nodiscard]] bool running() const { return program_ != nullptr; }
    // The running program's session; null when none runs.
    [[nodiscard]] session::Session* session() const;
    // A program that ended during the last call goes, and its connections with it.
    void release_ended_program();

    // The reports sent to the printer since the last taking, in order.
    std::vector<std::shared_ptr<document::Report>> take_printed() { return std::exchange(printed_, {}); }

    // Where the stores lie: of the running program, else where the next start would look.
    [[nodiscard]] std::string data_folder() const;

    [[nodiscard]] bool is_screen(std::string_view name) const { return screens_.contains(std::string(name)); }
    // Null when it is not loaded.
    [[nodiscard]] widgets::Form* find_screen(std::string_view name) const;
    // A ScriptError that names the screen, and the control, which is not there.
    [[nodiscard]] widgets::Form& screen(std::string_view name) const;
    [[nodiscard]] widgets::Control& control(std::string_view screen_name, std::string_view name) const;

    // The same text at an address that stays: proxies hold names.
    const std::string& kept_name(std::string_view name);

private:
    session::KeptStores kept_stores_;
    std::unique_ptr<program::Program> program_;
    std::vector<std::shared_ptr<document::Report>> printed_;
    std::unordered_set<std::string> screens_; // all that the program has
    std::unordered_set<std::string> names_;
};

} // namespace levora::script
