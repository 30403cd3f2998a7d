#include "script/proxies.h"

#include "script/control_calls.h"
#include "script/lua_call.h"
#include "script/report_calls.h"
#include "script/script_host.h"
#include "widgets/fields.h"
#include "widgets/form.h"

namespace levora::script {

namespace {

using widgets::Control;
using widgets::ControlKind;
using widgets::Form;
using widgets::Tabs;

constexpr const char* screen_type = "levora.screen";
constexpr const char* control_type = "levora.control";

// The names live in the host, which outlives the proxies.
struct ScreenProxy {
    const std::string* screen;
};
struct ControlProxy {
    const std::string* screen;
    const std::string* control;
};

// luaL_testudata, with the metatable found by address: proxies are used in every call.
template <class T> const T* proxy_at(lua_State* state, int position, const void* type_key) {
    void* place = lua_touserdata(state, position);
    if (!place || lua_getmetatable(state, position) == 0) return nullptr;
    lua_rawgetp(state, LUA_REGISTRYINDEX, type_key);
    const bool same = lua_rawequal(state, -1, -2) != 0;
    lua_pop(state, 2);
    return same ? static_cast<const T*>(place) : nullptr;
}

const ScreenProxy& self_screen(lua_State* state) {
    const auto* proxy = proxy_at<ScreenProxy>(state, 1, screen_type);
    if (!proxy) throw ScriptError("a call of a screen without its screen: write screen:call(...)");
    return *proxy;
}

const ControlProxy& self_proxy(lua_State* state) {
    const auto* proxy = proxy_at<ControlProxy>(state, 1, control_type);
    if (!proxy) throw ScriptError("a call of a control without its control: write control:call(...)");
    return *proxy;
}

std::string full_name(const ControlProxy& proxy) {
    return *proxy.screen + "." + *proxy.control;
}

std::string_view key_argument(lua_State* state) {
    if (lua_type(state, 2) != LUA_TSTRING)
        throw ScriptError(std::string("a name expected, got ") + luaL_typename(state, 2));
    std::size_t length = 0;
    const char* key = lua_tolstring(state, 2, &length);
    return {key, length};
}

void push_proxy(lua_State* state, const void* type_key) {
    lua_rawgetp(state, LUA_REGISTRYINDEX, type_key);
    lua_setmetatable(state, -2);
}

// --- screens ---

int close_screen(lua_State* state) {
    ScriptHost& host = host_of(state);
    const std::string& name = *self_screen(state).screen;
    return push(state, host.screen(name).screens().close(name));
}

int press_screen_key(lua_State* state) {
    const std::string key = text_argument(state, 2);
    return push(state, host_of(state).screen(*self_screen(state).screen).press_key(key));
}

int screen_controls(lua_State* state) {
    std::vector<std::string> names;
    for (const Control* control : host_of(state).screen(*self_screen(state).screen).controls())
        names.push_back(control->name());
    return push(state, names);
}

// Pushes what a screen has under a name of its own; false when the name is none of these.
bool push_screen_property(lua_State* state, const std::string& screen, std::string_view key) {
    if (key == "close") {
        lua_pushcfunction(state, guarded<close_screen>);
    } else if (key == "key") {
        lua_pushcfunction(state, guarded<press_screen_key>);
    } else if (key == "controls") {
        lua_pushcfunction(state, guarded<screen_controls>);
    } else if (key == "loaded") {
        push(state, host_of(state).find_screen(screen) != nullptr);
    } else if (key == "visible" || key == "enabled") {
        const Form* form = host_of(state).find_screen(screen);
        push(state, form && (key == "visible" ? form->visible() : form->enabled()));
    } else if (key == "caption") {
        push(state, host_of(state).screen(screen).caption());
    } else if (screen == "frmRepPreview" && key == "report") {
        push_previewed_report(state);
    } else {
        return false;
    }
    return true;
}

int index_screen(lua_State* state) {
    const ScreenProxy& proxy = self_screen(state);
    const std::string_view key = key_argument(state);
    if (push_screen_property(state, *proxy.screen, key)) return 1;
    const Control& control = host_of(state).control(*proxy.screen, key);
    lua_getiuservalue(state, 1, 1);
    lua_pushvalue(state, 2);
    if (lua_rawget(state, -2) != LUA_TNIL) return 1;
    lua_pop(state, 1);
    auto* made = static_cast<ControlProxy*>(lua_newuserdatauv(state, sizeof(ControlProxy), 0));
    *made = {proxy.screen, &host_of(state).kept_name(control.name())};
    push_proxy(state, control_type);
    lua_pushvalue(state, 2);
    lua_pushvalue(state, -2);
    lua_rawset(state, -4);
    return 1;
}

int assign_to_screen(lua_State* state) {
    const ScreenProxy& proxy = self_screen(state);
    throw ScriptError(*proxy.screen + "." + std::string(key_argument(state)) + " can't be assigned to");
}

int name_screen(lua_State* state) {
    return push(state, *self_screen(state).screen);
}

// A global that the script has not set: a screen, or nil.
int index_globals(lua_State* state) {
    if (lua_type(state, 2) != LUA_TSTRING) return push_nothing(state);
    const std::string_view key = key_argument(state);
    ScriptHost& host = host_of(state);
    if (!host.is_screen(key)) return push_nothing(state);
    lua_pushvalue(state, 2);
    if (lua_rawget(state, lua_upvalueindex(1)) != LUA_TNIL) return 1;
    lua_pop(state, 1);
    auto* made = static_cast<ScreenProxy*>(lua_newuserdatauv(state, sizeof(ScreenProxy), 1));
    *made = {&host.kept_name(key)};
    push_proxy(state, screen_type);
    lua_newtable(state);
    lua_setiuservalue(state, -2, 1);
    lua_pushvalue(state, 2);
    lua_pushvalue(state, -2);
    lua_rawset(state, lua_upvalueindex(1));
    return 1;
}

// --- controls ---

int index_control(lua_State* state) {
    const ControlProxy& proxy = self_proxy(state);
    const std::string_view key = key_argument(state);
    const Control& control = host_of(state).control(*proxy.screen, *proxy.control);
    if (const Method* method = find_method(control, key)) {
        lua_pushcfunction(state, method->function);
        return 1;
    }
    if (const Property* property = find_property(control, key)) return property->read(state, control);
    throw ScriptError(full_name(proxy) + ": this kind of control has no \"" + std::string(key) + "\"");
}

int assign_to_control(lua_State* state) {
    const ControlProxy& proxy = self_proxy(state);
    const std::string_view key = key_argument(state);
    Control& control = host_of(state).control(*proxy.screen, *proxy.control);
    const Property* property = find_property(control, key);
    if (!property || !property->write)
        throw ScriptError(full_name(proxy) + "." + std::string(key) + " can't be assigned to");
    property->write(state, control);
    return 0;
}

int name_control(lua_State* state) {
    return push(state, full_name(self_proxy(state)));
}

// Tabs have `.enabled` of the whole control and `:enabled(i)` of one tab, and so with `visible`. The
// property gives the truth value, and calling a truth value means the tab: the name of the call says
// which of the two was read.
int call_truth_value(lua_State* state) {
    lua_Debug call;
    const bool named = lua_getstack(state, 0, &call) != 0 && lua_getinfo(state, "n", &call) != 0 && call.name;
    const std::string_view name = named ? call.name : "";
    const auto* proxy = proxy_at<ControlProxy>(state, 2, control_type);
    if (!proxy || (name != "enabled" && name != "visible"))
        throw ScriptError("attempt to call a boolean value");
    const Control& control = host_of(state).control(*proxy->screen, *proxy->control);
    if (control.kind() != ControlKind::tabs)
        throw ScriptError(full_name(*proxy) + "." + std::string(name) +
                          " is no call of this kind of control");
    const auto& tabs = static_cast<const Tabs&>(control);
    const int tab = whole_argument(state, 3);
    return push(state, name == "enabled" ? tabs.tab_enabled(tab) : tabs.tab_visible(tab));
}

void make_type(lua_State* state, const void* key, lua_CFunction index, lua_CFunction assign,
               lua_CFunction name) {
    lua_createtable(state, 0, 4);
    lua_pushcfunction(state, index);
    lua_setfield(state, -2, "__index");
    lua_pushcfunction(state, assign);
    lua_setfield(state, -2, "__newindex");
    lua_pushcfunction(state, name);
    lua_setfield(state, -2, "__tostring");
    lua_pushliteral(state, "of the program");
    lua_setfield(state, -2, "__metatable");
    lua_rawsetp(state, LUA_REGISTRYINDEX, key);
}

} // namespace

widgets::Control& self_control(lua_State* state) {
    const ControlProxy& proxy = self_proxy(state);
    return host_of(state).control(*proxy.screen, *proxy.control);
}

void open_proxies(lua_State* state) {
    make_type(state, screen_type, guarded<index_screen>, guarded<assign_to_screen>, guarded<name_screen>);
    make_type(state, control_type, guarded<index_control>, guarded<assign_to_control>, guarded<name_control>);

    lua_pushboolean(state, 1);
    lua_createtable(state, 0, 1);
    lua_pushcfunction(state, guarded<call_truth_value>);
    lua_setfield(state, -2, "__call");
    lua_setmetatable(state, -2);
    lua_pop(state, 1);

    lua_pushglobaltable(state);
    lua_createtable(state, 0, 1);
    lua_newtable(state); // proxies made so far
    lua_pushcclosure(state, guarded<index_globals>, 1);
    lua_setfield(state, -2, "__index");
    lua_setmetatable(state, -2);
    lua_pop(state, 1);
}

} // namespace levora::script
