#include "document/report.h"

#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <algorithm>

namespace levora::document {

std::string name_of(Orientation orientation) {
    return orientation == Orientation::portrait ? "portrait" : "landscape";
}

std::string name_of(PaperSize) {
    return "A4";
}

RowTable RowTable::of(session::RowSet& rows) {
    RowTable table{.columns = rows.columns(), .rows = {}};
    for (; !rows.eof(); rows.move_next()) {
        std::vector<session::Value>& row = table.rows.emplace_back();
        for (const std::string& column : table.columns)
            row.push_back(rows[column]);
    }
    return table;
}

const session::Value& RowTable::value(std::size_t row, std::string_view column) const {
    static const session::Value null;
    for (std::size_t at = 0; at < columns.size(); ++at)
        if (equal_without_case(columns[at], column)) return rows.at(row).at(at);
    return null;
}

namespace {

template <class Visit> void each_element(const Layout& layout, Visit visit) {
    for (const Section& section : layout.sections) {
        if (section.head)
            for (const Element& element : section.head->elements)
                visit(element);
        for (const Block& block : section.blocks)
            for (const Element& element : block.elements)
                visit(element);
    }
}

} // namespace

Report::Report(Layout layout)
    : caption(layout.title), layout_(std::move(layout)), section_suppressed_(layout_.sections.size()) {
    each_element(layout_, [this](const Element& element) {
        if (!element.name.empty()) objects_.try_emplace(element.name, Object{.text = element.text});
    });
    for (const Section& section : layout_.sections)
        if (section.table) rows_.try_emplace(section.table->subreport);
}

void Report::format() {
    if (on_format) on_format(*this);
}

bool Report::has_object(std::string_view object) const {
    return objects_.contains(object);
}

const std::string& Report::text(std::string_view name) const {
    return object(name).text;
}

void Report::set_text(std::string_view name, std::string text) {
    const auto found = objects_.find(name);
    if (found == objects_.end()) not_there("text object", name);
    found->second.text = std::move(text);
}

std::vector<std::string> Report::objects() const {
    std::vector<std::string> names;
    each_element(layout_, [&names](const Element& element) {
        if (!element.name.empty()) names.push_back(element.name);
    });
    return names;
}

int Report::section_number(std::string_view section) const {
    const auto found = std::find_if(layout_.sections.begin(), layout_.sections.end(),
                                    [section](const Section& each) { return each.name == section; });
    return found == layout_.sections.end() ? 0 : static_cast<int>(found - layout_.sections.begin()) + 1;
}

bool Report::section_suppressed(int number) const {
    if (number < 1 || number > static_cast<int>(section_suppressed_.size()))
        not_there("section", number_text(number));
    return section_suppressed_[static_cast<std::size_t>(number) - 1];
}

void Report::suppress_section(int number, bool suppressed) {
    if (number < 1 || number > static_cast<int>(section_suppressed_.size()))
        not_there("section", number_text(number));
    section_suppressed_[static_cast<std::size_t>(number) - 1] = suppressed;
}

bool Report::suppressed(std::string_view section_or_object) const {
    if (const int number = section_number(section_or_object)) return section_suppressed(number);
    return object(section_or_object).suppressed;
}

void Report::suppress(std::string_view section_or_object, bool suppressed) {
    if (const int number = section_number(section_or_object)) return suppress_section(number, suppressed);
    const auto found = objects_.find(section_or_object);
    if (found == objects_.end()) not_there("section or object", section_or_object);
    found->second.suppressed = suppressed;
}

const RowTable& Report::rows(std::string_view subreport) const {
    const auto found = rows_.find(subreport);
    if (found == rows_.end()) not_there("subreport", subreport);
    return found->second;
}

void Report::set_rows(std::string_view subreport, RowTable rows) {
    const auto found = rows_.find(subreport);
    if (found == rows_.end()) not_there("subreport", subreport);
    found->second = std::move(rows);
}

const Report::Object& Report::object(std::string_view name) const {
    const auto found = objects_.find(name);
    if (found == objects_.end()) not_there("text object", name);
    return found->second;
}

void Report::not_there(std::string_view what, std::string_view name) const {
    throw Failure(error_number::subscript, "The report " + layout_.name + " has no " + std::string(what) +
                                               " \"" + std::string(name) + "\".");
}

} // namespace levora::document
