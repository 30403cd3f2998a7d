#pragma once

#include <lua.hpp>

namespace levora::script {

// The calls that are globals: the run itself, and what the program asks and tells.
void open_run_calls(lua_State* state);
void open_desk_calls(lua_State* state);

} // namespace levora::script
