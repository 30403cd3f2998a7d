#include "session/unread_rows.h"

#include "session/common_services.h"
#include "session/store_tables.h"
#include "widgets/value_text.h"

#include <algorithm>

namespace levora::session {

namespace {

using widgets::Answer;

// The first column that a store's table lacks; without it no row can be saved there.
std::string missing_column(const RowSet& rows, std::string_view table) {
    for (const ColumnRule& each : find_table(Store::tax, table)->columns)
        if (std::ranges::none_of(rows.columns(),
                                 [&](const auto& name) { return equal_without_case(name, each.name); }))
            return std::string(each.name);
    return {};
}

struct Found {
    bool has_rows = false;
    std::string missing_column;
};

Found look_at(Session& session, const UnreadTable& table) {
    constexpr int wrong_statement = 1; // of the engine: no such table, no such column
    try {
        const RowSet rows =
            session.TaxDb.open_rows("Select * From [" + std::string(table.name) + "] Where " + table.key);
        if (rows.eof()) return {};
        return {true, missing_column(rows, table.name)};
    } catch (const Failure& failure) {
        // A table that is not there, or has no such key, loses nothing: the save's own report tells it.
        if (failure.number != wrong_statement) throw;
        return {};
    }
}

OverUnread tell_missing_column(Session& session, std::string_view table, const std::string& column) {
    const auto answer = session.desk.show_message(
        {.text = "Nothing can be saved: table \"" + std::string(table) + "\" lacks the column \"" + column +
                 "\".\nOK - To leave without saving\nCancel - To stay here",
         .title = "Levora Wealth Tax",
         .icon = widgets::Icon::exclamation,
         .buttons = {Answer::ok, Answer::cancel}});
    return answer == Answer::ok ? OverUnread::leave : OverUnread::stay;
}

OverUnread ask(Session& session, const std::vector<UnreadTable>& tables) {
    std::string names;
    for (const UnreadTable& each : tables) {
        const Found found = look_at(session, each);
        if (!found.missing_column.empty())
            return tell_missing_column(session, each.name, found.missing_column);
        if (found.has_rows) names += (names.empty() ? "" : ", ") + std::string(each.name);
    }
    return names.empty() ? OverUnread::save : ask_over_unread(session, "The stored rows of " + names);
}

} // namespace

OverUnread ask_over_unread(Session& session, std::string_view name, const std::vector<UnreadTable>& tables) {
    OverUnread choice = OverUnread::leave; // where the store can't tell, and its report was dismissed
    procedure(session, name,
              [&](const Attempt& attempt) { choice = attempt([&] { return ask(session, tables); }); });
    return choice;
}

OverUnread ask_over_unread(Session& session, const std::string& name) {
    const auto answer = session.desk.show_message(
        {.text = name +
                 " were not read and would be lost by saving. Replace them by what is on the screen ?\n"
                 "Yes - To save what is on the screen\n"
                 "No - To keep what is stored and leave without saving",
         .title = "Levora Wealth Tax",
         .icon = widgets::Icon::question,
         .buttons = {Answer::yes, Answer::no}});
    if (!answer) return OverUnread::stay;
    return answer == Answer::yes ? OverUnread::save : OverUnread::leave;
}

} // namespace levora::session
