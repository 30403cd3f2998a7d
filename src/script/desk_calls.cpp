#include "script/lua_call.h"
#include "script/run_calls.h"
#include "script/script_host.h"
#include "widgets/headless_desk.h"

#include <algorithm>

namespace levora::script {

using namespace widgets;

namespace {

// Pushes an array of tables, one for each item, filled by `fill` with the table on top of the stack.
template <class Items, class Fill> int push_tables(lua_State* state, const Items& items, Fill fill) {
    lua_createtable(state, static_cast<int>(items.size()), 0);
    lua_Integer position = 0;
    for (const auto& item : items) {
        lua_newtable(state);
        fill(item);
        lua_rawseti(state, -2, ++position);
    }
    return 1;
}

// --- message boxes ---

int answer(lua_State* state) {
    HeadlessDesk& desk = host_of(state).desk;
    const int count = lua_gettop(state);
    if (count == 0) desk.clear_answers();
    std::vector<std::optional<Answer>> answers;
    for (int position = 1; position <= count; ++position) {
        const std::string caption = text_argument(state, position);
        const std::optional<Answer> one = answer_of(caption);
        if (!one && caption != "close") throw ScriptError("answer: no button is named \"" + caption + "\"");
        answers.push_back(one);
    }
    for (const std::optional<Answer>& one : answers)
        desk.queue_answer(one);
    return 0;
}

bool offers(const MessageBox& box, Answer answer) {
    return std::find(box.buttons.begin(), box.buttons.end(), answer) != box.buttons.end();
}

// What the box came to: the button, or of a dismissed question what that counts as; nothing for any
// other dismissed box.
std::optional<Answer> outcome(const HeadlessDesk::ShownMessage& shown) {
    if (shown.answer) return shown.answer;
    const bool question = shown.box.icon == Icon::question || offers(shown.box, Answer::yes);
    if (!question) return std::nullopt;
    if (offers(shown.box, Answer::cancel)) return Answer::cancel;
    if (offers(shown.box, Answer::no)) return Answer::no;
    return std::nullopt;
}

int messages(lua_State* state) {
    return push_tables(state, host_of(state).desk.take_messages(),
                       [state](const HeadlessDesk::ShownMessage& shown) {
                           set_field(state, "title", shown.box.title);
                           set_field(state, "text", shown.box.text);
                           set_field(state, "icon", name_of(shown.box.icon));
                           std::vector<std::string> buttons;
                           for (const Answer button : shown.box.buttons)
                               buttons.push_back(caption_of(button));
                           set_field(state, "buttons", buttons);
                           if (const std::optional<Answer> given = outcome(shown))
                               set_field(state, "answer", caption_of(*given));
                       });
}

// --- dialogs and outside programs ---

int choose_file(lua_State* state) {
    HeadlessDesk& desk = host_of(state).desk;
    if (is_given(state, 1))
        desk.queue_file(text_argument(state, 1));
    else
        desk.clear_files();
    return 0;
}

int dialogs(lua_State* state) {
    return push_tables(state, host_of(state).desk.take_dialogs(), [state](const FileDialog& dialog) {
        set_field(state, "kind", dialog.kind == FileDialogKind::open ? "open" : "save");
        set_field(state, "title", dialog.title);
        set_field(state, "folder", dialog.folder);
        set_field(state, "name", dialog.name);
        set_field(state, "filter", dialog.filter);
        set_field(state, "extension", dialog.extension);
    });
}

int choose_printer(lua_State* state) {
    HeadlessDesk& desk = host_of(state).desk;
    if (is_given(state, 1) && truth_argument(state, 1))
        desk.queue_printer();
    else
        desk.clear_printers();
    return 0;
}

const char* style_name(ProgramWindow window) {
    switch (window) {
    case ProgramWindow::minimized:
        return "minimized";
    case ProgramWindow::maximized:
        return "maximized";
    case ProgramWindow::normal:
        break;
    }
    return "normal";
}

int started(lua_State* state) {
    return push_tables(state, host_of(state).desk.take_started(),
                       [state](const HeadlessDesk::StartedProgram& program) {
                           set_field(state, "command", program.line);
                           set_field(state, "style", style_name(program.window));
                       });
}

// --- printed grids ---

int sheets(lua_State* state) {
    return push_tables(state, host_of(state).desk.take_sheets(), [state](const HeadlessDesk::Sheet& sheet) {
        set_field(state, "grid", sheet.grid);
        set_field(state, "header", sheet.header);
        set_field(state, "footer", sheet.footer);
        set_field(state, "marginleft", sheet.margin_left);
        set_field(state, "margintop", sheet.margin_top);
        set_field(state, "preview", sheet.preview);
        lua_createtable(state, static_cast<int>(sheet.cells.size()), 0);
        lua_Integer row = 0;
        for (const std::vector<std::string>& cells : sheet.cells) {
            push(state, cells);
            lua_rawseti(state, -2, ++row);
        }
        lua_setfield(state, -2, "cells");
    });
}

constexpr luaL_Reg calls[] = {
    {"answer", guarded<answer>},
    {"messages", guarded<messages>},
    {"choose_file", guarded<choose_file>},
    {"dialogs", guarded<dialogs>},
    {"choose_printer", guarded<choose_printer>},
    {"started", guarded<started>},
    {"sheets", guarded<sheets>},
};

} // namespace

void open_desk_calls(lua_State* state) {
    for (const luaL_Reg& call : calls)
        lua_register(state, call.name, call.func);
}

} // namespace levora::script
