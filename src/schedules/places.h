#pragma once

#include <string>
#include <vector>

namespace levora::schedules {

// The towns that the schedules of immovable property and urban land offer, in the order of their lists.
// "Raipur" stands in the list of house property only.
enum class Raipur { listed, left_out };
std::vector<std::string> city_names(Raipur raipur);

// The states of both schedules; their spellings are those of the stored rows.
std::vector<std::string> schedule_state_names();

} // namespace levora::schedules
