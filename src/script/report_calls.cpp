#include "script/report_calls.h"

#include "document/report.h"
#include "paper/report_paper.h"
#include "reports/preview_screens.h"
#include "script/lua_call.h"
#include "script/script_host.h"

#include <memory>

namespace levora::script {

namespace {

using document::Report;
using Shared = std::shared_ptr<Report>;

constexpr const char* report_type = "levora.report";

Report& self_report(lua_State* state) {
    auto* kept = static_cast<Shared*>(luaL_testudata(state, 1, report_type));
    if (!kept) throw ScriptError("a call of a report without its report: write report:call(...)");
    return **kept;
}

int text(lua_State* state) {
    return push(state, self_report(state).text(text_argument(state, 2)));
}

int suppressed(lua_State* state) {
    const Report& report = self_report(state);
    if (is_number_argument(state, 2)) return push(state, report.section_suppressed(whole_argument(state, 2)));
    return push(state, report.suppressed(text_argument(state, 2)));
}

int rows(lua_State* state) {
    const document::RowTable& table = self_report(state).rows(text_argument(state, 2));
    push_rows(state, table.columns, table.rows);
    return 1;
}

int save(lua_State* state) {
    paper::save_pdf(self_report(state), text_argument(state, 2));
    return 0;
}

constexpr luaL_Reg methods[] = {
    {"save", guarded<save>},
    {"text", guarded<text>},
    {"suppressed", guarded<suppressed>},
    {"rows", guarded<rows>},
};

struct ReportProperty {
    std::string_view name;
    int (*read)(lua_State* state, const Report& report);
};

constexpr ReportProperty properties[] = {
    {"name", [](lua_State* state, const Report& report) { return push(state, report.name()); }},
    {"caption", [](lua_State* state, const Report& report) { return push(state, report.caption); }},
    {"topmargin",
     [](lua_State* state, const Report& report) { return push(state, report.top_margin_twips); }},
    {"leftmargin",
     [](lua_State* state, const Report& report) { return push(state, report.left_margin_twips); }},
    {"copies", [](lua_State* state, const Report& report) { return push(state, report.copies); }},
    {"orientation",
     [](lua_State* state, const Report& report) { return push(state, name_of(report.orientation)); }},
    {"pages", [](lua_State* state, const Report& report) { return push(state, paper::page_count(report)); }},
    {"papersize",
     [](lua_State* state, const Report& report) { return push(state, name_of(report.paper_size)); }},
};

int index_report(lua_State* state) {
    const Report& report = self_report(state);
    const std::string key = text_argument(state, 2);
    for (const luaL_Reg& method : methods)
        if (key == method.name) {
            lua_pushcfunction(state, method.func);
            return 1;
        }
    for (const ReportProperty& property : properties)
        if (key == property.name) return property.read(state, report);
    throw ScriptError("a report has no \"" + key + "\"");
}

int drop_report(lua_State* state) {
    auto* kept = static_cast<Shared*>(luaL_testudata(state, 1, report_type));
    if (kept) kept->~Shared();
    return 0;
}

void push_report(lua_State* state, const Shared& report) {
    if (!report) {
        lua_pushnil(state);
        return;
    }
    void* place = lua_newuserdatauv(state, sizeof(Shared), 0);
    new (place) Shared(report);
    luaL_setmetatable(state, report_type);
}

int printed(lua_State* state) {
    lua_newtable(state);
    lua_Integer position = 0;
    for (const Shared& report : host_of(state).take_printed()) {
        push_report(state, report);
        lua_rawseti(state, -2, ++position);
    }
    return 1;
}

} // namespace

void push_previewed_report(lua_State* state) {
    const auto* preview =
        dynamic_cast<const reports::frmRepPreview*>(host_of(state).find_screen("frmRepPreview"));
    push_report(state, preview ? preview->report() : nullptr);
}

void open_report_calls(lua_State* state) {
    luaL_newmetatable(state, report_type);
    lua_pushcfunction(state, guarded<index_report>);
    lua_setfield(state, -2, "__index");
    lua_pushcfunction(state, guarded<drop_report>);
    lua_setfield(state, -2, "__gc");
    lua_pushliteral(state, "of the program");
    lua_setfield(state, -2, "__metatable");
    lua_pop(state, 1);
    lua_register(state, "printed", guarded<printed>);
}

} // namespace levora::script
