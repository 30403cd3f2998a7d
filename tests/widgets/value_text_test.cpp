#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace levora;

namespace {

// The number of the Failure that a call throws, 0 for none.
template <class Call> int failed_with(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.number;
    }
    return 0;
}

TEST(ValueTextTest, ValReadsTheLeadingNumber) {
    struct Case {
        const char *why, *text;
        double value;
    };
    constexpr Case cases[] = {
        {"a caption", "Details", 0},
        {"blanks are skipped, inside too", " 12 3", 123},
        {"a comma ends it", "1,00,000", 1},
        {"a second point ends it", "1.2.3", 1.2},
        {"signs", "-4.5", -4.5},
        {"a plus in front", "+7", 7},
        {"a sign in the middle ends it", "1-2", 1},
        {"a sign alone", "-", 0},
        {"a point first", ".5x", 0.5},
        {"a point last", "5.", 5},
        {"exponent", "1.5e3", 1500},
        {"negative exponent with a blank", "5e -1", 0.5},
        {"an exponent without digits ends it", "2e", 2},
        {"what follows is left", "12 Rs", 12},
        {"too small for a double", "1e-400", 0},
        {"an exponent by its other letter", "2d3", 2000},
        {"in either case", "2D3", 2000},
        {"nothing, however often", "0e999", 0},
        {"an exponent with a plus", "1E+2", 100},
        {"tabs and line ends are blanks", "\t1\n2\r", 12},
    };
    for (const Case& each : cases)
        EXPECT_EQ(val(each.text), each.value) << each.why;
    EXPECT_THROW(val("1e400"), Failure);
    EXPECT_THROW(val(std::string(400, '9')), Failure);
    EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0);
}

TEST(ValueTextTest, StrictConversionTakesTheWholeTextOrNothing) {
    struct Case {
        const char* text;
        double number;
    };
    for (const auto& [text, number] :
         {Case{" 1234.50 ", 1234.5}, Case{"12,34,567", 1234567}, Case{"1e3", 1000}, Case{"1e+2", 100},
          Case{"-2E-1", -0.2}, Case{"+.5", 0.5}})
        EXPECT_EQ(to_double(text), number) << text;
    for (const char* text :
         {"", "abc", "12a", "1,", ",1", "1..2", "-", "1 2", "--1", "1e", "1e2x", "1.5,0", "1,x", "e5", "1e-"})
        EXPECT_EQ(failed_with([&] { (void)to_double(text); }), error_number::type_mismatch) << text;
}

TEST(ValueTextTest, NumbersAreWrittenShortestWithoutExponent) {
    struct Case {
        double value;
        const char* text;
    };
    constexpr Case cases[] = {{0.0, "0"},
                              {-0.0, "0"},
                              {0.5, "0.5"},
                              {-0.5, "-0.5"},
                              {1234.5, "1234.5"},
                              {0.1 + 0.2, "0.3"},
                              {4412348.75, "4412348.75"},
                              {1e15, "1000000000000000"},
                              {1e21, "1000000000000000000000"},
                              {0.00001, "0.00001"},
                              {123456789012345678.0, "123456789012346000"},
                              {999999999999999.9, "1000000000000000"},
                              {12345678901234.04, "12345678901234"},
                              {1.0 / 3, "0.333333333333333"},
                              {-2.0 / 3, "-0.666666666666667"}};
    for (const Case& each : cases)
        EXPECT_EQ(number_text(each.value), each.text);
    EXPECT_THROW(number_text(std::numeric_limits<double>::infinity()), Failure);
}

TEST(ValueTextTest, RoundsByTheNamedRule) {
    for (const auto& [value, even] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}})
        EXPECT_EQ(round_half_even(value), even);
    EXPECT_EQ(round_half_away(0.5, 0), 1);
    EXPECT_EQ(round_half_away(-2.5, 0), -3);
    // As a text reads, not as it is held.
    for (const auto& [value, away] :
         {std::pair{1.005, "1.01"}, {-9.995, "-10"}, {99.995, "100"}, {12.34, "12.34"}, {2.344, "2.34"}})
        EXPECT_EQ(number_text(round_half_away(value, 2)), away);
}

TEST(ValueTextTest, OnlyLettersHaveACase) {
    EXPECT_TRUE(equal_without_case("aZ", "Az"));
    EXPECT_FALSE(equal_without_case("{", "["));
    EXPECT_FALSE(equal_without_case("`", "@"));
    // A letter that ends in the middle stays as it is, and so do the division sign, \u00DF and \u00FF.
    EXPECT_EQ(upper_case("az`{ \u00E9\u00FE \u00F7\u00DF\u00FF \xC3"),
              "AZ`{ \u00C9\u00DE \u00F7\u00DF\u00FF \xC3");
}

TEST(ValueTextTest, WholeNumbersOverflowInsteadOfWrapping) {
    EXPECT_EQ(to_long(2147483647.4), 2147483647);
    EXPECT_EQ(to_long("12,34,567"), 1234567);
    EXPECT_EQ(to_integer(32767.4), 32767);
    EXPECT_EQ(to_integer("2.5"), 2);
    for (const auto overflows : {+[] { (void)to_long(2147483647.5); }, +[] { (void)to_integer(32767.5); },
                                 +[] { (void)to_long("1e300"); }, +[] { (void)to_long(-2147483649.0); },
                                 +[] { (void)to_integer(-32769.0); }})
        EXPECT_EQ(failed_with(overflows), error_number::overflow);
}

TEST(ValueTextTest, GroupsByLakhAndCrore) {
    struct Case {
        double amount;
        int decimals;
        const char* text;
    };
    constexpr Case cases[] = {{0, 0, "0"},
                              {999, 0, "999"},
                              {1000, 0, "1,000"},
                              {123456789, 0, "12,34,56,789"},
                              {-100000, 0, "-1,00,000"},
                              {4412348.75, 2, "44,12,348.75"},
                              {1.5, 2, "1.50"},
                              {100000, 2, "1,00,000.00"}};
    for (const Case& each : cases)
        EXPECT_EQ(group_indian(each.amount, each.decimals), each.text);
    EXPECT_EQ(group_indian_text("100000.25"), "1,00,000.25");
}

} // namespace
