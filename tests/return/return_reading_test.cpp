#include "complete_return.h"
#include "return_fixture.h"

#include "return/xml_document.h"

#include <filesystem>

namespace levora::form_ba::testing {
namespace {

constexpr const char* import_message = ": Blank or Invalid XML file, could not load the file\n";

class ReturnReadingTest : public ReturnTest {
protected:
    // Every field and every grid of the screen, one a line.
    static std::string everything(const frmFormBA& f) {
        std::string text;
        for (const widgets::Control* each : f.controls()) {
            const auto* const grid = dynamic_cast<const widgets::Grid*>(each);
            text += each->name() + ": " + (grid ? "\n" + cells(*grid) : shown(each)) + "\n";
        }
        return text;
    }
    // The text with one line's wording replaced, which must be there.
    static void replace(std::string& text, const std::string& old, const std::string& fresh) {
        ASSERT_NE(text.find(old), std::string::npos) << old;
        text.replace(text.find(old), old.size(), fresh);
    }
    // Imports a document of this content below FBAMain:Form_BA.
    void import(const std::string& content) {
        const char* const root =
            "<FORMP2:Form xmlns:FORMP2='a' xmlns:FBAMain='b' xmlns:FormCommon='c' xmlns:FormBA='d'>"
            "<FormBA:FormBA><FBAMain:Form_BA>";
        import_bytes(root + content + "</FBAMain:Form_BA></FormBA:FormBA></FORMP2:Form>");
    }
    void import_bytes(const std::string& bytes) {
        const std::string path = folder_.path() + "/in.xml";
        std::ofstream(path, std::ios::binary) << bytes;
        desk_.queue_file(path);
        form().btnImport.click();
    }
};

TEST_F(ReturnReadingTest, WorkingCopyBringsBackAllButItsKnownLosses) {
    type_complete_return(form());
    form().cboReturnType.choose("Original"); // a revised copy has a name that is not looked for
    std::string expected = everything(form());
    form().cmdSave.click();
    form().cmdClose.click();
    EXPECT_EQ(form().lblFillFrom.caption(), "Filled from Saved Data");
    EXPECT_EQ(form().lblFillFrom.forecolor(), 0xFF0000U);

    replace(expected, "Rao & Sons", "Rao And Sons");
    replace(expected, "txtReceiptNo: R/77", "txtReceiptNo: "); // only a revised return has them
    replace(expected, "mskOriFillDate: 15/07/2014", "mskOriFillDate: __/__/____");
    replace(expected, "|00123|", "|123|");
    // A figure that was left open comes back as 0.
    replace(expected, "Agra|UTTAR PRADESH|INDIA|||300||300|", "Agra|UTTAR PRADESH|INDIA|||300|0|300|");
    replace(expected, "Cash-in-Hand|70||70", "Cash-in-Hand|70|0|70");
    replace(expected, "Chain|Carat|3|2|Details|6|50||50|", "Chain|Carat|3|2|Details|6|50|0|50|");
    replace(expected, "1|Opal|2.0|15\n2|Ruby|1|6\n1|Pearl|1|5\n", "1|Opal|2.0|15\n1|Pearl|1|5\n2|Ruby|1|6\n");
    // A row without a name stays behind, the next one moves up.
    replace(expected, "|||||0\nMinor|Son|AAAPM1234C|80|30|50\n", "Minor|Son|AAAPM1234C|80|30|50\n");
    replace(expected, "Firm|Nagpur|", "Firm|AAAFL1234C|");
    // Heads are grouped; numbers of the later heads lose their letters.
    replace(expected,
            "CommercialBuilding|90|Shop|12A|Mall|Ring Road|Camp|Pune|Maharashtra|INDIA|411002|9B\n"
            "AgriculturalLand|10|Farm|3C||||Karad|Telangana|INDIA|415110|44/2\n",
            "AgriculturalLand|10|Farm|3C||||Karad|Telangana|INDIA|415110|44/2\n"
            "CommercialBuilding|90|Shop|12|Mall|Ring Road|Camp|Pune|Maharashtra|INDIA|411002|9\n");
    EXPECT_EQ(everything(form()), expected);
}

TEST_F(ReturnReadingTest, ImportOfAFiledRevisedReturnIsAnOriginalOne) {
    type_complete_return(form());
    desk_.queue_file(folder_.path() + "/filed.xml");
    form().btnGenerate.click();
    form().lblFillFrom.set_caption("as it was");
    desk_.queue_file(folder_.path() + "/filed.xml");
    form().btnImport.click();
    EXPECT_EQ(form().cboReturnType.text(), "Original");
    EXPECT_EQ(form().txtReceiptNo.text(), "R/77");
    EXPECT_EQ(form().txtAddress2.text(), "Caf\u00E9 Tower");
    EXPECT_EQ(form().ReturnFilePath, folder_.path() + "/filed.xml");
    EXPECT_EQ(form().lblFillFrom.caption(), "as it was");
}

TEST_F(ReturnReadingTest, BrokenOrHostileFilesGetTheOneMessage) {
    struct Case {
        const char* why;
        std::string bytes;
    };
    std::string deep;
    for (int i = 0; i < 5000; ++i)
        deep += "<a>";
    const Case cases[] = {
        {"blank", ""},
        {"no XML", "PAN AAAPL1234C"},
        {"an open element", "<a>"},
        {"a bare <", "<a>1 < 2</a>"},
        {"two roots", "<a/><b/>"},
        {"too deep", deep},
        {"a document type", "<!DOCTYPE a><a/>"},
        {"a file from outside", "<!DOCTYPE a [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><a>&x;</a>"},
        {"a bomb", "<!DOCTYPE a [<!ENTITY x 'xxxxxxxxxx'><!ENTITY y '&x;&x;&x;&x;&x;'>]><a>&y;</a>"},
        {"a nought byte", std::string("<a>\0</a>", 8)},
    };
    form().cboStatus.choose("Companies");
    form().mskPin.type("411001");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        form().txtName.set_text("Typed");
        form().sprMovableProperty.type(movable_column::value, 1, "9");
        form().txtAmtBTPTotal.set_text("5");
        import_bytes(each.bytes);
        EXPECT_EQ(message(), import_message);
        // Cleared before the file was looked at, by the names of the controls.
        EXPECT_EQ(form().txtName.text() + form().txtTaxInterestPaid.text() + form().txtRefundAmount.text(),
                  "");
        EXPECT_EQ(form().sprMovableProperty.data_rows(), 0);
        EXPECT_EQ(form().mskPin.text() + form().cboStatus.text() + form().TotalValMovableProp.text(),
                  "411001Companies9");
    }
    std::filesystem::create_directory(folder_.path() + "/folder.xml");
    std::ofstream(folder_.path() + "/huge.xml") << "<a/>";
    std::filesystem::resize_file(folder_.path() + "/huge.xml", largest_document + 1);
    for (const char* each : {"/folder.xml", "/huge.xml", "/none.xml"}) {
        desk_.queue_file(folder_.path() + each);
        form().btnImport.click();
        EXPECT_EQ(message(), import_message) << each;
    }

