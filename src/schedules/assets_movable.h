#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

namespace levora::schedules {

// Columns and rows of sprMovableProp.
struct MovableColumn {
    enum : int { description = 1, amount, debt, net };
};
struct MovableRow {
    enum : int { last_item = 3, total };
};

// The tab "Movable Property": three items and their total.
class MovableSchedule final : public AssetSchedule {
public:
    MovableSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame1;
    widgets::Grid sprMovableProp;

    widgets::Frame& frame() override { return Frame1; }
    // By the serial number of each record. The summary is not touched: its figure is a stored one.
    void load(const session::Attempt& attempt) override;
    // An item without a net amount above 0 is dropped.
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprMovableProp_Change(int column, int row);

private:
    void design();

    const widgets::Rule* sums_ = nullptr;
    const widgets::Rule* net_ = nullptr;
};

} // namespace levora::schedules
