#include "paper/sheet_text.h"

#include "widgets/value_text.h"

#include <string>

namespace levora::paper {

namespace {

constexpr double usual_size = 9;

// Takes a prefix off the text when it stands there.
bool take(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

bool take_size(std::string_view& text, double& size) {
    std::string_view rest = text;
    if (!take(rest, "/fz\"")) return false;
    const std::size_t end = rest.find('"');
    if (end == std::string_view::npos) return false;
    if (const double wanted = val(rest.substr(0, end)); wanted > 0) size = wanted;
    text = rest.substr(end + 1);
    return true;
}

bool take_look(std::string_view& text, document::TextLook& look) {
    if (take_size(text, look.size)) return true;
    if (take(text, "/fb1")) {
        look.bold = true;
    } else if (take(text, "/fb0")) {
        look.bold = false;
    } else if (take(text, "/l")) {
        look.align = document::Align::left;
    } else if (take(text, "/c")) {
        look.align = document::Align::center;
    } else if (take(text, "/r")) {
        look.align = document::Align::right;
    } else {
        return false;
    }
    return true;
}

} // namespace

std::vector<SheetLine> sheet_lines(std::string_view coded) {
    std::vector<SheetLine> lines;
    document::TextLook look{.size = usual_size};
    std::string words;
    const auto end_line = [&] {
        lines.push_back({QString::fromStdString(std::string(trimmed(words))), look});
        words.clear();
    };
    while (!coded.empty()) {
        if (take(coded, "/n")) {
            end_line();
        } else if (!take_look(coded, look)) {
            words += coded.front();
            coded.remove_prefix(1);
        }
    }
    if (!words.empty()) end_line();
    return lines;
}

} // namespace levora::paper
