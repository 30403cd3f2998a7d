#pragma once

#include <lua.hpp>

namespace levora::script {

// Makes every screen a global under its own name. A screen's and a control's proxy hold names only,
// so that they stay good over a reload.
void open_proxies(lua_State* state);

} // namespace levora::script
