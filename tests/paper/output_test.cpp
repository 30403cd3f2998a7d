#include "paper/output.h"

#include "paper/sheet_paper.h"
#include "paper/sheet_text.h"
#include "paper_fixture.h"
#include "widgets/failure.h"
#include "widgets/grid.h"
#include "widgets/screens.h"

#include <QPrinter>

#include <functional>

namespace levora::paper::testing {
namespace {

TEST_F(PaperTest, APdfCarriesTitleAuthorEmbeddedFontsAndTextToSelect) {
    Report report = shipped("RepWealthTax");
    fill_all(report, "Raß & Sons", "5750000");
    const std::string path = pdf(report);
    const std::string information = output_of("pdfinfo " + path);
    EXPECT_NE(information.find("Title:           Statement of Wealth Tax\n"), std::string::npos)
        << information;
    EXPECT_NE(information.find("Author:          Raß & Sons\n"), std::string::npos) << information;
    EXPECT_NE(information.find("(A4)"), std::string::npos) << information;
    EXPECT_NE(output_of("pdftotext " + path + " -").find("Raß & Sons"), std::string::npos);
    const std::string fonts = output_of("pdffonts " + path);
    EXPECT_NE(fonts.find("LiberationSans-Bold"), std::string::npos) << fonts;
    EXPECT_EQ(fonts.find(" no  "), fonts.find(" no  yes")) << "every font is embedded:\n" << fonts;
}

TEST_F(PaperTest, TheTickIsAMarkThatIsReadBackAndNothingElseDrawsOne) {
    Report report = shipped("Challan282");
    report.set_text("tickWealthTax", std::string(document::tick));
    report.set_text("tickGiftTax", "x");
    const QString text =
        QString::fromStdString(output_of("pdftotext -layout " + pdf(report) + " -")).simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("\u2713 (0032) WEALTH TAX"))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("x (0033)")));
}

TEST_F(PaperTest, AFileThatCantBeWrittenIsToldByItsName) {
    const std::string path = folder + "/no/such/place.pdf";
    const Pages pages(shipped("RepWealthTax"));
    const auto to_file = [&] { save_pdf(pages, path); };
    const auto to_printer = [&] {
        QPrinter printer;
        printer.setOutputFileName(QString::fromStdString(path));
        print(pages, printer, 1);
    };
    for (const std::function<void()>& write :
         std::initializer_list<std::function<void()>>{to_file, to_printer})
        try {
            write();
            ADD_FAILURE() << "written nowhere";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, 75);
            EXPECT_NE(std::string(failure.what()).find(path), std::string::npos) << failure.what();
        }
}

TEST_F(PaperTest, WhatIsGivenUpLeavesTheFileAsItWas) {
    const std::string path = folder + "/kept.pdf";
    const Pages pages(shipped("FormBB"));
    save_pdf(pages, path);
    const std::string before = output_of("md5sum " + path + "; ls " + folder);
    const auto first_page = [](int done, int) { return done < 1; };
    save_pdf(pages, path, first_page);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(path));
    print(pages, printer, 1, first_page);
    EXPECT_EQ(output_of("md5sum " + path + "; ls " + folder), before);
    EXPECT_EQ(printer.outputFileName().toStdString(), path);
}

// Where both are rendered, a picture of the preview is a picture of the PDF but for the smoothing of
// edges, which two renderers do each in its own way.
TEST_F(PaperTest, APictureOfThePreviewIsAPictureOfThePdf) {
    Report report = shipped("FormBB");
    fill_all(report, "Some words", "1234567");
    const std::string path = pdf(report);
    output_of("pdftoppm -r 100 -f 1 -l 1 -png -singlefile " + path + " " + folder + "/pdf");
    const QImage of_pdf(QString::fromStdString(folder + "/pdf.png"));
    const QImage preview = picture_of(Pages(report), 1, 100).scaled(of_pdf.size());
    ASSERT_FALSE(of_pdf.isNull());
    // Means of blocks of 8 by 8 dots: ink that is missing or elsewhere shows, smoothing does not.
    int different = 0;
    for (int top = 0; top + 8 <= of_pdf.height(); top += 8)
        for (int left = 0; left + 8 <= of_pdf.width(); left += 8) {
            int sum = 0;
            for (int at = 0; at < 64; ++at)
                sum += qGray(of_pdf.pixel(left + at % 8, top + at / 8)) -
                       qGray(preview.pixel(left + at % 8, top + at / 8));
            if (std::abs(sum) / 64 > 40) ++different;
        }
    EXPECT_LT(different, 30) << "of 10,000 blocks";
}

TEST_F(PaperTest, SearchFindsWordsWithoutRegardToCaseWhereTheyStand) {
    Report report = shipped("FormBB");
    report.set_text("txtReprName", "Kamala Rao");
    const std::vector<Pages::Found> found = Pages(report).find(QStringLiteral("RAO"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].page, 1);
    EXPECT_NEAR(found[0].area.top(), 10 + 24 + 97 + 1.8, 1); // its row begins at 97 of the second section
    EXPECT_GT(found[0].area.left(), 12 + 50 + 10);           // behind the first name
    EXPECT_TRUE(Pages(report).find(QString()).empty());
}

