#include "complete_return.h"
#include "return/return_check_screen.h"
#include "return_fixture.h"

namespace levora::form_ba::testing {
namespace {

class ReturnCheckTest : public ReturnTest {
protected:
    ReturnCheckTest() { define(); }

    void define() {
        session_->screens.define("frmReturnCheck",
                                 [this] { return std::make_unique<frmReturnCheck>(*session_); });
        // The sheet agrees with the complete return.
        sheet().txtNetWealth.set_text("6245");
        sheet().txtWealthTaxLiability.set_text("1500");
        sheet().txtInterest.set_text("30");
    }
    frmReturnCheck& check() { return session_->screens.get<frmReturnCheck>("frmReturnCheck"); }
    // What the check shows, a line a finding.
    std::string findings() {
        form().cmdValidatitor.click();
        std::string text;
        for (int row = 0; row < check().lstFindings.count(); ++row)
            text += check().lstFindings.cell(row, 0) + " | " + check().lstFindings.cell(row, 1) + "\n";
        return text;
    }
};

TEST_F(ReturnCheckTest, CompleteReturnPassesAndNothingMoves) {
    type_complete_return(form());
    EXPECT_EQ(findings(), "");
    EXPECT_EQ(check().lblSummary.caption(), "Nothing is wrong with this return.");
    EXPECT_EQ(session_->XmlTagTop, 0);
    EXPECT_EQ(session_->XmlIndent, 0);
}

TEST_F(ReturnCheckTest, ASchemaBesideTheProgramIsTheOneThatCounts) {
    type_complete_return(form());
    std::ofstream(folder_.path() + "/program/Form.xsd") << "<nothing/>";
    form().cmdValidatitor.click();
    EXPECT_EQ(unanswered_, "frmFormBA - cmdValidatitor_Click: " + folder_.path() +
                               "/program/Form.xsd can't be used as a schema\n");
}

struct FaultCase {
    const char* why;
    void (*spoil)(frmFormBA& f);
    const char* finding;
};
const FaultCase fault_cases[] = {
    {"a short number", [](frmFormBA& f) { f.mskPAN.type("AAAPL12"); },
     "PERMANENT ACCOUNT NUMBER | \"AAAPL12___\": a permanent account number has five letters, four digits "
     "and "
     "one letter\n"},
    {"no date", [](frmFormBA& f) { f.mskDOB.type("31/02/1960"); },
     "DOB/ DOI (DD/MM/YYYY) | \"31/02/1960\": this is no date (DD/MM/YYYY)\n"},
    {"no surname", [](frmFormBA& f) { f.txtName.type(" "); }, "Surname | is missing\n"},
    {"an amount that is no number", [](frmFormBA& f) { f.txtMovAmtPostal.set_text("13 lakh"); },
     "(III) Amount of investment in NSS, Postal Savings, Insurance Policies and investment in any Financial "
     "Instrument in Post office or Insurance Company. | \"13 lakh\" is no plain number; the file would have "
     "13\n"},
    {"a total that is no number", [](frmFormBA& f) { f.txtAggregateImmovableProperty.set_text("5200 Rs"); },
     "Total of immovable property | \"5200 Rs\": this is no number\n"},
    {"no state of a property",
     [](frmFormBA& f) { f.sprImmovableProperty.type(immovable_column::state, 2, ""); },
     "SCHEDULE- IP Immovale Property, row 2: State | no state is chosen\n"},
    {"a stone of no item", [](frmFormBA& f) { f.sprPreciousStone.type(stone_column::item, 2, "9"); },
     "Description of Precious and Semi-precious Stones, row 2: Item No | no jewellery has this number; the "
     "stone "
     "would not be in the file\n"},
    {"the number of a person in row 2",
     [](frmFormBA& f) { f.sprInducibleNetWealth.type(other_person_column::pan, 2, "AAAP"); },
     "SCHEDULE-INW (Includible net wealth on other person), row 2: PAN of Person | \"AAAP\": a permanent "
     "account "
     "number has five letters, four digits and one letter\n"},
    {"a farm without a description",
     [](frmFormBA& f) { f.sprScheduleOPR.type(opr_column::description, 2, ""); },
     "Schedule OPR :- ( To be filled up by individual or HUF only)), row 2: Description | is missing\n"},
    {"a property without a head", [](frmFormBA& f) { f.sprScheduleOPR.type(opr_column::head, 1, ""); },
     "Schedule OPR :- ( To be filled up by individual or HUF only)), row 1: Property Head | nothing is "
     "chosen; the "
     "file would be broken here\n"},
    {"a total that waits for an edit",
     [](frmFormBA& f) { f.sprJewellery.set_value(jewellery_column::value, 1, 950); },
     "Total of jewellery | the total 850 differs from its grid, which adds up to 900\n"},
    {"tax unlike the sheet's", [](frmFormBA& f) { f.txtNetWealthTax.type("1501"); },
     "1. Tax payable on net wealth | 1501 differs from the tax of the computation, 1500\n"},
    {"net wealth unlike the sheet's", [](frmFormBA& f) { f.txtNETWEALTHInFigure.set_text("1"); },
     "Net wealth (1+2+3+4+5) | 1 differs from the net wealth of the computation, 6245\n"},
    {"filed before the valuation date", [](frmFormBA& f) { f.mskOriFillDate.type("30/03/2014"); },
     "Original Return File Date | 30/03/2014 lies before the valuation date 31/03/2014\n"},
    {"a character that breaks the file", [](frmFormBA& f) { f.txtWard.type("W <1"); },
     "Ward/Circle/Special Range | holds \"<\", with which the file can't be read\n"},
};

TEST_F(ReturnCheckTest, EachMistakeIsNamedWhereItIs) {
    for (const FaultCase& each : fault_cases) {
        SCOPED_TRACE(each.why);
        restart();
        define();
        type_complete_return(form());
        each.spoil(form());
        EXPECT_EQ(findings(), each.finding);
    }
}

TEST_F(ReturnCheckTest, AFindingLeadsToItsPlace) {
    type_complete_return(form());
    form().sprScheduleOPR.type(opr_column::description, 2, "");
    (void)findings();
    EXPECT_TRUE(check().cmdGoThere.click());
    EXPECT_EQ(form().SSTab1.tab(), 5);
    EXPECT_EQ(form().sprScheduleOPR.active_column(), opr_column::description);
    EXPECT_EQ(form().sprScheduleOPR.active_row(), 2);
    EXPECT_EQ(form().active_control(), &form().sprScheduleOPR);
    form().sprScheduleOPR.type(opr_column::description, 2, "Farm");
    check().cmdCheckAgain.click();
    EXPECT_EQ(check().lstFindings.count(), 0);
}

} // namespace
} // namespace levora::form_ba::testing
