#include "session/common_services.h"

#include "session/code_tables.h"
#include "widgets/value_text.h"

#include <array>
#include <cmath>

namespace levora::session {

std::string AmtPartToWords(std::uint8_t part) {
    static constexpr std::array<std::string_view, 20> small{
        "Zero",     "One",     "Two",     "Three",     "Four",     "Five",    "Six",
        "Seven",    "Eight",   "Nine",    "Ten",       "Eleven",   "Twelve",  "Thirteen",
        "Fourteen", "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
    static constexpr std::array<std::string_view, 10> tens{"",      "",      "Twenty",  "Thirty", "Forty",
                                                           "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};
    if (part > 99) return {};
    if (part < small.size()) return std::string(small.at(part));
    std::string words(tens.at(part / 10U));
    if (part % 10 != 0) words += " " + std::string(small.at(part % 10U));
    return words;
}

std::string AmtToWords(std::int32_t amount) {
    struct Unit {
        std::int32_t size;
        std::string_view name;
    };
    static constexpr std::array<Unit, 4> units{
        {{10'000'000, " Crore "}, {100'000, " Lakh "}, {1'000, " Thousand "}, {100, " Hundred "}}};
    if (amount <= 0) return "Nil";
    std::string words;
    for (const Unit& unit : units) {
        const std::int32_t count = amount / unit.size;
        // Wanted: 100 crore and more have no word for their count, and so begin with " Crore ".
        if (count > 0) words += AmtPartToWords(static_cast<std::uint8_t>(count)) + std::string(unit.name);
        amount -= count * unit.size;
    }
    if (amount > 0) words += AmtPartToWords(static_cast<std::uint8_t>(amount));
    return words;
}

double RoundToHundred(double amount) {
    const double hundreds = std::floor(amount / 100);
    const std::int16_t remainder = to_integer(amount - hundreds * 100);
    return (remainder >= 50 ? hundreds + 1 : hundreds) * 100;
}

std::string CountryToISD(std::string_view country) {
    for (const CountryCode& each : country_codes())
        if (each.name == trimmed(country)) return std::string(each.isd);
    return {};
}

std::string StateToCode(std::string_view state) {
    const std::string wanted = upper_case(state);
    for (const StateCode& each : state_codes())
        if (each.name == wanted) return std::string(each.code);
    return "99";
}

std::string CodeToState(std::string_view code) {
    for (const StateCode& each : state_codes())
        if (each.code == code) return std::string(each.name);
    return "OTHERS";
}

std::vector<std::string> country_names() {
    std::vector<std::string> names;
    for (const CountryCode& each : country_codes())
        names.emplace_back(each.name);
    return names;
}

std::vector<std::string> state_names() {
    std::vector<std::string> names;
    for (const StateCode& each : state_codes())
        names.emplace_back(each.name);
    return names;
}

void SkinButtons(widgets::Form&) {
    // Shape and colours of the buttons come with the window's style, whatever the screen.
}

void PreviewForm(Session& session) {
    procedure(session, "LevoraMod - PreviewForm", [&](const Attempt& attempt) {
        attempt([&] {
            if (session.screens.find("frmRepPreview")) session.screens.unload("frmRepPreview");
        });
        attempt([&] { session.screens.show("frmRepPreview"); });
    });
}

} // namespace levora::session
