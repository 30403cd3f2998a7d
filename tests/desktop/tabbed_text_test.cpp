#include "desktop/column_widths.h"
#include "desktop/tabbed_text.h"

#include "widgets/grid.h"

#include <gtest/gtest.h>

namespace levora::desktop {

TEST(TabbedTextTest, CellsAreReadAsSpreadsheetsWriteThem) {
    struct Case {
        const char* given;
        const char* cells; // "|" between cells, "/" behind a row
        const char* reason;
    };
    for (const Case& each : {
             Case{"A\tB\nC\tD\n", "A|B/C|D/", "a line end behind the last row"},
             {"A\r\nB\rC", "A/B/C/", "whatever the line ends"},
             {"A\t\n\tB", "A|/|B/", "empty cells at either end"},
             {"\n", "/", "one empty cell"},
             {"", "", "nothing"},
             {"\"A\nB\"\tC", "A\nB|C/", "a line break within a cell"},
             {"\"12\"\" pipe\"\t\"\"", "12\" pipe|/", "doubled quotes, and a quoted nothing"},
             {"12\" pipe\tB", "12\" pipe|B/", "a quote inside opens nothing"},
             {"\"open\tB", "\"open|B/", "a quote that is never closed"},
             {"\"A\" B\tC", "\"A\" B|C/", "a quote that closes too early"},
         }) {
        QString cells;
        for (const QStringList& row : tabbed_rows(QString::fromUtf8(each.given)))
            cells += row.join(QLatin1Char('|')) + QLatin1Char('/');
        EXPECT_EQ(cells.toStdString(), each.cells) << each.reason;
    }
    const std::vector<QStringList> awkward{{QStringLiteral("a\tb"), QStringLiteral("c\nd")},
                                           {QStringLiteral("\"e\""), QString()}};
    EXPECT_EQ(tabbed_rows(tabbed_text(awkward)), awkward);
}

TEST(TabbedTextTest, FiguresAndDatesComeInASpreadsheetsDress) {
    const auto number = widgets::number_cell(-1e9, 1e9, 2);
    const auto date = widgets::date_cell({1990, 1, 1}, {2100, 12, 31});
    const auto shaped = [](const char* given, const widgets::CellDesign& design) {
        return cell_text(QString::fromUtf8(given), design).toStdString();
    };
    EXPECT_EQ(shaped("₹ 1,25,000.50", number), "1,25,000.50");
    EXPECT_EQ(shaped("Rs. 500", number), "500");
    EXPECT_EQ(shaped("(1,000)", number), "-1,000");
    EXPECT_EQ(shaped("2014-06-15", date), "15/06/2014");
    EXPECT_EQ(shaped("5-6-2014", date), "05/06/2014");
    EXPECT_EQ(shaped("TRUE", widgets::check_cell()), "1");
    EXPECT_EQ(shaped("Flat 4\nFort", widgets::text_cell()), "Flat 4 Fort");
    EXPECT_EQ(shaped("(500)", widgets::text_cell()), "(500)");
}

TEST(ColumnWidthsTest, ColumnsShareTheRoomThereIs) {
    const std::vector<ColumnNeed> columns{{100, 100, 100}, {50, 100, 200}, {60, 80, 180}};
    struct Case {
        int room;
        std::vector<int> widths;
        const char* reason;
    };
    for (const Case& each : {
             Case{280, {100, 100, 80}, "as told"},
             {380, {100, 150, 130}, "what is left over goes to those that can use it"},
             {900, {100, 200, 180}, "wider would only be empty"},
             {245, {100, 75, 70}, "narrower, so that nothing scrolls: half way to the least"},
             {210, {100, 50, 60}, "the least that fits"},
             {209, {100, 100, 80}, "what can't fit scrolls, at its told width"},
         })
        EXPECT_EQ(fit_columns(columns, each.room), each.widths) << each.reason;
}

} // namespace levora::desktop
