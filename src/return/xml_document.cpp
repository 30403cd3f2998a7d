#include "return/xml_document.h"

#include "return/windows_1252.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <set>
#include <utility>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace levora::form_ba {

namespace {

std::string_view view(const xmlChar* text) {
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

// A name as written, taken apart once for a search through many elements.
class WrittenName {
public:
    explicit WrittenName(std::string_view name) : whole_(name) {
        const std::size_t colon = name.find(':');
        if (colon != std::string_view::npos) prefix_ = name.substr(0, colon);
        local_ = colon == std::string_view::npos ? name : name.substr(colon + 1);
    }

    [[nodiscard]] bool fits(const xmlNode* node) const {
        if (node->type != XML_ELEMENT_NODE) return false;
        if (!node->ns) return equal(node->name, whole_); // a prefix that is not declared is part of the name
        return equal(node->name, local_) && equal(node->ns->prefix, prefix_);
    }

private:
    static bool equal(const xmlChar* left, std::string_view right) {
        if (!left) return right.empty();
        const auto* const text = reinterpret_cast<const char*>(left);
        return std::strncmp(text, right.data(), right.size()) == 0 && text[right.size()] == '\0';
    }

    std::string_view whole_;
    std::string_view prefix_;
    std::string_view local_;
};

// The next element in the order of the document, inside `top`; null behind the last.
const xmlNode* next_below(const xmlNode* node, const xmlNode* top) {
    if (node->children) return node->children;
    while (node != top && !node->next)
        node = node->parent;
    return node == top ? nullptr : node->next;
}

bool too_deep(const xmlNode* root) {
    int depth = 0;
    for (const xmlNode* node = root; node;) {
        if (node->children) {
            if (++depth > deepest_element) return true;
            node = node->children;
            continue;
        }
        while (node != root && !node->next) {
            node = node->parent;
            --depth;
        }
        node = node == root ? nullptr : node->next;
    }
    return false;
}

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

struct FreeText {
    void operator()(xmlChar* text) const { xmlFree(text); }
};

} // namespace

void XmlDocument::Free::operator()(_xmlDoc* document) const {
    xmlFreeDoc(document);
}

std::optional<XmlDocument> XmlDocument::parse(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > largest_document) return std::nullopt;
    std::string converted;
    const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    if (!utf16 && !is_utf8(bytes)) {
        converted = from_windows_1252(bytes);
        bytes = converted;
    }
    const std::unique_ptr<xmlParserCtxt, FreeContext> context(xmlNewParserCtxt());
    if (!context) throw std::bad_alloc();
    // Entities stay unexpanded and no other file is read, whatever the document asks for.
    constexpr int options = XML_PARSE_NONET | XML_PARSE_BIG_LINES | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    XmlDocument result;
    result.document_.reset(xmlCtxtReadMemory(context.get(), bytes.data(), static_cast<int>(bytes.size()),
                                             nullptr, utf16 ? nullptr : "UTF-8", options));
    if (context->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
    if (!result.document_ || !context->wellFormed) return std::nullopt;
    if (result.document_->intSubset || result.document_->extSubset) return std::nullopt;
    const xmlNode* const root = xmlDocGetRootElement(result.document_.get());
    if (!root || too_deep(root)) return std::nullopt;
    return result;
}

std::optional<XmlDocument> XmlDocument::load(const std::string& path) {
    std::error_code fault;
    const std::uintmax_t size = std::filesystem::file_size(path, fault);
    if (fault || size > largest_document) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return parse(bytes);
}

XmlNode XmlDocument::root() const {
    return XmlNode(xmlDocGetRootElement(document_.get()));
}

std::string XmlNode::text() const {
    const xmlNode* const only = node_->children;
    if (!only) return {};
    if (!only->next && only->type == XML_TEXT_NODE) return std::string(view(only->content));
    const std::unique_ptr<xmlChar, FreeText> content(xmlNodeGetContent(node_));
    if (!content) throw std::bad_alloc();
    return std::string(view(content.get()));
}

bool XmlNode::is_named(std::string_view name) const {
    return WrittenName(name).fits(node_);
}

std::vector<XmlNode> XmlNode::children(std::string_view name) const {
    const WrittenName wanted(name);
    std::vector<XmlNode> found;
    for (const xmlNode* node = node_->children; node; node = node->next)
        if (wanted.fits(node)) found.emplace_back(node);
    return found;
}

std::optional<XmlNode> XmlNode::child(std::string_view name) const {
    const WrittenName wanted(name);
    for (const xmlNode* node = node_->children; node; node = node->next)
        if (wanted.fits(node)) return XmlNode(node);
    return std::nullopt;
}

std::optional<XmlNode> XmlNode::descendant(std::string_view name) const {
    const WrittenName wanted(name);
    for (const xmlNode* node = next_below(node_, node_); node; node = next_below(node, node_))
        if (wanted.fits(node)) return XmlNode(node);
    return std::nullopt;
}

XmlIndex::XmlIndex(const XmlNode& top) {
    // The parser keeps one copy of each name and of each namespace, so their places tell them apart.
    std::set<std::pair<const void*, const void*>> seen;
    for (const xmlNode* node = next_below(top.node_, top.node_); node; node = next_below(node, top.node_))
        if (node->type == XML_ELEMENT_NODE && seen.emplace(node->name, node->ns).second)
            first_of_name_.emplace_back(node);
}

std::string XmlIndex::text(std::string_view name, std::string_view otherwise) const {
    const WrittenName wanted(name);
    for (const XmlNode& each : first_of_name_)
        if (wanted.fits(each.node_)) return each.text();
    return std::string(otherwise);
}

std::string GetNodeText(const XmlNode& node, std::string_view name, std::string_view otherwise) {
    const std::optional<XmlNode> found = node.descendant(name);
    return found ? found->text() : std::string(otherwise);
}

} // namespace levora::form_ba
