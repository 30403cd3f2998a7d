#include "schedules/asset_schedule.h"

#include "session/table_rows.h"

namespace levora::schedules {

std::string year_key(const session::Session& session) {
    return "AssesseeNo = " + session.assessee_text() + " And FY = '" + session.CurrentFY + "'";
}

std::string asset_key(const session::Session& session) {
    return year_key(session) + " And AssetType = " + std::to_string(session.asset_type());
}

std::string property_key(const session::Session& session, int property_no) {
    return asset_key(session) + " And PropertyNo = " + std::to_string(property_no);
}

void set_asset_key(session::RowSet& record, const session::Session& session) {
    record.set("AssesseeNo", session.AssesseeNo);
    record.set("FY", session.CurrentFY);
    record.set("AssetType", session.asset_type());
}

session::RowSet open_or_add(session::Session& session, const session::Attempt& attempt,
                            const std::string& from) {
    session::RowSet record = open_rows(session, attempt, from, session::RowSetUse::update);
    if (record.eof()) {
        record.add_new();
        set_asset_key(record, session);
    }
    return record;
}

} // namespace levora::schedules
