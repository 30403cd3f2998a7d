#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/rules.h"

namespace levora::schedules {

class ImmovableSchedule;

// Where sprUnbuiltArea has the premium.
constexpr int plot_area_column = 2;
constexpr int plot_premium_row = 8;

// The sub-screen that works out the premium for unbuilt area of one property (rule 6 of Schedule
// III): open land above the specified share of the plot adds 20, 30 or 40 per cent. The active column
// of sprImmovable names the property.
class UnbuiltAreaPanel {
public:
    UnbuiltAreaPanel(widgets::Form& form, session::Session& session, ImmovableSchedule& immovable);

    widgets::Frame frUnbuiltArea;
    widgets::Grid sprUnbuiltArea;
    widgets::Button cmdUnbuiltAreaOk;
    widgets::Button cmdUnbuiltAreaCancel;

    // Shows the frame with the plot of the property in this column.
    void open(int column);

private:
    void design_grid();
    void add_rules();
    void connect();
    void LoadUnbuiltArea();
    void SaveUnbuiltArea();
    void sprUnbuiltArea_Change(int column, int row);
    void cmdUnbuiltAreaOk_Click();

    session::Session& session_;
    ImmovableSchedule& immovable_;
    bool read_ = false; // what is stored of the property is on the screen
    const widgets::Rule* specified_ = nullptr;
    const widgets::Rule* calculated_ = nullptr;
    const widgets::Rule* premium_ = nullptr;
};

// The sheet that states how the unearned increase of leasehold property is worked out. Nothing shows
// it and nothing of it is stored: the amount is typed into sprImmovable by hand.
class UnearnedIncreasePanel {
public:
    explicit UnearnedIncreasePanel(widgets::Form& form);

    widgets::Frame frUnearnedIncrease;
    widgets::Grid sprUnearnedIncrease;
    widgets::TextField txtUnearnedIncrease;
    widgets::Button cmdUnearnIncreaseOk;
    widgets::Button cmdUnearnIncreaseCancel;
};

} // namespace levora::schedules
