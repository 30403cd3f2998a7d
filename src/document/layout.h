#pragma once

#include <optional>
#include <string>
#include <vector>

namespace levora::document {

// Lengths are millimetres, font sizes points. A box counts from the corner of its block.
struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] double width() const { return right - left; }
    [[nodiscard]] double height() const { return bottom - top; }
};

enum class Align { left, center, right };
enum class VerticalAlign { top, middle, bottom };
// What a text does that does not fit its box: shrink on one line; wrap inside the box and shrink when
// that is not enough; or wrap, make its row higher and move down what lies below.
enum class Fit { shrink, wrap, grow };

struct TextLook {
    double size = 9;
    bool bold = false;
    bool italic = false;
    bool grey = false;
    bool turned = false;       // by 90 degrees, read from below
    double letter_spacing = 0; // percent of a character's width
    double line_height = 0;    // 0 is the font's own
    Align align = Align::left;
    VerticalAlign vertical = VerticalAlign::middle;
    Fit fit = Fit::shrink;
};

enum class LineStyle { none, solid, dotted, dashed, doubled };

struct LineLook {
    double width = 0.25;
    LineStyle style = LineStyle::solid;
};

enum class ElementKind {
    frame,    // a rectangle, ruled or filled or both
    rule,     // a line: its box has no width or no height
    text,     // fixed words; {page} and {pages} are the page's number and their count
    object,   // a text object, filled by the program
    tick,     // a text object that shows a check mark, centred in its box
    digits,   // a text object, one character to each of `count` squares
    bar_code, // a text object drawn as Code 39 from what stands between its two stars
    bar,      // an amount in rupees as a bar with its figure; bars with one left edge share one scale
};

struct Element {
    ElementKind kind = ElementKind::text;
    Box box = {};
    TextLook look = {};
    LineLook line = {};
    bool filled = false;   // frame: light grey ground
    std::string name = {}; // of an object; a fixed text may have one too
    std::string text = {}; // the fixed words, or the design text of an object
    int count = 0;         // digits: squares
    double pitch = 0;      // digits: from one square to the next
};

// A piece of a section that is never split over two pages. Blocks follow one another.
struct Block {
    double height = 0;
    std::vector<Element> elements;
};

struct TableColumn {
    double width = 0;
    std::string field; // of the row; "#" is the running number
    std::string caption;
    std::string mark; // the column's own number or letter, in a line below its caption
    Align align = Align::left;
};

// The rows of one subreport as a ruled table with a band, a head that repeats on every page, and a
// closing row for the total, which is the value of the first row's total field.
struct Table {
    std::string subreport;
    std::string code;  // in the band, left
    std::string title; // in the band, centred
    std::string line;  // a line of its own above the head, when not empty
    double head_size = 6.5;
    double data_size = 7;
    std::vector<TableColumn> columns;
    std::string total_field; // empty: no total
    std::string total_under; // the field in whose column it stands
    std::string total_label;
};

enum class Place { flow, each_page };

struct Section {
    std::string name;
    Place place = Place::flow;
    double top = 0;               // of a section on each page, from the page's upper edge
    bool over_previous = false;   // starts where the section before it starts, or would start
    bool new_page_before = false; //
    bool whole = false;           // goes to the next page rather than be split
    std::optional<Block> head;    // repeated at the top of every page that the section reaches
    std::vector<Block> blocks;
    std::optional<Table> table;
};

// A report as designed. Read from a file that a person can edit: see layout_file.h.
struct Layout {
    std::string name;   // "FormBB"
    std::string title;  // of a file made of it
    std::string author; // the object that holds its author's name; none when empty
    double page_width = 210;
    double page_height = 297;
    Box body;                  // on the page; sections flow down inside it
    bool margins_move = false; // the report's margins move the body
    bool one_page = false;     // no page breaks: growing texts shrink rather
    double section_gap = 0;    // between two sections that flow
    std::vector<Section> sections;
};

} // namespace levora::document
