#include "program/run_places.h"
#include "script/lua_call.h"
#include "script/proxies.h"
#include "script/report_calls.h"
#include "script/run_calls.h"
#include "script/script_host.h"
#include "widgets/date_text.h"

#include <lua.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace levora;

constexpr int script_failed = 1;
constexpr int wrong_call = 2;

constexpr std::string_view call = "usage: levora-wealth-script [options] SCRIPT.lua [ARG ...]\n";
constexpr std::string_view own_usage =
    "  --today YYYY-MM-DD       the date that every screen takes as today\n"
    "Exit status: 0 the script ended, 1 it raised an error, 2 wrong call.\n";

struct CommandLine {
    script::HostOptions host;
    std::vector<std::string> script; // the script's file and its arguments
};

int wrong(const std::string& why) {
    std::cerr << "levora-wealth-script: " << why << "\n" << call << program::places_usage << own_usage;
    return wrong_call;
}

// Fills the command line; what is wrong with it otherwise.
std::optional<std::string> read_command_line(std::vector<std::string> words, CommandLine& result) {
    static_cast<program::RunPlaces&>(result.host) = program::own_places();
    std::size_t at = 0;
    for (; at < words.size() && words[at].starts_with("-"); at += 2) {
        const std::string& option = words[at];
        const bool has_value = at + 1 < words.size();
        const std::string value = has_value ? words[at + 1] : std::string();
        const bool is_place = program::take_place(result.host, option, value);
        if (!is_place && option != "--today") return "unknown option " + option;
        if (!has_value) return option + " needs a value";
        if (is_place) continue;
        if (const std::optional<Date> date = parse_date(value); date && iso_date(*date) == value)
            result.host.today = date;
        else
            return "--today: no date YYYY-MM-DD: " + value;
    }
    if (at == words.size()) return "no script named";
    result.script.assign(words.begin() + static_cast<std::ptrdiff_t>(at), words.end());
    std::error_code unknown;
    if (const auto kind = std::filesystem::status(result.script.front(), unknown).type();
        kind == std::filesystem::file_type::directory || kind == std::filesystem::file_type::not_found)
        return "there is no script " + result.script.front();
    return std::nullopt;
}

void open_libraries(lua_State* state, const std::vector<std::string>& script) {
    luaL_openlibs(state);
    script::open_proxies(state);
    script::open_run_calls(state);
    script::open_desk_calls(state);
    script::open_report_calls(state);
    lua_createtable(state, static_cast<int>(script.size()), 1);
    for (std::size_t position = 0; position < script.size(); ++position) {
        lua_pushlstring(state, script[position].data(), script[position].size());
        lua_rawseti(state, -2, static_cast<lua_Integer>(position));
    }
    lua_setglobal(state, "arg");
}

// Runs the script file; its error message when it failed.
std::optional<std::string> run_script(lua_State* state, const std::vector<std::string>& script) {
    int status = luaL_loadfile(state, script.front().c_str());
    if (status == LUA_OK) {
        for (std::size_t position = 1; position < script.size(); ++position)
            lua_pushlstring(state, script[position].data(), script[position].size());
        status = lua_pcall(state, static_cast<int>(script.size()) - 1, 0, 0);
    }
    if (status == LUA_OK) return std::nullopt;
    std::size_t length = 0;
    const char* text = luaL_tolstring(state, -1, &length);
    return std::string(text, length);
}

int run(const std::vector<std::string>& words) {
    if (!words.empty() && words.front() == "--help") {
        std::cout << call << program::places_usage << own_usage;
        return 0;
    }
    CommandLine line;
    if (const std::optional<std::string> fault = read_command_line(words, line)) return wrong(*fault);

    script::ScriptHost host(line.host);
    const std::unique_ptr<lua_State, decltype(&lua_close)> state(luaL_newstate(), &lua_close);
    if (!state) {
        std::cerr << "levora-wealth-script: not enough memory\n";
        return script_failed;
    }
    script::set_host(state.get(), &host);
    open_libraries(state.get(), line.script);
    if (const std::optional<std::string> fault = run_script(state.get(), line.script)) {
        std::cerr << *fault << "\n";
        return script_failed;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& error) {
        std::cerr << "levora-wealth-script: " << error.what() << "\n";
        return script_failed;
    }
}
