#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct _xmlDoc;
struct _xmlNode;

// Reading of XML that may come from anywhere: nothing is fetched, no entity is expanded, and a
// document with a DOCTYPE is refused.
namespace levora::form_ba {

constexpr std::size_t largest_document = std::size_t{32} << 20U; // 32 MiB
constexpr int deepest_element = 200;

// An element of a document, good for as long as the document lives. Names are compared as they are
// written, prefix included.
class XmlNode {
public:
    explicit XmlNode(const _xmlNode* node) : node_(node) {}

    [[nodiscard]] std::string text() const;
    [[nodiscard]] bool is_named(std::string_view name) const;
    [[nodiscard]] std::vector<XmlNode> children(std::string_view name) const;
    [[nodiscard]] std::optional<XmlNode> child(std::string_view name) const;
    // The first element of this name below this one, at any depth, in the order of the document.
    [[nodiscard]] std::optional<XmlNode> descendant(std::string_view name) const;

private:
    friend class XmlIndex;
    const _xmlNode* node_;
};

// The first element of every name below one, found in one walk: for many searches through the same
// large part, of which some find nothing.
class XmlIndex {
public:
    explicit XmlIndex(const XmlNode& top);
    // As GetNodeText on the same element.
    [[nodiscard]] std::string text(std::string_view name, std::string_view otherwise) const;

private:
    std::vector<XmlNode> first_of_name_;
};

class XmlDocument {
public:
    // Bytes that are not UTF-8 are read as Windows-1252. Nothing when the document is empty, broken,
    // too large, too deep or has a DOCTYPE.
    static std::optional<XmlDocument> parse(std::string_view bytes);
    static std::optional<XmlDocument> load(const std::string& path);

    [[nodiscard]] XmlNode root() const;
    [[nodiscard]] _xmlDoc* get() const { return document_.get(); }

private:
    struct Free {
        void operator()(_xmlDoc* document) const;
    };
    std::unique_ptr<_xmlDoc, Free> document_;
};

// The text of the first descendant with this name, the default when there is none.
std::string GetNodeText(const XmlNode& node, std::string_view name, std::string_view otherwise);

} // namespace levora::form_ba