    // A broken working copy leaves the screen empty, whatever the master knows.
    restart();
    std::filesystem::create_directory(folder_.path() + "/ITR");
    std::ofstream(folder_.path() + "/ITR/WT 1042 2014-2015") << "<FORMP2:Form";
    run_assessee("INSERT INTO AssesseeInfo (AssesseeNo, LastName) VALUES (1042, 'Rao')");
    EXPECT_EQ(form().lblFillFrom.caption() + form().txtName.text(), "Filled from Saved Data");
    EXPECT_EQ(message(), import_message);
}

struct FieldCase {
    const char *why, *content, *field, *text;
};
const FieldCase field_cases[] = {
    {"99 is OTHERS", "<FBAMain:Address><FormCommon:State>99</FormCommon:State></FBAMain:Address>", "cboState",
     "OTHERS"},
    {"a state that is not told is none", "<FBAMain:Address/>", "cboState", ""},
    {"a state that does not exist changes nothing",
     "<FBAMain:Address><FormCommon:State>77</FormCommon:State></FBAMain:Address>", "cboState", "GOA"},
    {"no address leaves the state", "", "cboState", "GOA"},
    {"the country is India", "<FBAMain:Address><FormCommon:country>1</FormCommon:country></FBAMain:Address>",
     "cboCountry", "INDIA"},
    {"the first day of all", "<FBAMain:DateOfBirth>0001-01-01</FBAMain:DateOfBirth>", "mskDOB", "01/01/0001"},
    {"no date leaves the field", "<FBAMain:DateOfBirth>__/__/____</FBAMain:DateOfBirth>", "mskDOB",
     "02/02/2002"},
    {"a short verification date is refused",
     "<FBAMain:declrn><FormCommon:VerificationDate>2014</FormCommon:VerificationDate></FBAMain:declrn>",
     "mskVerificationDate", "20/08/2014"},
    {"an open one empties the mask",
     "<FBAMain:declrn><FormCommon:VerificationDate>__/__/____</FormCommon:VerificationDate></FBAMain:declrn>",
     "mskVerificationDate", "__/__/____"},
    {"no sex is female", "", "cboSex", "Female"},
    {"code 25 is known", "<FBAMain:ReturnSection>25</FBAMain:ReturnSection>", "cboReturnCode",
     "25- In response to notice u/s 17(1)"},
    {"an unknown code is not", "<FBAMain:ReturnSection>26</FBAMain:ReturnSection>", "cboReturnCode",
     "21- On or before due date u/s 14(1)"},
    {"an amount comes as it is written", "<FBAMain:RefundAmount>1,5x</FBAMain:RefundAmount>",
     "txtRefundAmount", "1,5x"},
    {"a later write has the last word",
     "<FBAMain:TotalTaxIntPayable>70</FBAMain:TotalTaxIntPayable><FBAMain:BalTaxAndIntPayable>1</"
     "FBAMain:BalTaxAndIntPayable><FBAMain:TaxPayment><FBAMain:DepositAmount>20</FBAMain:DepositAmount></"
     "FBAMain:TaxPayment>",
     "txtAmtPayable", "50"},
    {"deposits come as they are written",
     "<FBAMain:SchOtherProperties><FBAMain:DepositBank>1x</FBAMain:DepositBank></FBAMain:SchOtherProperties>",
     "txtMovTotalDeposit", "1x"},
    {"a text in pieces is one",
     "<FBAMain:SchOtherProperties><FBAMain:DepositBank>1<![CDATA[<2>]]>&amp;<!-- 9 -->3"
     "</FBAMain:DepositBank></FBAMain:SchOtherProperties>",
     "txtMovTotalDeposit", "1<2>&3"},
    {"the code page of the document",
     "<FBAMain:Address><FormCommon:TownCityDistrict>\xE9 \x80"
     "</FormCommon:TownCityDistrict></FBAMain:Address>",
     "txtTown", "\u00E9 \u20AC"},
    {"UTF-8, as other programs write it",
     "<FBAMain:Address><FormCommon:TownCityDistrict>\u00E9\u20AC\U0001F600"
     "</FormCommon:TownCityDistrict></FBAMain:Address>",
     "txtTown", "\u00E9\u20AC\U0001F600"},
    {"what is UTF-8 by its looks only: too long",
     "<FBAMain:Address><FormCommon:TownCityDistrict>\xE0\x80\xAF</FormCommon:TownCityDistrict></"
     "FBAMain:Address>",
     "txtTown", "\u00E0\u20AC\u00AF"},
    {"half a pair",
     "<FBAMain:Address><FormCommon:TownCityDistrict>\xED\xA0\x80</FormCommon:TownCityDistrict>"
     "</FBAMain:Address>",
     "txtTown", "\u00ED\u00A0\u20AC"},
    {"beyond the last",
     "<FBAMain:Address><FormCommon:TownCityDistrict>\xF4\xA0\xA0\xA0 \xF5"
     "</FormCommon:TownCityDistrict></FBAMain:Address>",
     "txtTown", "\u00F4\u00A0\u00A0\u00A0 \u00F5"},
    {"wanted: the total of firms is the grid's, whatever the file says",
     "<FBAMain:SchFirmAop><FBAMain:ValOfAssesseeFirmAsset>9</FBAMain:ValOfAssesseeFirmAsset>"
     "</FBAMain:SchFirmAop><FBAMain:TotalValFirmAssets>500</FBAMain:TotalValFirmAssets>",
     "txtTotalInterestAmount", "9"},
    {"bonds through the reading of numbers",
     "<FBAMain:SchOtherProperties><FBAMain:InvestBond>1x</FBAMain:InvestBond></FBAMain:SchOtherProperties>",
     "txtMovAmtBondInvestment", "1"},
};

TEST_F(ReturnReadingTest, Fields) {
    for (const FieldCase& each : field_cases) {
        SCOPED_TRACE(each.why);
        restart();
        frmFormBA& f = form();
        f.cboState.choose("GOA");
        f.mskDOB.type("02/02/2002");
        import(each.content);
        EXPECT_EQ(shown(f.find(each.field)), each.text);
    }
}

TEST_F(ReturnReadingTest, AFileInUtf16OfEitherOrderIsRead) {
    const std::string text = "<a:Form xmlns:a='a' xmlns:b='b'><b:FirstName>Asha</b:FirstName></a:Form>";
    for (const bool big : {true, false}) {
        std::string bytes = big ? "\xFE\xFF" : "\xFF\xFE";
        for (const char each : text)
            bytes += big ? std::string{'\0', each} : std::string{each, '\0'};
        const auto document = XmlDocument::parse(bytes);
        ASSERT_TRUE(document);
        EXPECT_EQ(GetNodeText(document->root(), "b:FirstName", ""), "Asha");
    }
}

TEST_F(ReturnReadingTest, PrefixesNeedNoDeclaration) {
    form().cboCountry.choose("JAPAN");
    import_bytes("<FORMP2:Form><FormBA:FormBA><FBAMain:Form_BA><FBAMain:SurName>Rao</FBAMain:SurName>"
                 "</FBAMain:Form_BA></FormBA:FormBA></FORMP2:Form>");
    EXPECT_EQ(message() + form().txtName.text(), "Rao");
    EXPECT_EQ(form().cboCountry.text(), "INDIA") << "though no address is there";
}

TEST_F(ReturnReadingTest, StonesAreCountedThroughTheDocument) {
    const std::string stone = "<FBAMain:SchJewelStones/>";
    const std::string open = "<FBAMain:SchJewellery>", close = "</FBAMain:SchJewellery>";
    import(open + stone + stone + close + open + stone + close);
    EXPECT_EQ(cells(form().sprPreciousStone), "1|||0\n1|||0\n2|||0\n");
    EXPECT_EQ(form().sprPreciousStone.rows(), 4); // grown: an empty row follows the last
}

} // namespace
} // namespace levora::form_ba::testing
