#include "document/layout_elements.h"

#include "document/xml_node.h"

#include <array>
#include <string>
#include <string_view>

namespace levora::document {

namespace {

constexpr double cell_padding = 1;
constexpr double tick_side = 4;
constexpr double label_gap = 1.5;   // between a tick box and its label
constexpr double label_reach = 80;  // where a label is given no width of its own
constexpr double caption_size = 7;  //
constexpr double data_height = 4.2; // of the line at the lower edge of a cell
constexpr double lower_edge = 0.4;  // between that line, or a tick box, and the cell's edge
constexpr double smallest_font = 1;
constexpr double largest_font = 100;
constexpr double most_squares = 200;
constexpr double bar_from = 0.38;    // of a bar's width is its caption
constexpr double caption_drop = 0.5; // between the cell's upper edge and its caption

TextLook read_look(XmlNode& node, TextLook look) {
    look.size = node.number_between("size", look.size, smallest_font, largest_font);
    look.bold = node.flag("bold") || look.bold;
    look.italic = node.flag("italic") || look.italic;
    look.grey = node.flag("grey");
    look.turned = node.flag("turned");
    look.letter_spacing = node.number("letter-spacing", look.letter_spacing);
    look.line_height = node.number("line-height", look.line_height);
    look.align =
        static_cast<Align>(node.choice("align", {"left", "center", "right"}, static_cast<int>(look.align)));
    look.vertical = static_cast<VerticalAlign>(
        node.choice("valign", {"top", "middle", "bottom"}, static_cast<int>(look.vertical)));
    look.fit = static_cast<Fit>(node.choice("fit", {"shrink", "wrap", "grow"}, static_cast<int>(look.fit)));
    return look;
}

Element frame(const Box& box, double line) {
    return {.kind = ElementKind::frame, .box = box, .line = {.width = line, .style = LineStyle::solid}};
}

Element words(const Box& box, const TextLook& look, std::string text) {
    return {.kind = ElementKind::text, .box = box, .look = look, .text = std::move(text)};
}

Element object(ElementKind kind, const Box& box, const TextLook& look, XmlNode& node) {
    return {.kind = kind, .box = box, .look = look, .name = node.needed("name"), .text = node.words()};
}

// The label behind a tick box.
Element label(XmlNode& node, const Box& square, std::string text) {
    const double left = square.right + label_gap;
    return words({left, square.top, left + node.number("label-width", label_reach), square.bottom},
                 {.size = caption_size}, std::move(text));
}

void read_frame(XmlNode& node, std::vector<Element>& elements) {
    Element element = frame(node.box(), node.number("line", 0.25));
    element.filled = node.flag("filled");
    if (element.line.width == 0) element.line.style = LineStyle::none;
    elements.push_back(std::move(element));
}

void read_rule(XmlNode& node, std::vector<Element>& elements) {
    constexpr std::array styles{LineStyle::solid, LineStyle::dotted, LineStyle::dashed, LineStyle::doubled};
    Element element{.kind = ElementKind::rule, .box = node.box()};
    element.line.style =
        styles[static_cast<std::size_t>(node.choice("style", {"solid", "dotted", "dashed", "double"}, 0))];
    element.line.width = node.number("line", element.line.style == LineStyle::dotted ? 0.2 : 0.25);
    if (element.box.width() > 0 && element.box.height() > 0) node.fault("is neither upright nor level");
    elements.push_back(std::move(element));
}

void read_text(XmlNode& node, std::vector<Element>& elements) {
    Element element = words(node.box(), read_look(node, {.size = caption_size}), node.words());
    element.name = node.text("name");
    elements.push_back(std::move(element));
}

void read_object(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    elements.push_back(object(ElementKind::object, box, read_look(node, {}), node));
}

Box square_box(XmlNode& node, double side) {
    const double left = node.span("x").from;
    const double top = node.span("y").from;
    return {left, top, left + node.number("width", side), top + node.number("height", side)};
}

void read_tick(XmlNode& node, std::vector<Element>& elements) {
    const Box box = square_box(node, tick_side);
    elements.push_back(object(ElementKind::tick, box, {.size = 11, .align = Align::center}, node));
}

// Squares side by side, with a label behind a single one.
void read_squares(XmlNode& node, std::vector<Element>& elements) {
    const Box first = square_box(node, tick_side);
    const int count = static_cast<int>(node.number_between("count", 1, 1, most_squares));
    const int group = static_cast<int>(node.number_between("group", count, 1, most_squares));
    const double gap = node.number("gap", 0);
    for (int at = 0; at < count; ++at) {
        const int gaps = at / group;
        const double shift = at * first.width() + gaps * gap;
        elements.push_back(frame({first.left + shift, first.top, first.right + shift, first.bottom}, 0.25));
    }
    if (std::string text = node.words(); !text.empty())
        elements.push_back(label(node, first, std::move(text)));
}

void read_tick_box(XmlNode& node, std::vector<Element>& elements) {
    const Box box = square_box(node, tick_side);
    elements.push_back(frame(box, 0.25));
    Element tick = object(ElementKind::tick, box, {.size = 11, .align = Align::center}, node);
    elements.push_back(label(node, box, std::move(tick.text)));
    tick.text.clear();
    elements.push_back(std::move(tick));
}

void read_digits(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    Element element =
        object(ElementKind::digits, box, read_look(node, {.size = 11, .align = Align::center}), node);
    element.count = static_cast<int>(node.number_between("count", 1, 1, most_squares));
    element.pitch = node.number("pitch", box.width());
    elements.push_back(std::move(element));
}

void read_bar_code(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    elements.push_back(object(ElementKind::bar_code, box, {}, node));
}

// A line of a bar chart: caption, bar, figure. Bold is for a sum.
void read_bar(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    const double bar_left = node.number("from", box.left + box.width() * bar_from);
    const TextLook look = read_look(node, {.size = caption_size, .align = Align::right});
    TextLook caption = look;
    caption.align = Align::left;
    Element bar = object(ElementKind::bar, {bar_left, box.top, box.right, box.bottom}, look, node);
    elements.push_back(words({box.left, box.top, bar_left, box.bottom}, caption, std::move(bar.text)));
    bar.text.clear();
    elements.push_back(std::move(bar));
}

// A ruled cell: its caption at the top left, its object below, or on the caption's line from "from" on;
// tick boxes inside it stand at its lower edge.
void read_cell(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    const double left = box.left + cell_padding;
    const double right = box.right - cell_padding;
    const bool beside = node.maybe("from").has_value();
    const double from = node.number("from", left);
    const std::string name = node.text("object");
    const std::vector<XmlNode> children = node.children();
    const bool has_lower_line = (!name.empty() && !beside) || !children.empty();
    const TextLook data = read_look(node, {});
    elements.push_back(frame(box, 0.25));

    TextLook caption{.size = caption_size,
                     .vertical = has_lower_line ? VerticalAlign::top : VerticalAlign::middle,
                     .fit = Fit::wrap};
    const double caption_bottom = has_lower_line ? box.bottom - data_height - lower_edge + 0.3 : box.bottom;
    const Box caption_box{left, box.top + (has_lower_line ? caption_drop : 0),
                          beside && !name.empty() ? from - cell_padding : right, caption_bottom};
    elements.push_back(words(caption_box, caption, node.needed("caption")));

    if (!name.empty()) {
        const Box at{from, beside ? box.top : box.bottom - data_height - lower_edge, right,
                     beside ? box.bottom : box.bottom - lower_edge};
        elements.push_back({.kind = ElementKind::object, .box = at, .look = data, .name = name});
    }
    for (XmlNode child : children) {
        if (child.name() != "choice") child.fault("does not belong into a cell");
        const double x = child.needed_number("x");
        const Box square{x, box.bottom - tick_side - lower_edge, x + tick_side, box.bottom - lower_edge};
        elements.push_back(frame(square, 0.25));
        elements.push_back(label(child, square, child.words()));
        elements.push_back({.kind = ElementKind::tick,
                            .box = square,
                            .look = {.size = 11, .align = Align::center},
                            .name = child.needed("name")});
        child.finish();
    }
}

// A grey band with words at its left and in its middle.
void read_band(XmlNode& node, std::vector<Element>& elements) {
    const Box box = node.box();
    Element ground = frame(box, 0.25);
    ground.filled = true;
    elements.push_back(std::move(ground));
    const Box inside{box.left + cell_padding, box.top, box.right - cell_padding, box.bottom};
    TextLook look{.size = node.number_between("size", 9, smallest_font, largest_font), .bold = true};
    if (std::string left = node.text("left"); !left.empty()) elements.push_back(words(inside, look, left));
    look.align = Align::center;
    elements.push_back(words(inside, look, node.words()));
}

// A line of a computation: number, caption, number again, amount.
void read_amount(XmlNode& node, std::vector<Element>& elements) {
    constexpr std::array<double, 5> edges{0, 8, 138, 146, 186};
    const Span y = node.span("y");
    const std::string number = node.text("number");
    const bool bold = node.flag("bold");
    const auto cell = [&](std::size_t column) {
        return Box{edges.at(column), y.from, edges.at(column + 1), y.to};
    };
    const auto inside = [&](std::size_t column) {
        const Box box = cell(column);
        return Box{box.left + cell_padding, box.top, box.right - cell_padding, box.bottom};
    };
    for (std::size_t column = 0; column + 1 < edges.size(); ++column)
        elements.push_back(frame(cell(column), 0.25));
    const TextLook centred{.size = 8, .bold = bold, .align = Align::center};
    elements.push_back(words(inside(0), centred, number));
    elements.push_back(words(inside(1), {.size = 8, .bold = bold, .fit = Fit::wrap}, node.words()));
    elements.push_back(words(inside(2), centred, number));
    elements.push_back(
        object(ElementKind::object, inside(3), {.size = 9, .bold = bold, .align = Align::right}, node));
    elements.back().text.clear();
}

struct Reader {
    std::string_view name;
    void (*read)(XmlNode& node, std::vector<Element>& elements);
};

constexpr std::array readers{
    Reader{"frame", read_frame},      Reader{"rule", read_rule},     Reader{"text", read_text},
    Reader{"object", read_object},    Reader{"tick", read_tick},     Reader{"squares", read_squares},
    Reader{"tickbox", read_tick_box}, Reader{"digits", read_digits}, Reader{"barcode", read_bar_code},
    Reader{"cell", read_cell},        Reader{"band", read_band},     Reader{"amount", read_amount},
    Reader{"bar", read_bar},
};

} // namespace

void read_element(XmlNode& node, std::vector<Element>& elements) {
    for (const Reader& reader : readers) {
        if (reader.name != node.name()) continue;
        reader.read(node, elements);
        return node.finish();
    }
    node.fault("is unknown");
}

} // namespace levora::document
