#pragma once

#include <lua.hpp>

namespace levora::script {

void open_report_calls(lua_State* state);

// The report in the preview, nil when there is none.
void push_previewed_report(lua_State* state);

} // namespace levora::script
