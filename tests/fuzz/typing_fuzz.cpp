// Value texts, dates, masks and grid typing on arbitrary bytes: no crash, and what was accepted reads
// back as it is held.

#include "widgets/date_text.h"
#include "widgets/failure.h"
#include "widgets/test_form.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace levora;
using namespace levora::widgets;

namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

void try_values(std::string_view text) {
    try {
        const double number = val(text);
        const std::string written = number_text(number);
        expect(written.find_first_not_of("-.0123456789") == std::string::npos);
        expect(number_text(val(written)) == written);
        (void)group_indian(number, 2);
        (void)to_long(number);
    } catch (const Failure& failure) {
        expect(failure.number == error_number::overflow);
    }
    if (const auto date = parse_date(text)) expect(parse_date(iso_date(*date)) == date);
}

void try_cells(std::string_view text) {
    TestScreens screens;
    TestForm& form = screens.form();
    Grid& grid = form.grid;
    grid.design_column(1, text_cell(5));
    grid.design_column(2, number_cell(-1000, 1000, 2));
    grid.design_column(3, percent_cell(2));
    grid.design_column(4, mask_cell("UUUUU9999U"));
    grid.design_column(5, date_cell({1990, 1, 1}, {2100, 12, 31}));
    grid.design_column(6, combo_cell({"Goa", "Delhi"}, 1));
    for (int column = 1; column <= 6; ++column) {
        try {
            if (!grid.type(column, 1, text)) continue;
            const std::string held = grid.text(column, 1);
            // What a cell shows, it accepts.
            if (column != 6) expect(grid.type(column, 2, held) && grid.text(column, 2) == held);
        } catch (const Failure& failure) {
            expect(failure.number == error_number::overflow);
        }
    }
    form.mskDate.type(text);
    expect(form.mskDate.text().size() == form.mskDate.empty_text().size());
    form.mskPAN.type(text);
    form.mskPAN.set_text(form.mskPAN.text());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try_values(text);
    try_cells(text);
    return 0;
}
