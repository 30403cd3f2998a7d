#include "document/layout_file.h"

#include "document/layout_elements.h"
#include "document/xml_node.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <utility>

namespace levora::document {

namespace {

constexpr int invalid_file_format = 321;

struct FirstFault {
    int line = 0;
    std::string what;
};

// The first error tells where the slip is; what follows only comes of it.
void keep_first(void* context, xmlError* error) {
    auto& first = *static_cast<FirstFault*>(static_cast<xmlParserCtxt*>(context)->_private);
    if (first.line != 0) return;
    first.line = error->line;
    std::string_view what = error->message ? error->message : "";
    while (what.ends_with('\n'))
        what.remove_suffix(1);
    try {
        first.what = what;
    } catch (const std::bad_alloc&) {
        first.what = "not XML"; // the parser is not to be broken off; this needs no memory
    }
}

Align align_of(XmlNode& node, Align otherwise) {
    return static_cast<Align>(node.choice("align", {"left", "center", "right"}, static_cast<int>(otherwise)));
}

Table read_table(XmlNode& node) {
    Table table{.subreport = node.needed("subreport"),
                .code = node.text("code"),
                .title = node.text("title"),
                .line = node.text("line"),
                .head_size = node.number_between("head-size", 6.5, 1, 100),
                .data_size = node.number_between("size", 7, 1, 100),
                .columns = {},
                .total_field = {},
                .total_under = {},
                .total_label = {}};
    node.finish();
    for (XmlNode& child : node.children()) {
        if (child.name() == "column") {
            table.columns.push_back({.width = child.number_between("width", 0, 1, 1000),
                                     .field = child.needed("field"),
                                     .caption = child.words(),
                                     .mark = child.text("mark"),
                                     .align = align_of(child, Align::left)});
        } else if (child.name() == "total") {
            table.total_field = child.needed("field");
            table.total_under = child.needed("under");
            table.total_label = child.words();
        } else {
            child.fault("does not belong into a table");
        }
        child.finish();
    }
    if (table.columns.empty()) node.fault("has no column");
    return table;
}

Block read_block(XmlNode& node) {
    node.needed("height");
    Block block{.height = node.number_between("height", 0, 0, 1000), .elements = {}};
    for (XmlNode& child : node.children())
        read_element(child, block.elements);
    return block;
}

Section read_section(XmlNode& node) {
    Section section;
    section.name = node.needed("name");
    if (node.flag("each-page")) {
        section.place = Place::each_page;
        section.top = node.needed_number("top");
    }
    section.over_previous = node.flag("over-previous");
    section.new_page_before = node.flag("new-page");
    section.whole = node.flag("whole");
    // Either a height and elements, or blocks and tables of their own.
    if (node.maybe("height")) {
        section.blocks.push_back(read_block(node));
        node.finish();
        return section;
    }
    node.finish();
    for (XmlNode& child : node.children()) {
        if (child.name() == "head") {
            section.head = read_block(child);
            child.finish();
        } else if (child.name() == "block") {
            section.blocks.push_back(read_block(child));
            child.finish();
        } else if (child.name() == "table" && !section.table) {
            section.table = read_table(child);
        } else {
            child.fault("does not belong into a section without a height");
        }
    }
    return section;
}

bool has_object(const Layout& layout, const std::string& name) {
    for (const Section& section : layout.sections)
        for (const Block& block : section.blocks)
            for (const Element& element : block.elements)
                if (element.name == name) return true;
    return false;
}

void refuse_doubles(const XmlNode& root, const Layout& layout) {
    std::set<std::string> objects;
    std::set<std::string> sections;
    const auto look_at = [&](const Block& block) {
        for (const Element& element : block.elements)
            if (!element.name.empty() && !objects.insert(element.name).second)
                root.fault("has two objects \"" + element.name + "\"");
    };
    for (const Section& section : layout.sections) {
        if (!sections.insert(section.name).second) root.fault("has two sections \"" + section.name + "\"");
        if (section.head) look_at(*section.head);
        for (const Block& block : section.blocks)
            look_at(block);
    }
}

Layout read_report(XmlNode& root) {
    if (root.name() != "report") root.fault("is no report");
    const Span x = root.span("body-x");
    const Span y = root.span("body-y");
    Layout layout;
    layout.name = root.needed("name");
    layout.title = root.text("title", layout.name);
    layout.author = root.text("author");
    layout.body = {.left = x.from, .top = y.from, .right = x.to, .bottom = y.to};
    layout.margins_move = root.flag("margins-move");
    layout.one_page = root.flag("one-page");
    layout.section_gap = root.number("section-gap", 0);
    root.finish();
    for (XmlNode& child : root.children()) {
        if (child.name() != "section") child.fault("stands outside a section");
        layout.sections.push_back(read_section(child));
    }
    if (layout.sections.empty()) root.fault("has no section");
    refuse_doubles(root, layout);
    if (!layout.author.empty() && !has_object(layout, layout.author))
        root.fault("has no object \"" + layout.author + "\", which it names as \"author\"");
    return layout;
}

} // namespace

Layout parse_layout(std::string_view text, const std::string& file) {
    // Faults go to the context alone; nothing is printed, no other file and no net is reached.
    const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(xmlNewParserCtxt(),
                                                                               &xmlFreeParserCtxt);
    if (!context) throw std::bad_alloc();
    FirstFault fault;
    context->_private = &fault;
    context->sax->serror = keep_first;
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlCtxtReadMemory(context.get(), text.data(), static_cast<int>(text.size()), file.c_str(), nullptr,
                          XML_PARSE_NONET | XML_PARSE_BIG_LINES),
        &xmlFreeDoc);
    if (context->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
    if (!document || !context->nsWellFormed)
        throw Failure(invalid_file_format, file + ", line " + number_text(fault.line) + ": " + fault.what);
    if (document->intSubset)
        throw Failure(invalid_file_format, file + ": a DOCTYPE has no place in a layout");
    XmlNode root(xmlDocGetRootElement(document.get()), file);
    return read_report(root);
}

Layout load_layout(const std::string& path) {
    std::error_code none;
    if (!std::filesystem::exists(path, none))
        throw Failure(error_number::file_not_found, "File not found: " + path);
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf()))
        throw Failure(error_number::path_access, "Can't read " + path + ": " + std::strerror(errno));
    // A batch takes the same few layouts for every client; one that was edited meanwhile differs in text.
    struct Parsed {
        std::string text;
        Layout layout;
    };
    static std::map<std::string, Parsed> known;
    Parsed& held = known[path];
    if (std::string now = text.str(); held.text.empty() || held.text != now) {
        held.text.clear();
        held.layout = parse_layout(now, path);
        held.text = std::move(now);
    }
    return held.layout;
}

} // namespace levora::document
