#include "schedules/assets_movable.h"

#include "schedules/assets_screen.h"

namespace levora::schedules {

MovableSchedule::MovableSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame1(form, "Frame1"), sprMovableProp(form, "sprMovableProp", 4, 4) {}

void MovableSchedule::load(const session::Attempt&) {}

void MovableSchedule::save(const session::Attempt&) {}

std::string MovableSchedule::value_for_parent() const {
    return number_text(sprMovableProp.value(4, 4));
}

void MovableSchedule::sprMovableProp_Change(int, int) {}

} // namespace levora::schedules
