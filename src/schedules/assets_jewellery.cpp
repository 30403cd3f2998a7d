#include "schedules/assets_jewellery.h"

#include "schedules/assets_screen.h"

namespace levora::schedules {

JewellerySchedule::JewellerySchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame_4(form, "Frame_4", "Schedule JE:- Jewellery , etc.referred"),
      cboNumberOfJewellery(form, "cboNumberOfJewellery", widgets::ListStyle::editable,
                           "Number Of Jewellery Items"),
      sprJewellary(form, "sprJewellary", 2, 12),
      txtAggNetAmt(form, "txtAggNetAmt", "Aggregate net amount of all jewellery, etc. from 8"),
      frPreciousStone(form, "frPreciousStone", "Description of Precious and Semi-precious Stones"),
      lblJR(form, "lblJR", ""), sprPreciousStone(form, "sprPreciousStone", 3, 10),
      txtTotal(form, "txtTotal", "Total"), btnOK(form, "btnOK", "OK") {
    frPreciousStone.set_visible(false);
}

void JewellerySchedule::load(const session::Attempt&) {}

void JewellerySchedule::save(const session::Attempt&) {}

std::string JewellerySchedule::value_for_parent() const {
    return txtAggNetAmt.text();
}

void JewellerySchedule::sprJewellary_Change(int, int) {}

} // namespace levora::schedules
