#include "schedules/assets_firm.h"

#include "schedules/assets_screen.h"

namespace levora::schedules {

FirmSchedule::FirmSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame(form, "Frame"), sprAssetInterest(form, "sprAssetInterest", 8, 5),
      txtTotalInterestInFirm(form, "txtTotalInterestInFirm", "Total Net Amount") {}

void FirmSchedule::load(const session::Attempt&) {}

void FirmSchedule::save(const session::Attempt&) {}

std::string FirmSchedule::value_for_parent() const {
    return txtTotalInterestInFirm.text();
}

void FirmSchedule::sprAssetInterest_Change(int, int) {}

} // namespace levora::schedules
