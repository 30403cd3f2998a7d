#include "document/layout_file.h"
#include "document/report.h"
#include "document/report_files.h"
#include "session/data_folder.h"
#include "widgets/failure.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace levora::document {
namespace {

using session::testing::failure_of;

std::string fault_of(const std::string& section_content) {
    const std::string text = "<report name=\"R\" body-x=\"0-186\" body-y=\"10-282\">\n<section name=\"S\" "
                             "height=\"20\">\n" +
                             section_content + "\n</section>\n</report>";
    return failure_of([&] { parse_layout(text, "R.rpt"); });
}

TEST(LayoutFileTest, AFaultNamesFileLineAndWhatIsWrong) {
    struct Case {
        const char *why, *content, *fault;
    };
    constexpr Case cases[] = {
        {"a fine one", R"(<text x="1-2" y="3-4">Hello</text>)", "none"},
        {"an unknown thing", R"(<textt x="1-2" y="3-4"/>)", "321 R.rpt, line 3: <textt> is unknown"},
        {"a mistyped attribute is never ignored", R"(<text x="1-2" y="3-4" bolt="yes"/>)",
         "321 R.rpt, line 3: <text> has an unknown attribute \"bolt\""},
        {"a span the wrong way round", R"(<text x="12-3" y="3-4"/>)",
         "321 R.rpt, line 3: <text> \"x\" is not a span like \"12-40\": \"12-3\""},
        {"an object without a name", R"(<object x="1-2" y="3-4"/>)",
         "321 R.rpt, line 3: <object> has no \"name\""},
        {"a word where a number belongs", R"(<text x="1-2" y="3-4" size="big"/>)",
         "321 R.rpt, line 3: <text> \"size\" is not a number: \"big\""},
        {"more squares than a page could hold", R"(<squares x="1" y="3" count="1e9"/>)",
         "321 R.rpt, line 3: <squares> \"count\" is 1000000000 and not between 1 and 200"},
        {"a rule has no area", R"(<rule x="1-2" y="3-4"/>)",
         "321 R.rpt, line 3: <rule> is neither upright nor level"},
        {"two objects of one name",
         "<object name=\"a\" x=\"1\" y=\"1\"/>\n<tick name=\"a\" x=\"1\" y=\"1\"/>",
         "321 R.rpt, line 1: <report> has two objects \"a\""},
        {"an element left open", "<text x=\"1-2\" y=\"3-4\">",
         "321 R.rpt, line 4: Opening and ending tag mismatch: text line 3 and section"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(fault_of(each.content), each.fault) << each.why;
}

TEST(LayoutFileTest, FormBBKeepsTheNumbersByWhichSectionsAreCalled) {
    const Report report(open_layout(LEVORA_BIN, "FormBB"));
    std::string sections;
    for (const Section& each : report.layout().sections)
        sections += each.name + (each.table ? " " + each.table->subreport : "") + "\n";
    EXPECT_EQ(sections, "Section1\nSection2\nSection3\nDetailSection5\nDetailSection2 PaidDetails\n"
                        "DetailSection1\nDetailSection3 SchIP\nDetailSection6 SchMP\nDetailSection7 SchJE\n"
                        "DetailSection8 Annexure\nDetailSection9 SchINW\nDetailSection10 SchIFA\n"
                        "DetailSection11 SchACE\nDetailSection4\nSection4\nSection5\n");
    EXPECT_EQ(report.section_number("DetailSection8"), 10);
}

TEST(LayoutFileTest, TablesOfFormBBFillItsWidthAndFindTheirTotals) {
    for (const Section& section : open_layout(LEVORA_BIN, "FormBB").sections) {
        if (!section.table) continue;
        SCOPED_TRACE(section.name);
        double width = 0;
        bool total_has_column = section.table->total_field.empty();
        for (const TableColumn& column : section.table->columns) {
            width += column.width;
            total_has_column |= column.field == section.table->total_under;
        }
        EXPECT_NEAR(width, 186, 1e-9);
        EXPECT_TRUE(total_has_column);
    }
}

TEST(LayoutFileTest, ADoctypeIsRefusedAndOnlyFormBBNeedsItsFile) {
    EXPECT_THROW(parse_layout("<!DOCTYPE report [<!ENTITY a SYSTEM \"/etc/hostname\">]><report "
                              "name=\"R\" body-x=\"0-1\" body-y=\"0-1\"><section name=\"&a;\"/></report>",
                              "R.rpt"),
                 Failure);
    const std::string nowhere = std::filesystem::temp_directory_path() / "levora-no-such-folder";
    for (const char* name : {"Challan282", "RepWealthTax"})
        EXPECT_EQ(open_layout(nowhere, name).name, name);
    EXPECT_THROW((void)open_layout(nowhere, "FormBB"), Failure);
}

TEST(ReportTest, ObjectsAndSectionsThatAreNotThereAreNamed) {
    Report report(parse_layout("<report name=\"R\" body-x=\"0-1\" body-y=\"0-1\"><section name=\"S\" "
                               "height=\"1\"><object name=\"txtA\" x=\"0-1\" y=\"0-1\">as designed</object>"
                               "</section></report>",
                               "R.rpt"));
    EXPECT_EQ(report.text("txtA"), "as designed");
    report.set_text("txtA", "filled");
    EXPECT_EQ(report.text("txtA"), "filled");
    report.suppress("S", true);
    EXPECT_TRUE(report.section_suppressed(1));
    EXPECT_FALSE(report.suppressed("txtA"));
    EXPECT_EQ(failure_of([&] { report.set_text("txtB", ""); }),
              "9 The report R has no text object \"txtB\".");
    EXPECT_THROW(report.suppress_section(2, true), Failure);
}

} // namespace
} // namespace levora::document
