#pragma once

#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/screens.h"

#include <memory>
#include <string>
#include <vector>

namespace levora::widgets {

// A small screen with one control of most kinds, and the record of the events that it saw.
class TestForm : public Form {
public:
    explicit TestForm(Screens& screens) : Form(screens, "TestForm", "A form") {}

    TextField txtAmount{*this, "txtAmount"};
    TextField txtTotal{*this, "txtTotal"};
    MaskedField mskDate{*this, "mskDate", "##/##/####"};
    MaskedField mskPAN{*this, "mskPAN", ">?????####?"};
    ListField cboState{*this, "cboState", ListStyle::pick, "State", {"Goa", "Delhi"}};
    ListField cboBank{*this, "cboBank", ListStyle::editable, "Bank", {"State Bank"}};
    ColumnList cboList{*this, "cboList", {"Year", "Key"}};
    TickBox chkAudited{*this, "chkAudited", "Audited"};
    OptionButton optFirst{*this, "optFirst", "First", "tax"};
    OptionButton optSecond{*this, "optSecond", "Second", "tax"};
    OptionButton optOther{*this, "optOther", "Other", "payment"};
    Button cmdOK{*this, "cmdOK", "&OK"};
    Tabs tabs{*this, "tabs", {"One", "Two"}};
    Timer timer{*this, "timer", 1};
    Grid grid{*this, "grid", 9, 13};

    std::vector<std::string> events;
    // "change 1,2" and so on; the record is emptied.
    std::string take_events() {
        std::string all;
        for (const std::string& event : events)
            all += (all.empty() ? "" : "; ") + event;
        events.clear();
        return all;
    }
};

struct TestScreens {
    TestScreens() {
        screens.define("TestForm", [this] { return std::make_unique<TestForm>(screens); });
    }
    TestForm& form() { return screens.get<TestForm>("TestForm"); }

    Screens screens;
};

} // namespace levora::widgets
