#include "script/control_calls.h"
#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"
#include "widgets/utf8.h"

namespace levora::script {

using namespace widgets;

namespace {

constexpr Property properties[] = {
    {"rows", [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).rows()); }},
    {"cols",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).columns()); }},
    {"datarows",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).data_rows()); }},
    {"datacols",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).data_columns()); }},
    {"activecol",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).active_column()); }},
    {"activerow",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).active_row()); }},
    {"changed",
     [](lua_State* state, const Control& control) { return push(state, as<Grid>(control).changed()); }},
};

// The column and row that a call names behind its grid.
struct Cell {
    explicit Cell(lua_State* state) : column(whole_argument(state, 2)), row(whole_argument(state, 3)) {}
    int column;
    int row;
};

// --- reading ---

int text(lua_State* state, Grid& grid) {
    const Cell at(state);
    if (at.row == 0) return push(state, grid.header(at.column));
    if (at.column == 0) return push(state, grid.row_header(at.row));
    return push(state, grid.text(at.column, at.row));
}

int value(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.value(at.column, at.row));
}

int kind(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, name_of(grid.cell_kind(at.column, at.row)));
}

int locked(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.cell_locked(at.column, at.row));
}

int backcolor(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.cell_backcolor(at.column, at.row));
}

int note(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.note(at.column, at.row));
}

int items(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.design(at.column, at.row).items);
}

int index(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.index(at.column, at.row));
}

int header(lua_State* state, Grid& grid) {
    return push(state, grid.header(whole_argument(state, 2)));
}

int row_header(lua_State* state, Grid& grid) {
    return push(state, grid.row_header(whole_argument(state, 2)));
}

int hidden(lua_State* state, Grid& grid) {
    return push(state, grid.hidden(whole_argument(state, 2)));
}

// --- what a person does ---

int go(lua_State* state, Grid& grid) {
    const Cell at(state);
    grid.set_active(at.column, at.row);
    grid.form().set_active_control(&grid);
    return push(state, true);
}

int type(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.type(at.column, at.row, text_argument(state, 4)));
}

int choose(lua_State* state, Grid& grid) {
    const Cell at(state);
    if (is_number_argument(state, 4))
        return push(state, grid.choose(at.column, at.row, whole_argument(state, 4)));
    return push(state, grid.choose(at.column, at.row, text_argument(state, 4)));
}

int check(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.check(at.column, at.row, truth_argument(state, 4)));
}

int press(lua_State* state, Grid& grid) {
    const Cell at(state);
    return push(state, grid.press(at.column, at.row));
}

int key(lua_State* state, Grid& grid) {
    grid.press_key(text_argument(state, 2));
    return 0;
}

int character(lua_State* state, Grid& grid) {
    const std::string typed = text_argument(state, 2);
    std::string_view rest = typed;
    if (rest.empty()) throw ScriptError("argument 2: one character expected, got an empty text");
    const char32_t one = take_character(rest);
    if (!rest.empty()) throw ScriptError("argument 2: one character expected, got \"" + typed + "\"");
    grid.type_character(one);
    return 0;
}

int advance(lua_State* /*state*/, Grid& grid) {
    grid.advance();
    return 0;
}

int right_click(lua_State* state, Grid& grid) {
    const Menu* menu = grid.right_click();
    if (!menu) return push_nothing(state);
    return push(state, menu->name());
}

constexpr Method methods[] = {
    {"text", control_method<Grid, text>},
    {"type", control_method<Grid, type>},
    {"value", control_method<Grid, value>},
    {"kind", control_method<Grid, kind>},
    {"locked", control_method<Grid, locked>},
    {"backcolor", control_method<Grid, backcolor>},
    {"note", control_method<Grid, note>},
    {"items", control_method<Grid, items>},
    {"index", control_method<Grid, index>},
    {"header", control_method<Grid, header>},
    {"rowheader", control_method<Grid, row_header>},
    {"hidden", control_method<Grid, hidden>},
    {"go", control_method<Grid, go>},
    {"choose", control_method<Grid, choose>},
    {"check", control_method<Grid, check>},
    {"press", control_method<Grid, press>},
    {"key", control_method<Grid, key>},
    {"char", control_method<Grid, character>},
    {"advance", control_method<Grid, advance>},
    {"rightclick", control_method<Grid, right_click>},
};

} // namespace

KindCalls grid_calls() {
    return {properties, methods};
}

} // namespace levora::script
