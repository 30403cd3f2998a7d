#pragma once

#include "computation/wealth_sheet.h"
#include "session/fresh_start.h"

#include <gtest/gtest.h>

#include <string>

namespace levora::computation {

using session::Store;
using session::testing::data_of;

// The sheet of assessee 17 and 2014-2015, started on a fresh data folder.
class SheetTest : public testing::Test {
protected:
    // True when the program runs afterwards.
    bool start(const std::string& command_line = "2014-2015 17 Individual x 0") {
        session::Session& session = fresh.new_session(command_line);
        session.screens.define("frmWealthMain",
                               [&session] { return std::make_unique<frmWealthMain>(session); });
        session.screens.show("frmWealthMain");
        return !session.screens.ended();
    }
    frmWealthMain& sheet() { return fresh.session().screens.get<frmWealthMain>("frmWealthMain"); }

    // The balance and the refund, as "balance/refund".
    std::string balance_and_refund() {
        return sheet().txtBalanceTaxIntPayable.text() + "/" + sheet().txtTaxRefund.text();
    }

    session::testing::FreshStart fresh;
};

} // namespace levora::computation
