#include "schedules/asset_schedule.h"

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

} // namespace levora::schedules
