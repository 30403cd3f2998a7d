#include "session/table_rows.h"

namespace levora::session {

RowSet open_rows(Session& session, const Attempt& attempt, const std::string& from, RowSetUse use) {
    session.SqlText = "Select * From " + from;
    return attempt([&] { return session.TaxDb.open_rows(session.SqlText, use); });
}

RowSet open_emptied(Session& session, const Attempt& attempt, const std::string& from) {
    session.SqlText = "Delete From " + from;
    attempt([&] { session.TaxDb.execute(session.SqlText); });
    return open_rows(session, attempt, from, RowSetUse::update);
}

} // namespace levora::session
