#include "session/command_line.h"

#include "widgets/value_text.h"

#include <array>
#include <vector>

namespace levora::session {

namespace {

// Words of the call, numbered from 0. The word at 3 is the suite's own.
struct CallWord {
    enum : std::size_t { year, assessee, company_status, address_choice = 4 };
};
constexpr std::size_t least_words = 5;
constexpr std::array<std::string_view, 3> company_words{"Public_Company", "Private_Company",
                                                        "Foreign_Company"};

// Single blanks part the words: two in a row make an empty word.
std::vector<std::string_view> split(std::string_view line) {
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t blank = line.find(' ');
        words.push_back(line.substr(0, blank));
        if (blank == std::string_view::npos) return words;
        line.remove_prefix(blank + 1);
    }
}

} // namespace

bool ValidateFYWord(std::string_view word) {
    if (word.size() != 9) return false;
    const auto first = strict_number(word.substr(0, 4));
    const auto last = strict_number(word.substr(5));
    return first && last && word[4] == '-' && *last == *first + 1;
}

bool read_command_line(Session& session) {
    const std::vector<std::string_view> words = split(session.command_line);

    if (!ValidateFYWord(words[CallWord::year])) return false;
    session.CurrentFY = words[CallWord::year];

    if (words.size() <= CallWord::assessee) return false;
    const auto assessee = strict_number(words[CallWord::assessee]);
    if (!assessee || *assessee <= 0) return false;
    session.AssesseeNo = to_long(*assessee);

    if (words.size() < least_words) return false;
    for (const std::string_view company : company_words)
        if (words[CallWord::company_status] == company) session.IsCompanyAssessee = true;
    session.UseResidentialAddress = val(words[CallWord::address_choice]) == 1;
    return true;
}

} // namespace levora::session
