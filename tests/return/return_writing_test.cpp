#include "complete_return.h"
#include "return/ereturn.h"
#include "return/windows_1252.h"
#include "return_fixture.h"

#include <filesystem>

namespace levora::form_ba::testing {
namespace {

class ReturnWritingTest : public ReturnTest {
protected:
    // Clicks e-Return and gives the file's text.
    std::string generated() {
        const std::string path = folder_.path() + "/out.xml";
        desk_.queue_file(path);
        form().btnGenerate.click();
        return from_windows_1252(file_bytes(path));
    }
    static std::string golden(const std::string& name) {
        return file_bytes(std::string(LEVORA_TEST_DATA) + "/" + name);
    }
    // The lines of the text that hold one of the words.
    static std::string lines_with(const std::string& text, const std::string& word) {
        std::istringstream lines(text);
        std::string found, line;
        while (std::getline(lines, line))
            if (line.find(word) != std::string::npos) found += line.substr(line.find('<')) + "\n";
        return found;
    }
};

TEST_F(ReturnWritingTest, CompleteRevisedReturn) {
    type_complete_return(form());
    EXPECT_EQ(generated(), golden("return_complete_revised.xml"));
}

TEST_F(ReturnWritingTest, EmptyReturnHasAmountsOfNoughtAndOpenMasks) {
    run_assessee("DELETE * FROM AssesseeInfo");
    form().ClearFormBA();
    EXPECT_EQ(generated(), golden("return_empty.xml"));
}

TEST_F(ReturnWritingTest, WorkingCopyIsNamedByAssesseeYearAndRevision) {
    frmFormBA& f = form();
    f.cmdSave.click();
    EXPECT_EQ(f.lblFillFrom.caption(), "Data Saved");
    EXPECT_EQ(lines_with(file_bytes(folder_.path() + "/ITR/WT 1042 2014-2015"), "ReturnType"),
              "<FBAMain:ReturnType>O</FBAMain:ReturnType>\n");
    f.cboReturnType.choose("Revised");
    f.cmdSave.click();
    const std::string revised = file_bytes(folder_.path() + "/ITR/WT 1042 2014-2015R");
    EXPECT_EQ(lines_with(revised, "ReturnType") + lines_with(revised, "Reciept"),
              "<FBAMain:ReturnType>R</FBAMain:ReturnType>\n<FBAMain:RecieptNo/>\n"
              "<FBAMain:RecieptDat>__/__/____</FBAMain:RecieptDat>\n");
    f.mskPAN.type("AAAPL1234C");
    f.btnGenerate.click(); // dismissed: nothing is said
    EXPECT_EQ(message() + desk_.take_dialogs().at(0).name, "AAAPL1234CWTR");
    session_->DataFolder = folder_.path() + "/gone/";
    f.cmdSave.click();
    EXPECT_EQ(message(), "Levora Wealth Tax - Error: That path doesn't exist.\n");
}

struct ElementCase {
    const char *why, *field, *text, *element, *lines;
};
constexpr ElementCase element_cases[] = {
    {"an ampersand is spelt out", "txtName", "a&&b", "SurName",
     "<FBAMain:SurName>aAndAndb</FBAMain:SurName>\n"},
    {"other marks pass", "txtName", "<'\">", "SurName", "<FBAMain:SurName><'\"></FBAMain:SurName>\n"},
    {"the surname is always there", "txtName", "", "SurName", "<FBAMain:SurName/>\n"},
    {"the first name only when given", "txtFirstName", "", "FirstName>", ""},
    {"a code of one digit is none", "mskSTDCode", "0", "StdCode", ""},
    {"of two it is one", "mskSTDCode", "02", "StdCode", "<FBAMain:StdCode>02</FBAMain:StdCode>\n"},
    {"code 25 is filed as 24", "cboReturnCode", "25- In response to notice u/s 17(1)", "ReturnSection",
     "<FBAMain:ReturnSection>24</FBAMain:ReturnSection>\n"},
    {"another country has no code", "cboCountry", "USA", "country", "<FormCommon:country/>\n"},
    {"an unknown state is 99", "cboState", "nowhere", "State", "<FormCommon:State>99</FormCommon:State>\n"},
    {"an amount loses its noughts", "txtNetWealthTax", "1234.50", "NetWealthTax",
     "<FBAMain:NetWealthTax>1234.5</FBAMain:NetWealthTax>\n"},
    {"a comma ends an amount", "txtRefundAmount", "1,234", "RefundAmount",
     "<FBAMain:RefundAmount>1</FBAMain:RefundAmount>\n"},
    {"the total of properties is a text", "txtAggregateImmovableProperty", "1,234", "TotalValImmovableProp",
     "<FBAMain:TotalValImmovableProp>1,234</FBAMain:TotalValImmovableProp>\n"},
};

TEST_F(ReturnWritingTest, Elements) {
    for (const ElementCase& each : element_cases) {
        SCOPED_TRACE(each.why);
        restart();
        widgets::Control* const control = form().find(each.field);
        if (auto* text = dynamic_cast<widgets::TextField*>(control)) text->set_text(each.text);
        if (auto* mask = dynamic_cast<widgets::MaskedField*>(control)) mask->set_text(each.text);
        if (auto* list = dynamic_cast<widgets::ListField*>(control)) list->set_text(each.text);
        EXPECT_EQ(lines_with(generated(), each.element), each.lines);
    }
}

TEST_F(ReturnWritingTest, WantedSecondDocumentOfARunStandsFurtherIn) {
    const std::string first = generated();
    EXPECT_EQ(session_->XmlIndent, 4);
    EXPECT_EQ(session_->XmlTagTop, 2);
    const std::string second = generated();
    std::istringstream was(first), is(second);
    std::string left, right;
    for (int line = 1; std::getline(was, left) && std::getline(is, right); ++line)
        EXPECT_EQ(right, (line > 2 ? "    " : "") + left);
    EXPECT_EQ(session_->XmlTagTop, 4);
}

TEST_F(ReturnWritingTest, WantedPropertyWithoutAHeadClosesTheElementAroundIt) {
    frmFormBA& f = form();
    f.sprScheduleOPR.type(opr_column::description, 1, "Farm");
    const std::string text = generated();
    const std::string end = text.substr(text.find("<FBAMain:ResidencialFlag>"));
    EXPECT_EQ(end.substr(0, end.find("xmlns")),
              "<FBAMain:ResidencialFlag>N</FBAMain:ResidencialFlag>\n    </FBAMain:Form_BA>\n"
              "  </FormBA:FormBA>\n</FORMP2:Form ");
    EXPECT_EQ(lines_with(text, "ImmovablePropType"), "");
}

TEST_F(ReturnWritingTest, WantedMovablesGoByTheirDescriptionAndSecondNamesOfStatesHaveNoCode) {
    frmFormBA& f = form();
    f.sprMovableProperty.type(movable_column::value, 1, "5");
    f.sprMovableProperty.type(movable_column::description, 2, "Cash in Hand u/s 2(ea)(vi)");
    f.sprMovableProperty.choose(movable_column::description, 3, "Cash-in-Hand");
    for (int row = 1; const char* state : {"Odisha ", "Orissa"}) { // the one with its blank
        f.sprScheduleOPR.choose(opr_column::head, row, "AgriculturalLand");
        ASSERT_TRUE(f.sprScheduleOPR.choose(opr_column::state, row++, state));
    }
    const std::string text = generated();
    EXPECT_EQ(lines_with(text, "MovablePropDescType") + lines_with(text, "DebtOwnedMovable"),
              "<FBAMain:MovablePropDescType>3</FBAMain:MovablePropDescType>\n"
              "<FBAMain:DebtOwnedMovableProp>0</FBAMain:DebtOwnedMovableProp>\n"
              "<FBAMain:DebtOwnedMovableProp>0</FBAMain:DebtOwnedMovableProp>\n");
    EXPECT_EQ(lines_with(text, "ImmovState"),
              "<FBAMain:ImmovState>99</FBAMain:ImmovState>\n<FBAMain:ImmovState>24</FBAMain:ImmovState>\n");
}

TEST_F(ReturnWritingTest, StonesGoWithTheirItemOrNotAtAll) {
    frmFormBA& f = form();
    f.sprJewellery.type(jewellery_column::description, 1, "Ring");
    f.sprPreciousStone.type(stone_column::item, 1, "2"); // there is no second item
    f.sprPreciousStone.type(stone_column::description, 2, "Opal");
    EXPECT_EQ(lines_with(generated(), "SchJewelStones"), "");
    f.sprPreciousStone.type(stone_column::item, 2, "1");
    EXPECT_EQ(lines_with(generated(), "PreciousStoneDescription"),
              "<FBAMain:PreciousStoneDescription>Opal</FBAMain:PreciousStoneDescription>\n");
}

TEST_F(ReturnWritingTest, OtherPersonsNeedATotalAboveNought) {
    frmFormBA& f = form();
    f.sprInducibleNetWealth.type(other_person_column::name, 1, "Minor");
    EXPECT_EQ(lines_with(generated(), "OtherPerson>"),
              "<FBAMain:AggregateValOtherPerson>0</FBAMain:AggregateValOtherPerson>\n");
    f.sprInducibleNetWealth.type(other_person_column::value, 2, "9"); // a row without a name is left out
    EXPECT_EQ(lines_with(generated(), "OtherPerson>"),
              "<FBAMain:AggregateValOtherPerson>9</FBAMain:AggregateValOtherPerson>\n"
              "<FBAMain:NameOtherPerson>Minor</FBAMain:NameOtherPerson>\n"
              "<FBAMain:TotalValOtherPerson>9</FBAMain:TotalValOtherPerson>\n");
}

TEST_F(ReturnWritingTest, TextIsWindows1252WithQuestionMarksForTheRest) {
    form().txtTown.set_text("\u00E9 \u20AC \u0939");
    desk_.queue_file(folder_.path() + "/out.xml");
    form().btnGenerate.click();
    EXPECT_EQ(lines_with(file_bytes(folder_.path() + "/out.xml"), "TownCity"),
              "<FormCommon:TownCityDistrict>\xE9 \x80 ?</FormCommon:TownCityDistrict>\n");
}

TEST_F(ReturnWritingTest, ATagThatIsNotOpenCannotBeClosed) {
    for (const int top : {0, -1, 7}) { // nothing pushed yet, all popped, past the end
        session_->XmlTagTop = top;
        EXPECT_EQ(session::testing::failure_of([&] { eReturn(*session_).CloseTag(); }),
                  "9 Subscript out of range");
    }
}

TEST_F(ReturnWritingTest, AFailedWriteIsReportedAndLeavesTheOldFile) {
    const std::string path = folder_.path() + "/kept.xml";
    std::filesystem::create_directory(path + ".writing"); // in the way of the file beside it
    std::ofstream(path) << "old";
    desk_.queue_file(path);
    desk_.queue_answer(widgets::Answer::ok); // no second try follows
    form().btnGenerate.click();
    EXPECT_EQ(file_bytes(path), "old");
    EXPECT_EQ(desk_.take_messages().size(), 1U);
    EXPECT_NE(file_bytes(folder_.path() + "/program/ErrorLog.txt").find("frmFormBA - btnGenerate_Click"),
              std::string::npos);

    // A device stays what it is, and a full one is told.
    desk_.queue_file("/dev/full");
    form().btnGenerate.click();
    EXPECT_EQ(message(), "Levora Wealth Tax - Error: Disk is full. Continue?\n");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));

    // Three rows without a head close more than is open; without them the next document starts afresh.
    for (int row = 1; row <= 3; ++row)
        form().sprScheduleOPR.type(opr_column::description, row, "Farm");
    desk_.queue_file(folder_.path() + "/out.xml");
    form().btnGenerate.click();
    EXPECT_EQ(message(),
              "Levora Wealth Tax - Error: 5 Invalid procedure call or argument: more elements end than "
              "have begun. Rows of Schedule OPR without a Property Head do that; choose one in "
              "each row, or empty the row.\n");
    form().sprScheduleOPR.clear_data();
    EXPECT_NE(generated().find("\n<FORMP2:Form "), std::string::npos);
}

} // namespace
} // namespace levora::form_ba::testing
