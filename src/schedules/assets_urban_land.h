#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

#include <array>
#include <string_view>

namespace levora::schedules {

// Columns of sprUrbanLand.
struct LandColumn {
    enum : int {
        description = 1,
        flat,
        premises,
        road,
        area,
        city,
        state,
        country,
        pincode,
        survey,
        valuation,
        debt,
        net,
        valuer_name,
        valuer_number,
        valuer_date,
    };
};

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
    // A row without a net amount above 0 is dropped, whatever else it holds.
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprUrbanLand_Change(int column, int row);

private:
    void connect();
    bool sprUrbanLand_KeyDown(std::string_view key);
    void sprUrbanLand_KeyPress(char32_t character);

    std::array<const widgets::Rule*, 3> totals_{};
};

} // namespace levora::schedules
