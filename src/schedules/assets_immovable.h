#pragma once

#include "schedules/asset_schedule.h"
#include "schedules/assets_annual_rent.h"
#include "schedules/assets_unbuilt_area.h"
#include "schedules/immovable_valuation.h"
#include "widgets/grid.h"

namespace levora::schedules {

// The tab "Immovable Property": each property is a column of sprImmovable, each item of its valuation
// a row (property_grid.h).
class ImmovableSchedule final : public AssetSchedule {
public:
    ImmovableSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame FrameImmovable;
    widgets::ListField cboNumberOfProperty;
    widgets::Grid sprImmovable;
    widgets::TextField txtImmovableNetAmount;
    PropertyValuation valuation;
    AnnualRentPanel annual_rent;
    UnbuiltAreaPanel unbuilt_area;
    UnearnedIncreasePanel unearned_increase;

    widgets::Frame& frame() override { return FrameImmovable; }
    void load(const session::Attempt& attempt) override;
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    // Of the active column, from 1: what the sub-screens of a property keep their records by.
    [[nodiscard]] int active_property() const { return sprImmovable.active_column() - 1; }

    // What an edit of that cell sets off: the valuation of the column where its row recomputes, and
    // in any case the total.
    void sprImmovable_Change(int column, int row);

private:
    void connect();
    void add_rules();
    void compute_total();
    void fill_column(int column, const session::RowSet& record);
    bool sprImmovable_KeyDown(std::string_view key);

    const widgets::Rule* total_ = nullptr;
};

} // namespace levora::schedules
