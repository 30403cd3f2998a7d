#pragma once

#include "session/data_store.h"
#include "widgets/control.h"

#include <lua.hpp>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace levora::script {

class ScriptHost;

// A mistake of the script; its text reaches the script as the error message.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Lua raises errors by jumping, which would leave C++ objects behind. So every function given to Lua
// is guarded<f>: f reports by exceptions only and calls nothing of Lua that jumps (no luaL_check...,
// no lua_error); when it failed, all its objects are gone before the error is raised.
using Body = int (*)(lua_State*);
bool run_guarded(lua_State* state, Body body, int& results); // false when it failed
int raise_error(lua_State* state);                           // the failure of run_guarded

template <Body body> int guarded(lua_State* state) {
    int results = 0;
    if (run_guarded(state, body, results)) return results;
    return raise_error(state);
}

ScriptHost& host_of(lua_State* state);
void set_host(lua_State* state, ScriptHost* host);

// Arguments by position from 1; a wrong one is a ScriptError that names it.
std::string text_argument(lua_State* state, int position); // a number too, plainly written
int whole_argument(lua_State* state, int position);
bool truth_argument(lua_State* state, int position); // a number too: 0 is false
bool is_given(lua_State* state, int position);       // neither missing nor nil
bool is_number_argument(lua_State* state, int position);

// Results; each returns 1, the count of its results.
int push(lua_State* state, std::string_view text);
int push(lua_State* state, const std::string& text);
int push(lua_State* state, const char* text);
int push(lua_State* state, bool truth);
int push(lua_State* state, int number);
int push(lua_State* state, double number); // a whole one as an integer
int push(lua_State* state, const std::vector<std::string>& texts);
int push_nothing(lua_State* state);               // nil
int push(lua_State* state, widgets::Color color); // "RRGGBB", "" for the default

// An array of tables by column name; a Null is absent.
void push_rows(lua_State* state, const std::vector<std::string>& columns,
               const std::vector<std::vector<session::Value>>& rows);

// Sets a field of the table on top of the stack.
template <class T> void set_field(lua_State* state, const char* name, const T& value) {
    push(state, value);
    lua_setfield(state, -2, name);
}

} // namespace levora::script
