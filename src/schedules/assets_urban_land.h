#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

namespace levora::schedules {

// The tab "Urban Land": one plot a row.
class UrbanLandSchedule final : public AssetSchedule {
public:
    UrbanLandSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame3;
    widgets::Grid sprUrbanLand;
    widgets::TextField txtNetValuation;
    widgets::TextField txtNetDebtsOwed;
    widgets::TextField txtNetAmount; // its change is the frame's: it copies into the summary

    widgets::Frame& frame() override { return Frame3; }
    void load(const session::Attempt& attempt) override;
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprUrbanLand_Change(int column, int row);
};

} // namespace levora::schedules
