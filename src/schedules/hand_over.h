#pragma once

#include "session/session_state.h"
#include "widgets/form.h"
#include "widgets/rules.h"

namespace levora::schedules {

// What the business assets give to the assets screen with their OK.
constexpr widgets::HandOver business_to_assets{.from_screen = "frmBusinessAssets",
                                               .from_control = "txtTotalBusinessAsset",
                                               .from_column = 0,
                                               .from_row = 0,
                                               .to_screen = "frmImmovable",
                                               .to_control = "txtNetBusinessAssets",
                                               .words = "the total of the business assets",
                                               .opener = "cmdBusinessAsset",
                                               .caution = "leaves this screen without saving it"};

// Writes a field of the other screen: the text of a field as it stands, the number that a cell holds. A
// Failure 424 when one of the places is not there.
void hand_over(const widgets::HandOver& what, const widgets::Form& from, widgets::Form& to);

// Shows the sheet and lets the screen go.
void leave_for_sheet(session::Session& session, const widgets::Form& screen);
// Shows the sheet if it is loaded and hidden, which it would stay when a close box ends the screen
// that was opened from it.
void show_hidden_sheet(session::Session& session);

} // namespace levora::schedules
