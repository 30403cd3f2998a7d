#include "paper/bar_code.h"

#include <zint.h>

#include <algorithm>
#include <memory>

namespace levora::paper {

namespace {

constexpr std::string_view code_39_characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
constexpr double narrowest_bar = 0.25; // millimetres
constexpr double widest_narrow_bar = 0.35;
constexpr double quiet_bars = 10;

std::string_view between_stars(std::string_view text) {
    if (text.size() < 2 || text.front() != '*' || text.back() != '*') return {};
    return text.substr(1, text.size() - 2);
}

} // namespace

void place_bar_code(const QRectF& box, std::string_view starred, Marks& marks) {
    const std::string_view text = between_stars(starred);
    if (text.empty() || text.find_first_not_of(code_39_characters) != std::string_view::npos) return;

    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    if (!symbol) return;
    symbol->symbology = BARCODE_CODE39;
    symbol->show_hrt = 0;
    if (ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.data()),
                        static_cast<int>(text.size())) >= ZINT_ERROR)
        return;
    const double bar = std::min(widest_narrow_bar, box.width() / (symbol->width + 2 * quiet_bars));
    if (bar < narrowest_bar) return;

    const double left = box.center().x() - symbol->width * bar / 2;
    const auto is_bar = [&symbol](int module) {
        return (symbol->encoded_data[0][module / 8] >> (module % 8) & 1) != 0;
    };
    for (int module = 0; module < symbol->width;) {
        int end = module;
        while (end < symbol->width && is_bar(end))
            ++end;
        if (end > module)
            marks.emplace_back(
                FillMark{.area = {left + module * bar, box.top(), (end - module) * bar, box.height()},
                         .fill = Fill::black});
        module = end + 1;
    }
}

} // namespace levora::paper
