#include "widgets/test_form.h"

#include "widgets/failure.h"

#include <gtest/gtest.h>

using namespace levora;
using namespace levora::widgets;

namespace {

TEST(ScreensTest, AScreenMayUnloadItselfInsideItsOwnEvent) {
    TestScreens test;
    TestForm& form = test.form();
    std::string after;
    form.cmdOK.on_click = [&] {
        test.screens.unload("TestForm");
        after = form.cmdOK.name(); // still there until the event ends
    };
    form.cmdOK.click();
    EXPECT_EQ(after, "cmdOK");
    EXPECT_EQ(test.screens.find("TestForm"), nullptr);
    EXPECT_NE(&test.form(), nullptr); // a new one on the next use
    EXPECT_EQ(test.form().find("CMDOK"), nullptr) << "names are found exactly";
    EXPECT_THROW(test.screens.load("frmNowhere"), Failure);
}

TEST(ScreensTest, AnUnansweredFailureIsReportedOnceUnderTheOutermostEvent) {
    TestScreens test;
    TestForm& form = test.form();
    std::vector<std::string> reports;
    int settled = 0;
    test.screens.on_unanswered = [&](std::string_view procedure, const Failure& failure) {
        reports.push_back(std::string(procedure) + ": " + std::to_string(failure.number));
    };
    test.screens.on_settled = [&] { ++settled; };
    form.txtTotal.on_change = [] { throw_overflow(); };
    form.txtAmount.on_change = [&] {
        form.txtTotal.set_text("1");
        form.events.push_back("not reached");
    };
    form.cmdOK.on_click = [&] { form.txtAmount.set_text("1"); };
    form.cmdOK.click();
    EXPECT_EQ(reports, std::vector<std::string>{"TestForm - cmdOK_Click: 6"});
    EXPECT_EQ(form.take_events(), "");
    EXPECT_EQ(settled, 1);
    EXPECT_EQ(test.screens.event_depth(), 0);
}

} // namespace
