#include "tools/sample_clients.h"

#include "session/whole_folder.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <vector>

namespace levora::tools {

namespace {

std::vector<std::string> statements_of(std::string_view text) {
    std::vector<std::string> statements;
    std::string pending;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.starts_with("--")) continue;
        pending += std::string(line) + "\n";
        if (!line.ends_with(';')) continue;
        statements.push_back(pending);
        pending.clear();
    }
    return statements;
}

} // namespace

void add_sample_clients(const std::string& folder) {
    session::WholeFolder stores(folder);
    for (const SampleText& sample : sample_texts()) {
        const auto assessee_no = static_cast<std::int64_t>(val(sample.name));
        if (assessee_no > 0 && stores.has_rows_of(assessee_no))
            throw Failure(error_number::path_access,
                          folder + ": assessee " + number_text(val(sample.name)) + " is there already");
        for (const std::string& each : statements_of(sample.text))
            stores.run(each);
    }
    stores.commit();
}

} // namespace levora::tools
