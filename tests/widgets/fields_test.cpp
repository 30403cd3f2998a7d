#include "widgets/test_form.h"

#include "widgets/failure.h"
#include "widgets/rules.h"
#include "widgets/typed_control.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace levora;
using namespace levora::widgets;

namespace {

class FieldsTest : public testing::Test {
protected:
    TestScreens screens;
    TestForm& form = screens.form();
};

TEST_F(FieldsTest, ChangeFiresOnceAndOnlyOnARealDifference) {
    form.txtAmount.on_change = [this] { form.events.push_back(form.txtAmount.text()); };
    form.txtAmount.set_text("5");
    form.txtAmount.set_text("5");
    form.txtAmount.type("5");
    form.txtAmount.type("6");
    EXPECT_EQ(form.take_events(), "5; 6");
    form.chkAudited.on_click = [this] { form.events.push_back(std::to_string(form.chkAudited.value())); };
    form.chkAudited.set_value(1); // a tick's by code too
    form.chkAudited.set_value(1);
    form.chkAudited.click();
    EXPECT_EQ(form.take_events(), "1; 0");
}

TEST_F(FieldsTest, TypingHonoursLockFilterAndLengthWhileTheProgramWritesAll) {
    form.txtAmount.set_key_filter(is_amount_key);
    EXPECT_TRUE(form.txtAmount.type("1a2,3.5-x"));
    EXPECT_EQ(form.txtAmount.text(), "123.5-");
    form.txtAmount.set_key_filter(nullptr);
    form.txtAmount.set_max_length(3);
    form.txtAmount.type("\xE2\x82\xB9"
                        "1234"); // the rupee sign is one character
    EXPECT_EQ(form.txtAmount.text(), "\xE2\x82\xB9"
                                     "12");
    form.txtAmount.set_locked(true);
    EXPECT_FALSE(form.txtAmount.type("9"));
    form.txtAmount.set_text("abcdef");
    EXPECT_EQ(form.txtAmount.text(), "abcdef");
    form.txtTotal.set_enabled(false);
    EXPECT_FALSE(form.txtTotal.type("9"));
    form.txtTotal.set_enabled(true);
    form.txtTotal.set_visible(false);
    EXPECT_FALSE(form.txtTotal.type("9"));
}

TEST_F(FieldsTest, MaskTakesTypedDigitsWithOrWithoutItsSeparatorsAndAssignedTextsThatFit) {
    for (const char* typed : {"15/09/2014", "15092014", "15-09x2014"}) {
        form.mskDate.type("");
        EXPECT_EQ(form.mskDate.text(), "__/__/____");
        form.mskDate.type(typed);
        EXPECT_EQ(form.mskDate.text(), "15/09/2014") << typed;
    }
    form.mskDate.type("1509");
    EXPECT_EQ(form.mskDate.text(), "15/09/____");
    form.mskPAN.type("aaap1l1234c9");
    EXPECT_EQ(form.mskPAN.text(), "AAAPL1234C");
    form.mskDate.set_text("31/03/2014");
    for (const char* unfit : {"31-03-2014", "31/03/201"})
        EXPECT_THROW(form.mskDate.set_text(unfit), Failure);
    EXPECT_EQ(form.mskDate.text(), "31/03/2014");
    form.mskDate.set_text("");
    EXPECT_TRUE(form.mskDate.is_empty());
}

TEST_F(FieldsTest, PickListFindsWithoutCaseAndComboTakesAnyText) {
    form.cboState.on_click = [this] { form.events.push_back("click " + form.cboState.text()); };
    form.cboBank.on_change = [this] { form.events.push_back("bank " + form.cboBank.text()); };
    form.cboState.set_text("DELHI");
    form.cboState.set_text("delhi"); // the same item: nothing fires
    form.cboState.choose("Delhi");   // a person's choice fires again
    form.cboState.set_text("Atlantis");
    EXPECT_EQ(form.cboState.index(), -1);
    EXPECT_FALSE(form.cboState.type("Goa"));
    EXPECT_FALSE(form.cboState.choose("Atlantis"));
    form.cboBank.type("Other bank");
    EXPECT_EQ(form.take_events(), "click Delhi; click Delhi; click ; bank Other bank");
    EXPECT_EQ(form.cboBank.index(), -1);
    EXPECT_THROW(form.cboState.set_index(2), Failure);
}

TEST_F(FieldsTest, ColumnListKeepsItsSelectionInStepWithItsRows) {
    form.cboList.on_click = [this] { form.events.push_back(std::to_string(form.cboList.index())); };
    form.cboList.add_row({"2014", "7"});
    form.cboList.add_row({"2013", "8"});
    form.cboList.choose(1);
    form.cboList.remove_row(0);
    EXPECT_EQ(form.cboList.index(), 0);
    EXPECT_EQ(form.cboList.text(), "2013");
    form.cboList.remove_row(0);
    EXPECT_EQ(form.cboList.index(), -1);
    EXPECT_EQ(form.take_events(), "1");
    EXPECT_THROW((void)form.cboList.cell(0, 0), Failure);
}

TEST_F(FieldsTest, OptionsClearTheOthersOfTheirGroupOnly) {
    form.optFirst.on_click = [this] { form.events.push_back("first"); };
    form.optOther.click();
    form.optFirst.click();
    form.optSecond.click();
    EXPECT_FALSE(form.optFirst.value());
    EXPECT_TRUE(form.optOther.value());
    form.optFirst.set_value(true);
    form.optFirst.click(); // set already: a person's click still counts
    EXPECT_EQ(form.take_events(), "first; first; first");
}

TEST_F(FieldsTest, DisabledThingsCannotBeActedUpon) {
    form.cmdOK.on_click = [this] { form.events.push_back("ok"); };
    form.cmdOK.set_enabled(false);
    EXPECT_FALSE(form.cmdOK.click());
    form.tabs.set_tab_enabled(1, false);
    EXPECT_FALSE(form.tabs.choose(1));
    EXPECT_FALSE(form.tabs.choose(5));
    form.tabs.set_tab(1); // the program may
    EXPECT_EQ(form.tabs.tab(), 1);
    EXPECT_FALSE(form.timer.tick());
    EXPECT_EQ(form.take_events(), "");
}

TEST_F(FieldsTest, AControlOfAnotherKindIsRefusedRatherThanMisread) {
    EXPECT_EQ(as_if<TextField>(form.find("grid")), nullptr);
    EXPECT_EQ(as_if<Grid>(form.find("grid")), &form.grid);
    EXPECT_EQ(as_if<Grid>(form.find("not there")), nullptr);
    const Rule copies_a_grid{
        .target = form.txtTotal, .sources = {form.grid}, .how = {}, .write = Write::text};
    EXPECT_THROW(copies_a_grid.work_out(), std::logic_error);
    const Rule sums_a_button{.target = form.txtTotal, .sources = {form.cmdOK}, .how = sum_formula};
    EXPECT_THROW(sums_a_button.work_out(), std::logic_error);
}

} // namespace
