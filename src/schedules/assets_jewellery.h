#pragma once

#include "schedules/asset_schedule.h"
#include "schedules/assets_stones.h"
#include "widgets/grid.h"

namespace levora::schedules {

// Rows of sprJewellary. Item number n stands in column n + 1; column 1 holds the labels.
struct JewelleryRow {
    enum : int {
        description = 1,
        unit,
        gross_weight,
        net_weight,
        stones, // button; "Details" unless a record says otherwise
        stones_value,
        value,
        debt,
        net,
        valuer_name,
        valuer_number,
        valuer_date,
    };
};
constexpr int jewellery_rows = 12;
constexpr int first_jewellery_column = 2;

// The tab "Jewellery": each item is a column of sprJewellary; a sub-screen lists the stones of one
// item. The same items appear in all three modes of the screen: the mode that saves last replaces them.
class JewellerySchedule final : public AssetSchedule {
public:
    JewellerySchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame_4;                  // the second frame named "Frame", that of tab 4
    widgets::ListField cboNumberOfJewellery; // its change and click are the frame's
    widgets::Grid sprJewellary;
    widgets::TextField txtAggNetAmt; // its change is the frame's: it copies into the summary
    StonesPanel stones;

    widgets::Frame& frame() override { return Frame_4; }
    void load(const session::Attempt& attempt) override;
    // An item without a description is dropped.
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    // The net amount of the active column, if the active row feeds it, and the total of all items.
    void sprJewellary_Change(int column, int row);

private:
    void design();
    void add_rules();
    void fill_item(int column, const session::RowSet& record);
    void store_item(session::RowSet& record, int column) const;

    const widgets::Rule* net_ = nullptr;
    const widgets::Rule* total_ = nullptr;
};

} // namespace levora::schedules
