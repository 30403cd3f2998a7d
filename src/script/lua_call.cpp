#include "script/lua_call.h"

#include "script/script_host.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <exception>
#include <new>

namespace levora::script {

namespace {

[[noreturn]] void throw_wrong_argument(lua_State* state, int position, const char* wanted) {
    throw ScriptError("argument " + std::to_string(position) + ": " + wanted + " expected, got " +
                      luaL_typename(state, position));
}

} // namespace

ScriptHost& host_of(lua_State* state) {
    return **static_cast<ScriptHost**>(lua_getextraspace(state));
}

void set_host(lua_State* state, ScriptHost* host) {
    *static_cast<ScriptHost**>(lua_getextraspace(state)) = host;
}

bool run_guarded(lua_State* state, Body body, int& results) {
    ScriptHost& host = host_of(state);
    bool done = false;
    try {
        results = body(state);
        done = true;
    } catch (const Failure& failure) {
        host.error_text = std::string(failure.what()) + " (error " + std::to_string(failure.number) + ")";
    } catch (const std::bad_alloc&) {
        host.error_text = "out of memory"; // short enough to need none
    } catch (const std::exception& error) {
        host.error_text = error.what();
    }
    host.release_ended_program();
    return done;
}

int raise_error(lua_State* state) {
    const std::string& text = host_of(state).error_text;
    luaL_where(state, 1);
    lua_pushlstring(state, text.data(), text.size());
    lua_concat(state, 2);
    return lua_error(state);
}

std::string text_argument(lua_State* state, int position) {
    if (lua_isinteger(state, position)) return std::to_string(lua_tointeger(state, position));
    if (lua_type(state, position) == LUA_TNUMBER) return number_text(lua_tonumber(state, position));
    if (lua_type(state, position) != LUA_TSTRING) throw_wrong_argument(state, position, "a text");
    std::size_t length = 0;
    const char* text = lua_tolstring(state, position, &length);
    return {text, length};
}

int whole_argument(lua_State* state, int position) {
    int is_whole = 0;
    const lua_Integer number = lua_tointegerx(state, position, &is_whole);
    if (is_whole == 0 || number < INT_MIN || number > INT_MAX)
        throw_wrong_argument(state, position, "a whole number");
    return static_cast<int>(number);
}

bool truth_argument(lua_State* state, int position) {
    if (lua_type(state, position) == LUA_TNUMBER) return lua_tonumber(state, position) != 0;
    if (!lua_isboolean(state, position)) throw_wrong_argument(state, position, "true or false");
    return lua_toboolean(state, position) != 0;
}

bool is_given(lua_State* state, int position) {
    return !lua_isnoneornil(state, position);
}

bool is_number_argument(lua_State* state, int position) {
    return lua_type(state, position) == LUA_TNUMBER;
}

int push(lua_State* state, std::string_view text) {
    lua_pushlstring(state, text.data(), text.size());
    return 1;
}

int push(lua_State* state, const std::string& text) {
    return push(state, std::string_view(text));
}

int push(lua_State* state, const char* text) {
    return push(state, std::string_view(text));
}

int push(lua_State* state, bool truth) {
    lua_pushboolean(state, truth ? 1 : 0);
    return 1;
}

int push(lua_State* state, int number) {
    lua_pushinteger(state, number);
    return 1;
}

int push(lua_State* state, double number) {
    constexpr double exact_whole = 9007199254740992.0; // 2^53
    if (std::trunc(number) == number && std::fabs(number) <= exact_whole)
        lua_pushinteger(state, static_cast<lua_Integer>(number));
    else
        lua_pushnumber(state, number);
    return 1;
}

int push_nothing(lua_State* state) {
    lua_pushnil(state);
    return 1;
}

int push(lua_State* state, const std::vector<std::string>& texts) {
    lua_createtable(state, static_cast<int>(texts.size()), 0);
    lua_Integer position = 0;
    for (const std::string& text : texts) {
        push(state, text);
        lua_rawseti(state, -2, ++position);
    }
    return 1;
}

int push(lua_State* state, widgets::Color color) {
    if (!color) return push(state, "");
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%06X", *color & 0xFFFFFFU);
    return push(state, text.data());
}

} // namespace levora::script
