#pragma once

#include "session/common_services.h"
#include "session/data_store.h"
#include "session/session_state.h"
#include "widgets/fields.h"

#include <string>

namespace levora::schedules {

class frmImmovable;

// One schedule of the assets screen: a tab with its own controls, its own table and its own rules.
// The frame loads, saves and totals it without knowing its inside. The controls of a schedule are
// registered on the form under their own names; the two belong to one another for life.
class AssetSchedule {
public:
    virtual ~AssetSchedule() = default;
    AssetSchedule(const AssetSchedule&) = delete;
    AssetSchedule& operator=(const AssetSchedule&) = delete;

    // The frame that fills the tab.
    virtual widgets::Frame& frame() = 0;

    // A step of LoadAssetComputation: fills the tab from the rows of the assessee, the year and the
    // screen's AssetType, and leaves its totals as the schedule's own rules have it.
    virtual void load(const session::Attempt& attempt) = 0;
    // A step of SaveAssetComputation: replaces those rows by the ones on the screen.
    virtual void save(const session::Attempt& attempt) = 0;

    // What OK puts into column 5 of the row of the business or deemed assets that the screen was
    // opened for, as text; the empty text empties that cell.
    [[nodiscard]] virtual std::string value_for_parent() const = 0;

protected:
    AssetSchedule(frmImmovable& form, session::Session& session) : form_(form), session_(session) {}

    frmImmovable& form_;
    session::Session& session_;
};

// "AssesseeNo = 17 And FY = '2014-2015'": the rows of the assessee and the year.
std::string year_key(const session::Session& session);
// The same with " And AssetType = 0" behind it: main schedule 0, business assets 1, deemed assets 2.
std::string asset_key(const session::Session& session);
// The same with " And PropertyNo = 1" behind it: what is kept of one house property.
std::string property_key(const session::Session& session, int property_no);

// Makes a new record one of asset_key.
void set_asset_key(session::RowSet& record, const session::Session& session);
// A step of a save: opens the one record that `from` names (see session::open_rows), or a new one of
// asset_key where there is none.
session::RowSet open_or_add(session::Session& session, const session::Attempt& attempt,
                            const std::string& from);

} // namespace levora::schedules
