#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/rules.h"

#include <string>
#include <string_view>

namespace levora::schedules {

class JewellerySchedule;

constexpr std::string_view stones_caption = "Details"; // of an item's button

// Columns of sprPreciousStone.
struct StoneColumn {
    enum : int { description = 1, weight, value };
};

// The sub-screen of one jewellery item: its precious and semi-precious stones, stored at once by its
// own OK under the item's number.
class StonesPanel {
public:
    StonesPanel(widgets::Form& form, session::Session& session, JewellerySchedule& jewellery);

    widgets::Frame frPreciousStone;
    widgets::Label lblJR; // the item's number
    widgets::Grid sprPreciousStone;
    widgets::TextField txtTotal;
    widgets::Button btnOK;

    // Comes up with the stones of the item in that column of sprJewellary.
    void open(int column);
    // Neither has an error report: a failing store ends the event that called it.
    void LoadPreciousStones();
    void SavePreciousStones();

private:
    void connect();
    // The assessee, the year and the item, as the statements of this sub-screen have it.
    [[nodiscard]] std::string item_key() const;
    void sprPreciousStone_Change();
    void btnOK_Click();

    session::Session& session_;
    JewellerySchedule& jewellery_;
    bool read_ = false; // all stored stones of the item are on the screen
    const widgets::Rule* total_ = nullptr;
};

} // namespace levora::schedules
