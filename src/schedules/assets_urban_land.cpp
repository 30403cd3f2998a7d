#include "schedules/assets_urban_land.h"

#include "schedules/assets_screen.h"

namespace levora::schedules {

UrbanLandSchedule::UrbanLandSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame3(form, "Frame3"), sprUrbanLand(form, "sprUrbanLand", 16, 12),
      txtNetValuation(form, "txtNetValuation"), txtNetDebtsOwed(form, "txtNetDebtsOwed"),
      txtNetAmount(form, "txtNetAmount") {}

void UrbanLandSchedule::load(const session::Attempt&) {}

void UrbanLandSchedule::save(const session::Attempt&) {}

std::string UrbanLandSchedule::value_for_parent() const {
    return number_text(txtNetAmount.value());
}

void UrbanLandSchedule::sprUrbanLand_Change(int, int) {}

} // namespace levora::schedules
