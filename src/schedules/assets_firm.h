#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

namespace levora::schedules {

// The tab "Interest in Firm or AOP": one firm a row.
class FirmSchedule final : public AssetSchedule {
public:
    FirmSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame;
    widgets::Grid sprAssetInterest;
    widgets::TextField txtTotalInterestInFirm; // its change is the frame's: it copies into the summary

    widgets::Frame& frame() override { return Frame; }
    void load(const session::Attempt& attempt) override;
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprAssetInterest_Change(int column, int row);
};

} // namespace levora::schedules
