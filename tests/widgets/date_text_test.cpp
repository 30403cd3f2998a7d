#include "widgets/date_text.h"

#include <gtest/gtest.h>

using namespace levora;

namespace {

TEST(DateTextTest, ReadsDayFirstAndRefusesWhatTheCalendarLacks) {
    struct Case {
        const char *text, *iso;
    };
    constexpr Case dates[] = {{"15/09/2014", "2014-09-15"},   {"5/9/2014", "2014-09-05"},
                              {"5-9-2014", "2014-09-05"},     {"5.9.2014", "2014-09-05"},
                              {" 05/09/2014 ", "2014-09-05"}, {"2014-09-05", "2014-09-05"},
                              {"29/02/2016", "2016-02-29"},   {"29/02/2000", "2000-02-29"}};
    for (const Case& each : dates)
        EXPECT_EQ(as_iso_date(each.text), each.iso) << each.text;
    for (const char* none :
         {"29/02/2015", "29/02/1900",  "31/04/2014",  "01/25/2014",  "00/01/2014", "15/09/14",
          "15/09-2014", "15/09/20145", "115/09/2014", "__/__/____",  "15/09/201_", "",
          "15",         "15/",         "15/09",       "15/09/",      "15/x/2014",  "15x09/2014",
          "2014-",      "2014-09",     "2014-x-05",   "2014-09-05x", "2014-13-01", "0000-01-01",
          "2014",       "2014/09/05",  "2014-09/05",  "01/00/2014",  "2014-09-"})
        EXPECT_FALSE(parse_date(none)) << none;
}

TEST(DateTextTest, FormatsLeaveOtherTextAlone) {
    EXPECT_EQ(as_day_month_year("2014-9-5"), "05/09/2014");
    EXPECT_EQ(as_iso_date("__/__/____"), "__/__/____");
    EXPECT_EQ(as_day_month_year("31/04/2014"), "31/04/2014");
    EXPECT_EQ(month_day_year({2014, 9, 5}), "09/05/2014");
}

TEST(DateTextTest, CountsMonthBoundariesAndDays) {
    EXPECT_EQ(months_between({2014, 8, 1}, {2015, 7, 31}), 11);
    EXPECT_EQ(months_between({2014, 9, 30}, {2014, 10, 1}), 1);
    EXPECT_EQ(months_between({2015, 1, 1}, {2014, 12, 31}), -1);
    EXPECT_EQ(next_day({2014, 12, 31}), (Date{2015, 1, 1}));
    EXPECT_EQ(next_day({2016, 2, 28}), (Date{2016, 2, 29}));
}

} // namespace