TEST_F(PaperTest, CharactersThatNoFontHasAreCountedEachOnce) {
    Report report = shipped("FormBB");
    EXPECT_EQ(Pages(report).characters_without_font(), 0);
    // The last place of the private use plane, twice; the rupee sign is found in the second family.
    report.set_text("txtReprName", "\U0010FFFD \u20B9 \U0010FFFD");
    EXPECT_EQ(Pages(report).characters_without_font(), 1);
}

TEST_F(PaperTest, APrinterGetsItsPagesInAllCopiesAndNoneWhenNoneAreAsked) {
    ensure_application();
    const Pages pages(shipped("FormBB")); // three pages
    struct Case {
        int copies;
        int from; // the range chosen for the printer; 0 for all
        int to;
        const char* pages;
    };
    for (const Case& each : {Case{1, 0, 0, "Pages:           3\n"}, Case{2, 0, 0, "Pages:           6\n"},
                             Case{2, 2, 3, "Pages:           4\n"}}) {
        QPrinter printer;
        printer.setFromTo(each.from, each.to);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(folder + "/printed.pdf"));
        print(pages, printer, each.copies);
        EXPECT_NE(output_of("pdfinfo " + folder + "/printed.pdf").find(each.pages), std::string::npos);
    }
    QPrinter printer;
    printer.setOutputFileName(QString::fromStdString(folder + "/none.pdf"));
    print(pages, printer, 0);
    EXPECT_FALSE(std::filesystem::exists(folder + "/none.pdf"));
}

TEST(SheetTextTest, CodesOfHeadersAndFooters) {
    const auto described = [](const char* coded) {
        std::string all;
        for (const SheetLine& line : sheet_lines(coded))
            all += "[" + line.text.toStdString() + " " + QString::number(line.look.size).toStdString() +
                   (line.look.bold ? " bold" : "") +
                   (line.look.align == document::Align::right ? " right]" : "]");
        return all;
    };
    EXPECT_EQ(described("/n /n Assessee Name : A/n /n A. Y.  : 2014-2015/n"),
              "[ 9][ 9][Assessee Name : A 9][ 9][A. Y.  : 2014-2015 9]");
    EXPECT_EQ(described("/fz\"9\"/fb1/rTotal: 5200"), "[Total: 5200 9 bold right]");
    EXPECT_EQ(described("/fz\"x\"1/2"), "[1/2 9]") << "a slash of a text stays";
    EXPECT_EQ(described(""), "");
}

struct SheetForm : widgets::Form {
    explicit SheetForm(widgets::Screens& screens) : Form(screens, "SheetForm", "") {}
    widgets::Grid grid{*this, "sprGrid", 12, 40};
};

class SheetPaperTest : public PaperTest {
protected:
    SheetPaperTest() {
        screens.define("SheetForm", [this] { return std::make_unique<SheetForm>(screens); });
        grid().set_header(1, "Name");
        grid().design_column(2, widgets::number_cell(0, 1e12, 2, true));
        grid().set_header(2, "Amount");
    }
    widgets::Grid& grid() { return screens.get<SheetForm>("SheetForm").grid; }
    std::string text() {
        const std::string path = folder + "/sheet.pdf";
        save_pdf(pages_of_sheet(grid()), path);
        return output_of("pdftotext -layout " + path + " -");
    }

    widgets::Screens screens;
};

TEST_F(SheetPaperTest, ASheetHasItsHeaderItsDataAndItsFooter) {
    grid().set_text(1, 1, "Plot at Hinjawadi");
    grid().set_text(2, 2, "1234567.5");
    grid().set_column_formula(3, {2, 4}, widgets::difference_formula); // no data, but shown
    grid().print_header = "/n Assessee Name : Asha/n";
    grid().print_footer = "/fz\"9\"/fb1/rTotal: 5200";
    const std::string shown = text();
    for (const char* words : {"Assessee Name : Asha", "Name", "Amount", "Plot at Hinjawadi", "12,34,567.5",
                              " 1234567.5", "Total: 5200"})
        EXPECT_NE(shown.find(words), std::string::npos) << words << "\n" << shown;
    EXPECT_EQ(shown.find("/fz"), std::string::npos);
}

TEST_F(SheetPaperTest, AWideSheetLiesDownAndAWiderOneGoesOnOverPages) {
    const QString words = QStringLiteral("a text of some width here");
    for (int column = 3; column <= 8; ++column)
        grid().set_text(column, 1, words.toStdString());
    Pages lying = pages_of_sheet(grid());
    EXPECT_EQ(lying.count(), 1);
    EXPECT_GT(lying.size().width(), lying.size().height());
    for (int column = 9; column <= 12; ++column)
        grid().set_text(column, 1, words.toStdString());
    Pages wider = pages_of_sheet(grid());
    EXPECT_EQ(wider.count(), 2);
    EXPECT_EQ(wider.find(words).size(), 10U) << "no column is lost";
}

TEST_F(SheetPaperTest, HeadersRepeatWhereALongSheetBreaks) {
    grid().set_rows(120);
    for (int row = 1; row <= 120; ++row)
        grid().set_text(1, row, "row");
    const Pages pages = pages_of_sheet(grid());
    EXPECT_GE(pages.count(), 2);
    EXPECT_EQ(pages.find(QStringLiteral("Amount")).size(), 0U) << "a column behind the data does not print";
    EXPECT_EQ(static_cast<int>(pages.find(QStringLiteral("Name")).size()), pages.count());
}

} // namespace
} // namespace levora::paper::testing
