#pragma once

#include "script/lua_call.h"
#include "widgets/control.h"

#include <span>
#include <string_view>

namespace levora::script {

// What a script reads, and may assign, of a control of one kind.
struct Property {
    std::string_view name;
    int (*read)(lua_State* state, const widgets::Control& control);
    // The value stands at position 3; null when a script can't assign it.
    void (*write)(lua_State* state, widgets::Control& control) = nullptr;
};

struct Method {
    std::string_view name;
    lua_CFunction function;
};

// All calls of one kind of control beside those that every control has.
struct KindCalls {
    std::span<const Property> properties;
    std::span<const Method> methods;
};

// The calls in the name of what a script sees; null when the control has none of this name.
const Property* find_property(const widgets::Control& control, std::string_view name);
const Method* find_method(const widgets::Control& control, std::string_view name);

KindCalls grid_calls();

// The control that a method was called on, found by name; its arguments start at position 2.
widgets::Control& self_control(lua_State* state);
[[noreturn]] void throw_wrong_self(const widgets::Control& control);

// Makes a method of a function (lua_State*, T&): the control is looked up and must be of that kind.
template <class T> using ControlBody = int (*)(lua_State* state, T& control);

template <class T, ControlBody<T> body> int control_method_body(lua_State* state) {
    widgets::Control& control = self_control(state);
    T* self = dynamic_cast<T*>(&control);
    if (!self) throw_wrong_self(control);
    return body(state, *self);
}

template <class T, ControlBody<T> body>
constexpr lua_CFunction control_method = // see guarded
    &guarded<&control_method_body<T, body>>;

} // namespace levora::script
