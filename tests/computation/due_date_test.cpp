#include "computation/due_date.h"

#include "computation/sheet_fixture.h"

namespace levora::computation {

TEST(MonthsLate, CountsCalendarMonthsAndPartsOfThem) {
    struct Case {
        const char *why, *due, *filed;
        int months;
    };
    constexpr Case cases[] = {
        {"on the day", "30/09/2014", "30/09/2014", 0},
        {"before it", "30/09/2014", "15/08/2014", 0},
        {"one day late, in the next month", "30/09/2014", "01/10/2014", 1},
        {"late in the same month", "15/09/2014", "16/09/2014", 1},
        {"same month a year on", "15/09/2014", "16/09/2015", 13},
        {"a month and a half", "31/07/2014", "15/09/2014", 2},
        {"the second month's first day", "30/09/2014", "01/11/2014", 2},
        {"a full year", "31/07/2014", "31/07/2015", 12},
        {"over the turn of the year", "31/12/2014", "01/01/2015", 1},
        {"February of a leap year", "28/02/2016", "01/03/2016", 2},
        {"an open date", "30/09/2014", "__/__/____", 0},
        {"no day of the calendar", "31/04/2014", "30/09/2014", 0},
    };
    for (const Case& each : cases)
        EXPECT_EQ(months_late(each.due, each.filed), each.months) << each.why;
}

class DueDateTest : public SheetTest {
protected:
    DueDateTest() {
        EXPECT_TRUE(start());
        sheet().txtAssetsSec2ea.set_text("3123400"); // a tax of 1234
    }
};

TEST_F(DueDateTest, WantedOnlyTheFilingDateRoundsTheInterest) {
    EXPECT_TRUE(sheet().mskDueDate.type("31/07/2014"));
    EXPECT_TRUE(sheet().mskRetDate.type("15/10/2014"));
    EXPECT_EQ(sheet().txtInterest.text(), "37");
    sheet().mskDueDate.type("01082014");
    EXPECT_EQ(sheet().txtInterest.text(), "37.02");
    sheet().txtLessDebt.type("100"); // a tax of 1233
    EXPECT_EQ(sheet().txtInterest.text(), "37") << "a changed tax runs the filing date's handler";
    EXPECT_EQ(sheet().txtTaxIntPayable.text(), "1270");
}

TEST_F(DueDateTest, AChangedTaxBringsWholeRupeesOfInterest) {
    struct Case {
        const char *why, *due, *filed, *assets, *interest, *payable;
    };
    constexpr Case cases[] = {
        {"12.5 goes to the even rupee", "31/07/2014", "01/08/2014", "3125000", "12", "1262"},
        {"so does 13.5", "31/07/2014", "01/08/2014", "3135000", "14", "1364"},
        {"no tax", "31/07/2014", "01/08/2014", "0", "0", "0"},
        {"an open date takes the interest away", "30/09", "15/11/2014", "3123400", "", "1234"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        sheet().mskDueDate.type(each.due);
        sheet().mskRetDate.type(each.filed);
        sheet().txtAssetsSec2ea.set_text(each.assets);
        EXPECT_EQ(sheet().txtInterest.text(), each.interest);
        EXPECT_EQ(sheet().txtTaxIntPayable.text(), each.payable);
    }
}

TEST_F(DueDateTest, WantedATickLooksAtNoTableAndRunsTheDatesInOrder) {
    fresh.run(Store::income_tax, "INSERT INTO AYRetDate (AY, AuditRetDueDate) VALUES ('2014', '2014-11-30')");
    EXPECT_TRUE(start());
    EXPECT_EQ(sheet().mskDueDate.text(), "30/11/2014");
    sheet().txtAssetsSec2ea.set_text("3123400");

    fresh.desk.set_today({2014, 10, 15});
    EXPECT_TRUE(sheet().chkAudited.click());
    EXPECT_EQ(sheet().mskDueDate.text(), "31/07/2014");
    EXPECT_EQ(sheet().mskRetDate.text(), "15/10/2014");
    EXPECT_EQ(sheet().txtInterest.text(), "37") << "the filing date changed last";
    EXPECT_TRUE(sheet().chkAudited.click());
    EXPECT_EQ(sheet().mskDueDate.text(), "30/09/2014");
    EXPECT_EQ(sheet().txtInterest.text(), "12.34") << "today stood there already: not rounded";

    fresh.run(Store::income_tax, "UPDATE AYRetDate SET AuditRetDueDate = Null");
    EXPECT_TRUE(start());
    EXPECT_EQ(sheet().mskDueDate.text(), "30/09/2014") << "a year without a date";
}

} // namespace levora::computation
