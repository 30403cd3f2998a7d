#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/rules.h"

namespace levora::schedules {

class ImmovableSchedule;

// The sub-screen that works out the annual rent of one property (rule 5 of Schedule III): rent, taxes
// and repairs that the tenant bears, 15 % a year of a deposit, premium, benefits. The active column of
// sprImmovable names the property.
class AnnualRentPanel {
public:
    AnnualRentPanel(widgets::Form& form, session::Session& session, ImmovableSchedule& immovable);

    widgets::Frame frAnnualRent;
    widgets::Grid sprAnnualRent;
    widgets::TextField txtTotalAnnualRent;
    widgets::Button cmdOKAnnualRent;
    widgets::Button cmdCancelAnnualRent;

    // Shows the frame with the figures of the property.
    void open();

private:
    void design_grid();
    void add_rules();
    void connect();
    void LoadAnnualRent();
    void SaveAnnualRent();
    void sprAnnualRent_Change(int column, int row);
    void cmdOKAnnualRent_Click();

    session::Session& session_;
    ImmovableSchedule& immovable_;
    bool read_ = false; // what is stored of the property is on the screen
    const widgets::Rule* repairs_ = nullptr;
    const widgets::Rule* interest_ = nullptr;
    const widgets::Rule* total_ = nullptr;
};

} // namespace levora::schedules
