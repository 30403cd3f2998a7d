#include "script/run_calls.h"

#include "program/program.h"
#include "script/lua_call.h"
#include "script/script_host.h"
#include "session/data_store.h"

#include <type_traits>
#include <variant>

namespace levora::script {

namespace {

using session::Settings;

int start(lua_State* state) {
    const std::string line = text_argument(state, 1);
    return push(state, host_of(state).start(line));
}

int running(lua_State* state) {
    return push(state, host_of(state).running());
}

int today(lua_State* state) {
    widgets::HeadlessDesk& desk = host_of(state).desk;
    if (!is_given(state, 1)) return push(state, iso_date(desk.today()));
    const std::string text = text_argument(state, 1);
    const std::optional<Date> date = parse_date(text);
    if (!date || iso_date(*date) != text) throw ScriptError("today: no date YYYY-MM-DD: \"" + text + "\"");
    desk.set_today(*date);
    return 0;
}

int registry(lua_State* state) {
    Settings& settings = host_of(state).settings;
    const std::string key = text_argument(state, 1);
    const std::string name = text_argument(state, 2);
    if (!is_given(state, 3)) {
        const std::optional<Settings::Setting> held = settings.read(key, name);
        if (!held) return push_nothing(state);
        if (const auto* number = std::get_if<std::int64_t>(&*held)) {
            lua_pushinteger(state, *number);
            return 1;
        }
        return push(state, std::get<std::string>(*held));
    }
    bool done = false;
    if (lua_isboolean(state, 3)) {
        if (lua_toboolean(state, 3) != 0)
            throw ScriptError("registry: a text, a whole number or false expected");
        done = settings.remove(key, name);
    } else if (lua_type(state, 3) == LUA_TNUMBER) {
        int is_whole = 0;
        const lua_Integer number = lua_tointegerx(state, 3, &is_whole);
        if (is_whole == 0) throw ScriptError("registry: a whole number expected");
        done = settings.write(key, name, Settings::Setting{static_cast<std::int64_t>(number)});
    } else {
        done = settings.write(key, name, Settings::Setting{text_argument(state, 3)});
    }
    return push(state, done);
}

void push_value(lua_State* state, const session::Value& value) {
    std::visit(
        [state](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>)
                lua_pushnil(state);
            else if constexpr (std::is_same_v<Held, std::int64_t>)
                lua_pushinteger(state, held);
            else
                push(state, held);
        },
        value.held());
}

int store(lua_State* state) {
    const std::string file = text_argument(state, 1);
    const std::string statement = text_argument(state, 2);
    const std::optional<session::Store> store = session::store_of(file);
    if (!store) throw ScriptError("store: no store is named \"" + file + "\"");
    // Rows that the running program still holds back would keep the file locked.
    if (session::Session* session = host_of(state).session()) session->commit_all();
    const session::StatementResult result =
        session::run_statement(host_of(state).data_folder(), *store, statement);
    if (!result.is_select) return push(state, result.rows_touched);
    push_rows(state, result.columns, result.rows);
    return 1;
}

int data_folder(lua_State* state) {
    return push(state, host_of(state).data_folder());
}

int program_folder(lua_State* state) {
    return push(state, host_of(state).program_folder);
}

int session_variable(lua_State* state) {
    const std::string name = text_argument(state, 1);
    const session::Session* session = host_of(state).session();
    if (!session) return push_nothing(state);
    const session::Session::Variable variable = session->variable(name);
    if (!variable.found) throw ScriptError("session: no variable is named \"" + name + "\"");
    return std::visit(
        [state](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>)
                return push_nothing(state);
            else
                return push(state, held);
        },
        variable.value);
}

int computer_name(lua_State* state) {
    return push(state, program::computer_name());
}

constexpr luaL_Reg calls[] = {
    {"start", guarded<start>},
    {"running", guarded<running>},
    {"today", guarded<today>},
    {"registry", guarded<registry>},
    {"store", guarded<store>},
    {"data_folder", guarded<data_folder>},
    {"program_folder", guarded<program_folder>},
    {"session", guarded<session_variable>},
    {"computer_name", guarded<computer_name>},
};

} // namespace

void push_rows(lua_State* state, const std::vector<std::string>& columns,
               const std::vector<std::vector<session::Value>>& rows) {
    lua_createtable(state, static_cast<int>(rows.size()), 0);
    lua_Integer position = 0;
    for (const std::vector<session::Value>& row : rows) {
        lua_createtable(state, 0, static_cast<int>(columns.size()));
        for (std::size_t column = 0; column < columns.size() && column < row.size(); ++column) {
            push(state, columns[column]);
            push_value(state, row[column]);
            lua_rawset(state, -3);
        }
        lua_rawseti(state, -2, ++position);
    }
}

void open_run_calls(lua_State* state) {
    for (const luaL_Reg& call : calls)
        lua_register(state, call.name, call.func);
}

} // namespace levora::script
