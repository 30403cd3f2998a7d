#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

namespace levora::schedules {

// The tab "Jewellery": each item is a column of sprJewellary; a sub-screen lists the stones of one
// item. The same items appear in all three modes of the screen.
class JewellerySchedule final : public AssetSchedule {
public:
    JewellerySchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame_4;                  // the second frame named "Frame", that of tab 4
    widgets::ListField cboNumberOfJewellery; // its change and click are the frame's
    widgets::Grid sprJewellary;
    widgets::TextField txtAggNetAmt; // its change is the frame's: it copies into the summary
    widgets::Frame frPreciousStone;
    widgets::Label lblJR;
    widgets::Grid sprPreciousStone;
    widgets::TextField txtTotal;
    widgets::Button btnOK;

    widgets::Frame& frame() override { return Frame_4; }
    void load(const session::Attempt& attempt) override;
    void save(const session::Attempt& attempt) override;
    [[nodiscard]] std::string value_for_parent() const override;

    void sprJewellary_Change(int column, int row);
};

} // namespace levora::schedules
