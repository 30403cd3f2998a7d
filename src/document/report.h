#pragma once

#include "document/layout.h"
#include "session/data_store.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace levora::document {

enum class Orientation { portrait = 1, landscape = 2 };
enum class PaperSize { a4 = 9 };

std::string name_of(Orientation orientation); // "portrait", "landscape"
std::string name_of(PaperSize size);          // "A4"

// The tick of every printed form: the one character of code 252, shown as a check mark.
inline constexpr std::string_view tick = "\u00FC";

// The rows behind a subreport, as they were when it was filled.
struct RowTable {
    std::vector<std::string> columns;
    std::vector<std::vector<session::Value>> rows;

    [[nodiscard]] static RowTable of(session::RowSet& rows); // reads to the end
    // Null for a column that is not there, which is looked for without regard to case.
    [[nodiscard]] const session::Value& value(std::size_t row, std::string_view column) const;
};

// A report as an object of the running program: a layout, and what the program has put into it.
// Objects and sections are found by their names; one that the layout does not have is a Failure 9
// that names it and the report.
class Report {
public:
    explicit Report(Layout layout);

    [[nodiscard]] const std::string& name() const { return layout_.name; } // "Challan282", ...
    [[nodiscard]] const Layout& layout() const { return layout_; }

    std::string caption; // of the preview; the layout's title at first
    int top_margin_twips = 0;
    int left_margin_twips = 0;
    int copies = 1;
    Orientation orientation = Orientation::portrait;
    PaperSize paper_size = PaperSize::a4;

    // Runs once each time the report is viewed or printed, before anything is laid out.
    std::function<void(Report&)> on_format;
    void format();

    // The text of an object: its design text until one is set. Named fixed texts can be read too.
    [[nodiscard]] bool has_object(std::string_view object) const;
    [[nodiscard]] const std::string& text(std::string_view object) const;
    void set_text(std::string_view object, std::string text);
    [[nodiscard]] std::vector<std::string> objects() const; // in the order of the layout

    // Sections are numbered from 1 in the order of the layout.
    [[nodiscard]] int section_number(std::string_view section) const; // 0 when there is none
    [[nodiscard]] bool section_suppressed(int number) const;
    void suppress_section(int number, bool suppressed);
    // A section, or an object by its name.
    [[nodiscard]] bool suppressed(std::string_view section_or_object) const;
    void suppress(std::string_view section_or_object, bool suppressed);

    [[nodiscard]] const RowTable& rows(std::string_view subreport) const;
    void set_rows(std::string_view subreport, RowTable rows);

private:
    struct Object {
        std::string text;
        bool suppressed = false;
    };
    [[nodiscard]] const Object& object(std::string_view name) const;
    [[noreturn]] void not_there(std::string_view what, std::string_view name) const;

    Layout layout_;
    std::map<std::string, Object, std::less<>> objects_;
    std::vector<bool> section_suppressed_;
    std::map<std::string, RowTable, std::less<>> rows_;
};

} // namespace levora::document
