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

TEST_F(DueDateTest, HalfARupeeGoesToTheEvenOne) {
    sheet().mskDueDate.type("31/07/2014");
    sheet().mskRetDate.type("01/08/2014"); // 1 month
    sheet().txtAssetsSec2ea.set_text("3125000");
    EXPECT_EQ(sheet().txtInterest.text(), "12") << "12.5";
    sheet().txtAssetsSec2ea.set_text("3135000");
    EXPECT_EQ(sheet().txtInterest.text(), "14") << "13.5";
}

TEST_F(DueDateTest, AnIncompleteDateTakesTheInterestAway) {
    sheet().mskRetDate.type("15/11/2014");
    EXPECT_EQ(sheet().txtInterest.text(), "25");
    sheet().mskDueDate.type("30/09");
    EXPECT_EQ(sheet().txtInterest.text(), "");
    EXPECT_EQ(sheet().txtTaxIntPayable.text(), "1234");
}

TEST_F(DueDateTest, NoTaxGivesAnInterestOfNought) {
    sheet().mskRetDate.type("15/11/2014");
    sheet().txtAssetsSec2ea.set_text("0");
    EXPECT_EQ(sheet().txtInterest.text(), "0");
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
}

TEST_F(DueDateTest, AYearWithoutADateInItsRowKeepsTheLiteralOne) {
    fresh.run(Store::income_tax, "INSERT INTO AYRetDate (AY, AuditRetDueDate) VALUES ('2014', Null)");
    EXPECT_TRUE(start());
    EXPECT_EQ(sheet().mskDueDate.text(), "30/09/2014");
}

} // namespace levora::computation
