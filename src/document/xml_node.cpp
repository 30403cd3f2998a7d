#include "document/xml_node.h"

#include "widgets/failure.h"
#include "widgets/value_text.h"

namespace levora::document {

namespace {

constexpr int invalid_file_format = 321;

std::string_view view(const xmlChar* text) {
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

} // namespace

std::string_view XmlNode::name() const {
    return view(node_->name);
}

std::string XmlNode::words() const {
    std::string all;
    for (const xmlNode* child = node_->children; child; child = child->next)
        if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE)
            all += view(child->content);
    std::string words;
    bool gap = false;
    for (const char c : all) {
        if (c == '\n' || c == '\r' || c == '\t' || (c == ' ' && gap)) {
            gap = true;
            continue;
        }
        if (gap && !words.empty()) words += ' ';
        gap = false;
        words += c;
    }
    return words;
}

std::vector<XmlNode> XmlNode::children() const {
    std::vector<XmlNode> elements;
    for (const xmlNode* child = node_->children; child; child = child->next)
        if (child->type == XML_ELEMENT_NODE) elements.emplace_back(child, *file_);
    return elements;
}

std::optional<std::string> XmlNode::maybe(const char* attribute) {
    taken_.insert(attribute);
    for (const xmlAttr* each = node_->properties; each; each = each->next)
        if (view(each->name) == attribute)
            return each->children ? std::string(view(each->children->content)) : std::string();
    return std::nullopt;
}

std::string XmlNode::text(const char* attribute, std::string otherwise) {
    return maybe(attribute).value_or(std::move(otherwise));
}

std::string XmlNode::needed(const char* attribute) {
    std::optional<std::string> value = maybe(attribute);
    if (!value) fault("has no \"" + std::string(attribute) + "\"");
    return *value;
}

double XmlNode::number(const char* attribute, double otherwise) {
    const std::optional<std::string> value = maybe(attribute);
    if (!value) return otherwise;
    const std::optional<double> number = strict_number(*value);
    if (!number) fault("\"" + std::string(attribute) + "\" is not a number: \"" + *value + "\"");
    return *number;
}

double XmlNode::needed_number(const char* attribute) {
    needed(attribute);
    return number(attribute, 0);
}

double XmlNode::number_between(const char* attribute, double otherwise, double least, double most) {
    const double value = number(attribute, otherwise);
    if (value < least || value > most)
        fault("\"" + std::string(attribute) + "\" is " + number_text(value) + " and not between " +
              number_text(least) + " and " + number_text(most));
    return value;
}

bool XmlNode::flag(const char* attribute) {
    return choice(attribute, {"no", "yes"}, 0) == 1;
}

Span XmlNode::span(const char* attribute) {
    const std::string value = needed(attribute);
    const std::size_t dash = value.find('-', 1); // a leading minus belongs to the number
    const std::optional<double> from = strict_number(value.substr(0, dash));
    const std::optional<double> to = dash == std::string::npos ? from : strict_number(value.substr(dash + 1));
    if (!from || !to || *to < *from)
        fault("\"" + std::string(attribute) + "\" is not a span like \"12-40\": \"" + value + "\"");
    return {*from, *to};
}

Box XmlNode::box() {
    const Span x = span("x");
    const Span y = span("y");
    return {.left = x.from, .top = y.from, .right = x.to, .bottom = y.to};
}

int XmlNode::choice(const char* attribute, std::initializer_list<std::string_view> names, int otherwise) {
    const std::optional<std::string> value = maybe(attribute);
    if (!value) return otherwise;
    std::string all;
    int position = 0;
    for (const std::string_view each : names) {
        if (each == *value) return position;
        all += (position++ == 0 ? "\"" : ", \"") + std::string(each) + "\"";
    }
    fault("\"" + std::string(attribute) + "\" is \"" + *value + "\" and not one of " + all);
}

void XmlNode::finish() const {
    for (const xmlAttr* each = node_->properties; each; each = each->next)
        if (!taken_.contains(std::string(view(each->name))))
            fault("has an unknown attribute \"" + std::string(view(each->name)) + "\"");
}

void XmlNode::fault(const std::string& what) const {
    throw Failure(invalid_file_format, *file_ + ", line " +
                                           number_text(static_cast<double>(xmlGetLineNo(node_))) + ": <" +
                                           std::string(name()) + "> " + what);
}

} // namespace levora::document
