#pragma once

#include <span>
#include <string>
#include <string_view>

namespace levora::tools {

// One file of samples/: statements, each ended by ";" at the end of a line. The name of a client's
// file starts with the client's number.
struct SampleText {
    std::string_view name;
    std::string_view text;
};
std::span<const SampleText> sample_texts();

// Adds the sample clients to the stores of a folder: all of them or, with a Failure that names what
// is in the way, none.
void add_sample_clients(const std::string& folder);

} // namespace levora::tools
