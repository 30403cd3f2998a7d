#pragma once

#include "widgets/control.h"

#include <concepts>
#include <type_traits>

namespace levora::widgets {

// A control that was found by its name, as the class that its kind stands for. The kind is looked at
// first, which costs next to nothing, so that no control is ever taken for another.

template <ControlKind kind> using Kind = std::integral_constant<ControlKind, kind>;
template <class T> struct KindOf;
template <> struct KindOf<class TextField> : Kind<ControlKind::text_field> {};
template <> struct KindOf<class MaskedField> : Kind<ControlKind::masked_field> {};
template <> struct KindOf<class ListField> : Kind<ControlKind::list_field> {};
template <> struct KindOf<class ColumnList> : Kind<ControlKind::column_list> {};
template <> struct KindOf<class TickBox> : Kind<ControlKind::tick_box> {};
template <> struct KindOf<class OptionButton> : Kind<ControlKind::option> {};
template <> struct KindOf<class Button> : Kind<ControlKind::button> {};
template <> struct KindOf<class Menu> : Kind<ControlKind::menu> {};
template <> struct KindOf<class MenuItem> : Kind<ControlKind::menu_item> {};
template <> struct KindOf<class Label> : Kind<ControlKind::label> {};
template <> struct KindOf<class Frame> : Kind<ControlKind::frame> {};
template <> struct KindOf<class Tabs> : Kind<ControlKind::tabs> {};
template <> struct KindOf<class Timer> : Kind<ControlKind::timer> {};
template <> struct KindOf<class SpinButtons> : Kind<ControlKind::spin_buttons> {};
template <> struct KindOf<class Grid> : Kind<ControlKind::grid> {};

template <class T> bool is_a(const Control& control) {
    if constexpr (std::same_as<T, Button>)
        if (control.kind() == ControlKind::menu_item) return true; // a button in a menu
    return control.kind() == KindOf<T>::value;
}

template <class T, class From> using SameConst = std::conditional_t<std::is_const_v<From>, const T, T>;

// Null where there is no control, or it is of another class.
template <class T, std::derived_from<Control> From> SameConst<T, From>* as_if(From* control) {
    return control && is_a<T>(*control) ? static_cast<SameConst<T, From>*>(control) : nullptr;
}

[[noreturn]] void throw_other_kind(const Control& control);

// Where another class would be a fault of this program: a std::logic_error that names the control.
template <class T, std::derived_from<Control> From> SameConst<T, From>& as(From& control) {
    if (!is_a<T>(control)) throw_other_kind(control);
    return static_cast<SameConst<T, From>&>(control);
}

} // namespace levora::widgets
