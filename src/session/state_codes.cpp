#include "session/code_tables.h"

namespace levora::session {

namespace {

// In the order of their codes. The second spelling of state 33 has its code but is never given back.
// clang-format off
constexpr StateCode states[] = {
    {"01", "ANDAMAN AND NICOBAR ISLANDS"},
    {"02", "ANDHRA PRADESH"},
    {"03", "ARUNACHAL PRADESH"},
    {"04", "ASSAM"},
    {"05", "BIHAR"},
    {"06", "CHANDIGARH"},
    {"07", "DADRA AND NAGAR HAVELI"},
    {"08", "DAMAN AND DIU"},
    {"09", "DELHI"},
    {"10", "GOA"},
    {"11", "GUJARAT"},
    {"12", "HARYANA"},
    {"13", "HIMACHAL PRADESH"},
    {"14", "JAMMU AND KASHMIR"},
    {"15", "KARNATAKA"},
    {"16", "KERALA"},
    {"17", "LAKHSWADEEP"},
    {"18", "MADHYA PRADESH"},
    {"19", "MAHARASHTRA"},
    {"20", "MANIPUR"},
    {"21", "MEGHALAYA"},
    {"22", "MIZORAM"},
    {"23", "NAGALAND"},
    {"24", "ORISSA"},
    {"25", "PONDICHERRY"},
    {"26", "PUNJAB"},
    {"27", "RAJASTHAN"},
    {"28", "SIKKIM"},
    {"29", "TAMILNADU"},
    {"30", "TRIPURA"},
    {"31", "UTTAR PRADESH"},
    {"32", "WEST BENGAL"},
    {"33", "CHHATISHGARH"},
    {"34", "UTTARANCHAL"},
    {"35", "JHARKHAND"},
    {"36", "TELANGANA"},
    {"33", "CHHATTISGARH"},
    {"99", "OTHERS"},
};
// clang-format on

} // namespace

std::span<const StateCode> state_codes() {
    return states;
}

} // namespace levora::session
