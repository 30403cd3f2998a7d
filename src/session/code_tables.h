#pragma once

#include <span>
#include <string_view>

namespace levora::session {

// The tables behind CountryToISD, StateToCode and CodeToState.
struct CountryCode {
    std::string_view name;
    std::string_view isd;
};
struct StateCode {
    std::string_view code;
    std::string_view name;
};

std::span<const CountryCode> country_codes();
std::span<const StateCode> state_codes();

} // namespace levora::session
