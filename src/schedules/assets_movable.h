#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

namespace levora::schedules {

// The tab "Movable Property": three items and their total.
class MovableSchedule final : public AssetSchedule {
public:
    MovableSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame1;
    widgets::Grid sprMovableProp;

    widgets::Frame& frame() override { return Frame1; }
    void load(const session::Attempt& attempt) override;
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprMovableProp_Change(int column, int row);
};

} // namespace levora::schedules
