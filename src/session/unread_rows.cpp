#include "session/unread_rows.h"

#include "session/common_services.h"
#include "session/store_tables.h"
#include "widgets/value_text.h"

#include <algorithm>

namespace levora::session {

namespace {

using widgets::Answer;

// True when there is something to lose. A table in which no row could be saved fails here as the save
// would, which deletes the old rows first.
bool has_rows(Session& session, const UnreadTable& table) {
    const RowSet rows =
        session.TaxDb.open_rows("Select * From [" + std::string(table.name) + "] Where " + table.key);
    if (rows.eof()) return false;
    for (const ColumnRule& each : find_table(Store::tax, table.name)->columns)
        if (std::ranges::none_of(rows.columns(),
                                 [&](const auto& name) { return equal_without_case(name, each.name); }))
            (void)rows[each.name];
    return true;
}

} // namespace

OverUnread ask_over_unread(Session& session, const std::vector<UnreadTable>& tables) {
    std::string names;
    for (const UnreadTable& each : tables)
        if (has_rows(session, each)) names += (names.empty() ? "" : ", ") + std::string(each.name);
    return names.empty() ? OverUnread::save : ask_over_unread(session, "The stored rows of " + names);
}

OverUnread ask_over_unread(Session& session, std::string_view name, const std::vector<UnreadTable>& tables) {
    OverUnread choice = OverUnread::leave; // where the store can't tell, and its report was dismissed
    procedure(session, name, [&](const Attempt& attempt) {
        choice = attempt([&] { return ask_over_unread(session, tables); });
    });
    return choice;
}

bool saves_over_unread(Session& session, std::string_view name, const std::vector<UnreadTable>& tables,
                       const std::function<void()>& leave) {
    const OverUnread choice = ask_over_unread(session, name, tables);
    if (choice == OverUnread::leave) leave();
    return choice == OverUnread::save;
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
