#include "widgets/desk.h"

#include <array>
#include <utility>

namespace levora::widgets {

namespace {

constexpr std::array<std::pair<Answer, const char*>, 7> captions{{
    {Answer::ok, "OK"},
    {Answer::cancel, "Cancel"},
    {Answer::abort, "Abort"},
    {Answer::retry, "Retry"},
    {Answer::ignore, "Ignore"},
    {Answer::yes, "Yes"},
    {Answer::no, "No"},
}};

} // namespace

std::string caption_of(Answer answer) {
    for (const auto& [each, caption] : captions)
        if (each == answer) return caption;
    return {};
}

std::optional<Answer> answer_of(const std::string& caption) {
    for (const auto& [each, text] : captions)
        if (caption == text) return each;
    return std::nullopt;
}

std::string name_of(Icon icon) {
    switch (icon) {
    case Icon::critical:
        return "critical";
    case Icon::question:
        return "question";
    case Icon::exclamation:
        return "exclamation";
    case Icon::information:
        return "information";
    case Icon::none:
        break;
    }
    return {};
}

bool says_yes(Desk& desk, const MessageBox& box) {
    return desk.show_message(box) == Answer::yes;
}

} // namespace levora::widgets
