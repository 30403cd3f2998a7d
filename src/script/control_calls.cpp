#include "script/control_calls.h"

#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/typed_control.h"

namespace levora::script {

using namespace widgets;

namespace {

constexpr int value_position = 3; // of an assignment

// --- every control ---

constexpr Property common_properties[] = {
    {"enabled", [](lua_State* state, const Control& control) { return push(state, control.enabled()); }},
    {"visible", [](lua_State* state, const Control& control) { return push(state, control.visible()); }},
    {"backcolor", [](lua_State* state, const Control& control) { return push(state, control.backcolor()); }},
    {"forecolor", [](lua_State* state, const Control& control) { return push(state, control.forecolor()); }},
    {"tooltip", [](lua_State* state, const Control& control) { return push(state, control.tooltip()); }},
    {"tag", [](lua_State* state, const Control& control) { return push(state, control.tag); }},
};

int enter(lua_State* state, Control& control) {
    return push(state, control.enter());
}
int leave(lua_State* state, Control& control) {
    return push(state, control.leave());
}

constexpr Method common_methods[] = {
    {"enter", control_method<Control, enter>},
    {"leave", control_method<Control, leave>},
};

// --- fields of text ---

constexpr Property text_field_properties[] = {
    {"text",
     [](lua_State* state, const Control& control) { return push(state, as<TextField>(control).text()); },
     [](lua_State* state, Control& control) {
         as<TextField>(control).set_text(text_argument(state, value_position));
     }},
    {"locked",
     [](lua_State* state, const Control& control) { return push(state, as<TextField>(control).locked()); }},
    {"maxlength", [](lua_State* state,
                     const Control& control) { return push(state, as<TextField>(control).max_length()); }},
};

int type_text(lua_State* state, TextField& field) {
    return push(state, field.type(text_argument(state, 2)));
}

constexpr Method text_field_methods[] = {{"type", control_method<TextField, type_text>}};

constexpr Property masked_field_properties[] = {
    {"text",
     [](lua_State* state, const Control& control) { return push(state, as<MaskedField>(control).text()); },
     [](lua_State* state, Control& control) {
         as<MaskedField>(control).set_text(text_argument(state, value_position));
     }},
    {"mask",
     [](lua_State* state, const Control& control) { return push(state, as<MaskedField>(control).mask()); }},
    {"locked",
     [](lua_State* state, const Control& control) { return push(state, as<MaskedField>(control).locked()); }},
};

int type_masked(lua_State* state, MaskedField& field) {
    return push(state, field.type(text_argument(state, 2)));
}

constexpr Method masked_field_methods[] = {{"type", control_method<MaskedField, type_masked>}};

// --- lists ---

constexpr Property list_field_properties[] = {
    {"text",
     [](lua_State* state, const Control& control) { return push(state, as<ListField>(control).text()); },
     [](lua_State* state, Control& control) {
         as<ListField>(control).set_text(text_argument(state, value_position));
     }},
    {"index",
     [](lua_State* state, const Control& control) { return push(state, as<ListField>(control).index()); },
     [](lua_State* state, Control& control) {
         as<ListField>(control).set_index(whole_argument(state, value_position));
     }},
    {"items",
     [](lua_State* state, const Control& control) { return push(state, as<ListField>(control).items()); }},
    {"locked",
     [](lua_State* state, const Control& control) { return push(state, as<ListField>(control).locked()); }},
};

int choose_item(lua_State* state, ListField& list) {
    if (is_number_argument(state, 2)) return push(state, list.choose(whole_argument(state, 2)));
    return push(state, list.choose(text_argument(state, 2)));
}
int type_item(lua_State* state, ListField& list) {
    return push(state, list.type(text_argument(state, 2)));
}

constexpr Method list_field_methods[] = {
    {"choose", control_method<ListField, choose_item>},
    {"type", control_method<ListField, type_item>},
};

int push_column_items(lua_State* state, const Control& control) {
    const auto& list = as<ColumnList>(control);
    std::vector<std::string> items;
    items.reserve(static_cast<std::size_t>(list.count()));
    for (int row = 0; row < list.count(); ++row)
        items.push_back(list.cell(row, 0));
    return push(state, items);
}

constexpr Property column_list_properties[] = {
    {"text",
     [](lua_State* state, const Control& control) { return push(state, as<ColumnList>(control).text()); },
     [](lua_State* state, Control& control) {
         as<ColumnList>(control).set_text(text_argument(state, value_position));
     }},
    {"index",
     [](lua_State* state, const Control& control) { return push(state, as<ColumnList>(control).index()); },
     [](lua_State* state, Control& control) {
         as<ColumnList>(control).set_index(whole_argument(state, value_position));
     }},
    {"items", push_column_items},
    {"count",
     [](lua_State* state, const Control& control) { return push(state, as<ColumnList>(control).count()); }},
};

int choose_row(lua_State* state, ColumnList& list) {
    if (is_number_argument(state, 2)) return push(state, list.choose(whole_argument(state, 2)));
    return push(state, list.choose(text_argument(state, 2)));
}
int list_cell(lua_State* state, ColumnList& list) {
    return push(state, list.cell(whole_argument(state, 2), whole_argument(state, 3)));
}
// It can't be typed in.
int type_nothing(lua_State* state, ColumnList& /*list*/) {
    return push(state, false);
}

constexpr Method column_list_methods[] = {
    {"choose", control_method<ColumnList, choose_row>},
    {"cell", control_method<ColumnList, list_cell>},
    {"type", control_method<ColumnList, type_nothing>},
};

// --- ticks, options, buttons ---

constexpr Property tick_box_properties[] = {
    {"value",
     [](lua_State* state, const Control& control) { return push(state, as<TickBox>(control).value()); },
     [](lua_State* state, Control& control) {
         as<TickBox>(control).set_value(truth_argument(state, value_position) ? 1 : 0);
     }},
    {"caption",
     [](lua_State* state, const Control& control) { return push(state, as<TickBox>(control).caption()); }},
};

constexpr Property option_properties[] = {
    {"value",
     [](lua_State* state, const Control& control) { return push(state, as<OptionButton>(control).value()); },
     [](lua_State* state, Control& control) {
         as<OptionButton>(control).set_value(truth_argument(state, value_position));
     }},
    {"caption", [](lua_State* state,
                   const Control& control) { return push(state, as<OptionButton>(control).caption()); }},
};

constexpr Property button_properties[] = {
    {"caption",
     [](lua_State* state, const Control& control) { return push(state, as<Button>(control).caption()); }},
};

template <class T> int click(lua_State* state, T& control) {
    return push(state, control.click());
}

constexpr Method tick_box_methods[] = {{"click", control_method<TickBox, click<TickBox>>}};
constexpr Method option_methods[] = {{"click", control_method<OptionButton, click<OptionButton>>}};
constexpr Method button_methods[] = {{"click", control_method<Button, click<Button>>}};

// --- captions only ---

template <class T>
constexpr Property caption_property = {"caption", [](lua_State* state, const Control& control) {
                                           return push(state, as<T>(control).caption());
                                       }};

constexpr Property label_properties[] = {caption_property<Label>};
constexpr Property frame_properties[] = {caption_property<Frame>};
constexpr Property menu_properties[] = {caption_property<Menu>};

// --- tabs and timers ---

constexpr Property tabs_properties[] = {
    {"tab", [](lua_State* state, const Control& control) { return push(state, as<Tabs>(control).tab()); },
     [](lua_State* state, Control& control) {
         as<Tabs>(control).set_tab(whole_argument(state, value_position));
     }},
};

int choose_tab(lua_State* state, Tabs& tabs) {
    return push(state, tabs.choose(whole_argument(state, 2)));
}
int tab_caption(lua_State* state, Tabs& tabs) {
    return push(state, tabs.caption(whole_argument(state, 2)));
}

constexpr Method tabs_methods[] = {
    {"choose", control_method<Tabs, choose_tab>},
    {"caption", control_method<Tabs, tab_caption>},
};

constexpr Property timer_properties[] = {
    {"running",
     [](lua_State* state, const Control& control) { return push(state, as<Timer>(control).running()); }},
};

int tick(lua_State* state, Timer& timer) {
    return push(state, timer.tick());
}

int spin_up(lua_State* state, SpinButtons& buttons) {
    return push(state, buttons.up());
}
int spin_down(lua_State* state, SpinButtons& buttons) {
    return push(state, buttons.down());
}

constexpr Method spin_buttons_methods[] = {
    {"up", control_method<SpinButtons, spin_up>},
    {"down", control_method<SpinButtons, spin_down>},
};

constexpr Method timer_methods[] = {{"tick", control_method<Timer, tick>}};

KindCalls calls_of(ControlKind kind) {
    switch (kind) {
    case ControlKind::text_field:
        return {text_field_properties, text_field_methods};
    case ControlKind::masked_field:
        return {masked_field_properties, masked_field_methods};
    case ControlKind::list_field:
        return {list_field_properties, list_field_methods};
    case ControlKind::column_list:
        return {column_list_properties, column_list_methods};
    case ControlKind::tick_box:
        return {tick_box_properties, tick_box_methods};
    case ControlKind::option:
        return {option_properties, option_methods};
    case ControlKind::button:
    case ControlKind::menu_item:
        return {button_properties, button_methods};
    case ControlKind::menu:
        return {menu_properties, {}};
    case ControlKind::label:
        return {label_properties, {}};
    case ControlKind::frame:
        return {frame_properties, {}};
    case ControlKind::tabs:
        return {tabs_properties, tabs_methods};
    case ControlKind::timer:
        return {timer_properties, timer_methods};
    case ControlKind::spin_buttons:
        return {{}, spin_buttons_methods};
    case ControlKind::grid:
        return grid_calls();
    }
    return {};
}

template <class Entry> const Entry* find_entry(std::span<const Entry> entries, std::string_view name) {
    for (const Entry& entry : entries)
        if (entry.name == name) return &entry;
    return nullptr;
}

} // namespace

const Property* find_property(const Control& control, std::string_view name) {
    if (const Property* own = find_entry(calls_of(control.kind()).properties, name)) return own;
    return find_entry<Property>(common_properties, name);
}

const Method* find_method(const Control& control, std::string_view name) {
    if (const Method* own = find_entry(calls_of(control.kind()).methods, name)) return own;
    return find_entry<Method>(common_methods, name);
}

void throw_wrong_self(const Control& control) {
    throw ScriptError(control.form().name() + "." + control.name() + ": a call of another kind of control");
}

} // namespace levora::script
