#include "paper_fixture.h"

#include <cmath>
#include <map>

namespace levora::paper::testing {
namespace {

const std::string long_words =
    "Sriramakrishna Venkataraghavan Subramaniam Padmanabhapuram of the house on the long road behind the "
    "temple near the old railway station of Thiruvananthapuram, fourth floor, flat twenty-two B";

// The area that a text covers; of a cut one what is left of it. Ascent and descent as drawn.
QRectF area_of(Fonts& fonts, const TextMark& mark) {
    const double cap_height = fonts.ascent(mark.font) * 0.8;
    const double descent = cap_height * 0.25;
    if (mark.turned)
        return {mark.baseline.x() - cap_height, mark.baseline.y() - mark.width, cap_height, mark.width};
    QRectF area(mark.baseline.x(), mark.baseline.y() - cap_height, mark.width, cap_height + descent);
    return mark.clip ? area.intersected(*mark.clip) : area;
}

// The upright edges of frames and rules.
std::vector<QLineF> upright_edges(const Marks& page) {
    std::vector<QLineF> edges;
    for (const Mark& mark : page) {
        if (const auto* frame = std::get_if<RectangleMark>(&mark)) {
            edges.emplace_back(frame->area.topLeft(), frame->area.bottomLeft());
            edges.emplace_back(frame->area.topRight(), frame->area.bottomRight());
        } else if (const auto* rule = std::get_if<LineMark>(&mark); rule && rule->line.dx() == 0) {
            edges.push_back(rule->line);
        }
    }
    return edges;
}

bool crosses(const QLineF& edge, const QRectF& text) {
    constexpr double touch = 0.05;
    return edge.x1() > text.left() + touch && edge.x1() < text.right() - touch &&
           std::max(edge.y1(), edge.y2()) > text.top() + touch &&
           std::min(edge.y1(), edge.y2()) < text.bottom() - touch;
}

// Texts that lie over one another or over the edge of a box, and texts that leave the sheet.
std::string collisions(const Report& report) {
    Fonts fonts;
    std::string all;
    int number = 0;
    for (const Marks& page : lay_out(fonts, report)) {
        ++number;
        std::vector<std::pair<QRectF, std::string>> texts;
        for (const Mark& mark : page)
            if (const auto* text = std::get_if<TextMark>(&mark))
                texts.emplace_back(area_of(fonts, *text), text->text.toStdString());
        const std::vector<QLineF> edges = upright_edges(page);
        const QRectF sheet(0, 0, report.layout().page_width, report.layout().page_height);
        for (std::size_t one = 0; one < texts.size(); ++one) {
            if (!sheet.contains(texts[one].first))
                all += std::to_string(number) + ": off the sheet: " + texts[one].second + "\n";
            for (const QLineF& edge : edges)
                if (crosses(edge, texts[one].first))
                    all += std::to_string(number) + ": over an edge: " + texts[one].second + "\n";
            for (std::size_t other = one + 1; other < texts.size(); ++other) {
                const QRectF common = texts[one].first.intersected(texts[other].first);
                if (common.width() > 0.05 && common.height() > 0.05)
                    all += std::to_string(number) + ": " + texts[one].second + " / " + texts[other].second +
                           "\n";
            }
        }
    }
    return all;
}

TEST_F(PaperTest, NothingOverlapsWhateverTheFormsHold) {
    for (const char* name : {"Challan282", "FormBB", "RepWealthTax"}) {
        SCOPED_TRACE(name);
        Report empty = shipped(name);
        EXPECT_EQ(collisions(empty), "");

        Report ordinary = shipped(name);
        fill_all(ordinary, "AB 12", "1234567");
        Report full = shipped(name);
        fill_all(full, long_words, "123456789012345678901234567890");
        for (const document::Section& section : ordinary.layout().sections)
            if (section.table) {
                ordinary.set_rows(section.table->subreport, rows_of(3, "1234567"));
                full.set_rows(section.table->subreport, rows_of(12, long_words));
            }
        EXPECT_EQ(collisions(ordinary), "");
        EXPECT_EQ(collisions(full), "");
    }
}

// Where words stand on a page of a PDF, in millimetres, by the word.
std::map<std::string, QRectF> words_of(const std::string& pdf) {
    std::map<std::string, QRectF> words;
    const QString all = QString::fromStdString(output_of("pdftotext -bbox " + pdf + " -"));
    for (const QString& line : all.split(QLatin1Char('\n'))) {
        if (!line.contains(QLatin1String("<word "))) continue;
        const QStringList parts = line.split(QLatin1Char('"'));
        const auto millimetres = [&](int at) { return parts.at(at).toDouble() * 25.4 / 72; };
        const QString text = parts.at(8).section(QLatin1Char('>'), 1).section(QLatin1Char('<'), 0, 0);
        words.emplace(text.toStdString(), QRectF(QPointF(millimetres(1), millimetres(3)),
                                                 QPointF(millimetres(5), millimetres(7))));
    }
    return words;
}

TEST_F(PaperTest, ChallanDataLieInTheirBoxesAndMoveWithTheMargins) {
    struct Case {
        const char *object, *word;
        QRectF box; // on the sheet with margins of nothing: the form lies 10 right and 5 below its corner
    };
    const Case cases[] = {
        {"txtAY", "2014-2015", {155, 16, 32, 7}},        {"txtFY", "2013-2014", {155, 30, 32, 7}},
        {"txtName1", "ASHA", {12, 62, 176, 6}},          {"txtAddr2", "PUNE", {12, 80, 176, 6}},
        {"txtAmtTax", "12,00,000", {70, 114, 48, 6}},    {"txtAmtTotal", "12,34,567", {70, 150, 48, 6}},
        {"txtLakhsA", "Twelve", {28, 164, 18, 5}},       {"txtThousandsB", "Four", {46, 169, 18, 5}},
        {"txtUnits", "Seven", {100, 166.5, 18, 5}},      {"txtChqBank", "Statebank", {25, 181, 92, 5}},
        {"txtFoilPAN", "AAAPR1234C", {25, 210, 50, 5}},  {"txtFoilAY", "2015-2016", {46, 263.5, 21, 5}},
        {"lblTaxName", "WEALTHTAX", {33, 249.5, 84, 5}}, {"txtChallanDate", "15/09/2014", {20, 192, 25, 5}},
    };
    for (const int margin_twips : {0, 567}) { // 10 mm
        Report report = shipped("Challan282");
        report.top_margin_twips = report.left_margin_twips = margin_twips;
        for (const Case& each : cases)
            report.set_text(each.object, each.word);
        const std::map<std::string, QRectF> words = words_of(pdf(report));
        for (const Case& each : cases) {
            SCOPED_TRACE(std::string(each.object) + (margin_twips ? " moved" : ""));
            ASSERT_TRUE(words.contains(each.word));
            const QRectF found = words.at(each.word);
            const double moved = margin_twips / 56.7;
            EXPECT_TRUE(each.box.translated(moved, moved).adjusted(-0.1, -0.3, 0.1, 0.3).contains(found))
                << found.left() << " " << found.top() << " " << found.right() << " " << found.bottom();
        }
    }
}

TEST_F(PaperTest, OnPrePrintedStationeryOnlyTheDataPrint) {
    Report report = shipped("Challan282");
    report.set_text("txtAmtTotal", "12,34,567");
    const QRectF with_form = words_of(pdf(report)).at("12,34,567");
    report.suppress("SecChallan282Form", true);
    const std::map<std::string, QRectF> words = words_of(pdf(report));
    ASSERT_EQ(words.size(), 1U);
    EXPECT_LT(std::abs(words.at("12,34,567").right() - with_form.right()), 0.01);
    EXPECT_LT(std::abs(words.at("12,34,567").top() - with_form.top()), 0.01);
}

TEST_F(PaperTest, TheBarCodeReadsBackFromThePicture) {
    struct Case {
        const char *why, *text, *read;
    };
    constexpr Case cases[] = {
        {"a PAN", "*ABCDE1234F*", "CODE-39:ABCDE1234F\n"},
        {"other characters of Code 39", "*AB/12-3 X*", "CODE-39:AB/12-3 X\n"},
        {"an empty PAN", "**", ""},
        {"empty", "", ""},
        {"small letters are not of Code 39", "*abcde1234f*", ""},
        {"too long for bars of a quarter of a millimetre", "*ABCDEFGHIJKLMNOPQRST*", ""},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        Report report = shipped("Challan282");
        report.set_text("txtPANBarCode", each.text);
        picture_of(Pages(report), 1, 200).save(QString::fromStdString(folder + "/page.png"));
        EXPECT_EQ(
            output_of("zbarimg --nodbus -q --set '*.enable=0' --set code39.enable=1 " + folder + "/page.png"),
            each.read);
    }
}

TEST_F(PaperTest, SchedulesRepeatBandAndHeadOnEachPageAndKeepTheTotalWithTheLastRow) {
    Report report = shipped("FormBB");
    report.set_rows("SchMP", rows_of(200, "99"));
    report.set_text("txtFooter", "ASHA RAO / A.Y-2014-2015");
    const std::string path = pdf(report);
    const int pages = Pages(report).count();
    Fonts fonts;
    for (const Marks& page : lay_out(fonts, report))
        EXPECT_TRUE(std::any_of(page.begin(), page.end(), [](const Mark& mark) {
            const auto* frame = std::get_if<RectangleMark>(&mark);
            return frame && frame->width == 0.5 && frame->area.width() == 186;
        })) << "the outer frame, also of a schedule's middle pages";
    int with_rows = 0;
    int rows = 0;
    int total_page = 0;
    int last_row_page = 0;
    for (int page = 1; page <= pages; ++page) {
        const std::string number = std::to_string(page);
        const std::string text =
            output_of("pdftotext -layout -f " + number + " -l " + number + " " + path + " -");
        const auto count = [&text](const std::string& words) {
            int found = 0;
            for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
                ++found;
            return found;
        };
        EXPECT_EQ(count("ASHA RAO / A.Y-2014-2015"), 1) << page;
        EXPECT_EQ(count("Page " + number + " of " + std::to_string(pages)), 1);
        const int here = count(" 99 ");
        if (here > 0) {
            ++with_rows;
            rows += here;
            last_row_page = page;
            EXPECT_EQ(count("Movable Property (Other than jewellery)"), 1) << page;
            EXPECT_EQ(count("Debts owed in relation to the"), 1) << page;
        }
        if (count("4 Total") > 0) total_page = page;
    }
    EXPECT_EQ(with_rows, 5); // at most 51 rows of 5 under a head of 9 on 272
    EXPECT_EQ(total_page, last_row_page);
    EXPECT_EQ(rows, 600); // three of the four columns end on a blank
}

TEST_F(PaperTest, ARowHigherThanAPageGoesOnOverThePages) {
    Report report = shipped("FormBB");
    std::string words;
    for (int number = 1; number <= 2000; ++number)
        words += "w" + std::to_string(number) + " ";
    report.set_rows("SchACE", rows_of(1, words));
    const std::string text = output_of("pdftotext " + pdf(report) + " -");
    for (const char* word : {"w1", "w777", "w2000"})
        EXPECT_NE(text.find(word), std::string::npos) << word;
}

TEST_F(PaperTest, AnEmptyScheduleKeepsItsBandAndAPairOfFormsItsPages) {
    const Report report = shipped("FormBB");
    EXPECT_EQ(Pages(report).count(), 3);
    const std::string text = output_of("pdftotext -layout " + pdf(report) + " -");
    for (const char* band :
         {"Part B TP", "Schedule IP", "Schedule MP", "Schedule JE", "Annexure to Schedule JE", "Schedule INW",
          "Schedule IFW", "Schedule ACE", "Schedule OPR"})
        EXPECT_NE(text.find(band), std::string::npos) << band;

    Report without = shipped("FormBB");
    without.suppress_section(10, true);
    EXPECT_EQ(output_of("pdftotext -layout " + pdf(without) + " -").find("Annexure"), std::string::npos);
}

TEST_F(PaperTest, ALongAddressMovesWhatLiesBelowIt) {
    Report report = shipped("FormBB");
    report.set_text("txtReprName", "Above");
    report.set_text("txtReprAddress", "Short");
    report.set_text("txtNetWealthTax", "Below");
    const auto before = words_of(pdf(report));
    report.set_text("txtReprAddress", long_words);
    const auto after = words_of(pdf(report));
    EXPECT_NEAR(after.at("Above").top(), before.at("Above").top(), 0.01);
    EXPECT_NEAR(after.at("Sriramakrishna").top(), before.at("Short").top(), 0.01);
    const double moved = after.at("Below").top() - before.at("Below").top();
    EXPECT_GT(moved, 3); // one line of 9 points and more
    EXPECT_LT(moved, 13);
}

TEST_F(PaperTest, TheStatementStaysOnItsPageWithAllItsWords) {
    Report report = shipped("RepWealthTax");
    fill_all(report, "x", "12345678");
    for (const char* object : {"Assessee_Name", "txtRepAddress1", "txtRepAddress2", "txtRepCity"})
        report.set_text(object, long_words + " end-of-" + object);
    report.set_text("barNetWealth", "999999999999999");
    const Pages pages(report);
    EXPECT_EQ(pages.count(), 1);
    for (const char* object : {"Assessee_Name", "txtRepAddress1", "txtRepAddress2", "txtRepCity"})
        EXPECT_EQ(pages.find(QStringLiteral("end-of-") + QLatin1String(object)).size(), 1U) << object;
    // The longest figure stands whole beside its bar.
    Fonts fonts;
    int whole = 0;
    const auto laid_out = lay_out(fonts, report);
    for (const Mark& mark : laid_out.front())
        if (const auto* text = std::get_if<TextMark>(&mark); text && text->text == u"99,99,99,99,99,99,999")
            whole += text->clip ? 0 : 1;
    EXPECT_EQ(whole, 1);
}

} // namespace
} // namespace levora::paper::testing
