#pragma once

#include "document/layout.h"

#include <libxml/tree.h>

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace levora::document {

struct Span {
    double from = 0;
    double to = 0;
};

// One element of a layout file while it is read. Every attribute has to be taken by somebody: one that
// is left over is a fault, so that a slip of the pen is never silently ignored.
class XmlNode {
public:
    XmlNode(const xmlNode* node, const std::string& file) : node_(node), file_(&file) {}

    [[nodiscard]] std::string_view name() const;
    [[nodiscard]] std::string words() const; // its text, line breaks and indents as single blanks
    [[nodiscard]] std::vector<XmlNode> children() const;

    std::optional<std::string> maybe(const char* attribute);
    std::string text(const char* attribute, std::string otherwise = {});
    std::string needed(const char* attribute);
    double number(const char* attribute, double otherwise);
    double needed_number(const char* attribute);
    // A number inside these bounds.
    double number_between(const char* attribute, double otherwise, double least, double most);
    bool flag(const char* attribute); // "yes" or "no"; no when absent
    Span span(const char* attribute); // "12-40", or "12" for a span without length
    Box box();                        // from the spans x and y
    // One of the names, by its position.
    int choice(const char* attribute, std::initializer_list<std::string_view> names, int otherwise);

    // Complains of attributes that nobody took.
    void finish() const;
    [[noreturn]] void fault(const std::string& what) const;

private:
    const xmlNode* node_;
    const std::string* file_;
    std::set<std::string> taken_;
};

} // namespace levora::document
