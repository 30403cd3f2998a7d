#include "return/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace levora::form_ba {

namespace {

// Bytes 0x80 to 0x9F; all others stand for themselves.
constexpr std::array<char32_t, 32> special{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Decoded {
    char32_t character = 0;
    std::size_t length = 0; // 0: no UTF-8 here
};

bool is_beyond_ascii(char byte) {
    return static_cast<unsigned char>(byte) >= 0x80;
}

Decoded decode_utf8(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return {};
    auto character = static_cast<char32_t>(first & (0xFF >> (length + 1)));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return {};
        character = (character << 6) | (byte(i) & 0x3F);
    }
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[length] || character > 0x10FFFF || surrogate) return {};
    return {character, length};
}

char byte_of(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto* const at = std::find(special.begin(), special.end(), character);
    return at == special.end() ? '?' : static_cast<char>(0x80 + (at - special.begin()));
}

void append_utf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

} // namespace

std::string to_windows_1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (;;) {
        const auto* const next = std::find_if(utf8.begin(), utf8.end(), is_beyond_ascii);
        bytes.append(utf8.begin(), next);
        if (next == utf8.end()) return bytes;
        utf8.remove_prefix(static_cast<std::size_t>(next - utf8.begin()));
        const Decoded decoded = decode_utf8(utf8);
        bytes += decoded.length == 0 ? '?' : byte_of(decoded.character);
        utf8.remove_prefix(std::max<std::size_t>(decoded.length, 1));
    }
}

std::string from_windows_1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        const bool is_special = byte >= 0x80 && byte < 0xA0;
        append_utf8(text, is_special ? special[byte - 0x80U] : char32_t{byte});
    }
    return text;
}

bool is_utf8(std::string_view bytes) {
    for (;;) {
        const auto* const next = std::find_if(bytes.begin(), bytes.end(), is_beyond_ascii);
        if (next == bytes.end()) return true;
        bytes.remove_prefix(static_cast<std::size_t>(next - bytes.begin()));
        const std::size_t length = decode_utf8(bytes).length;
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
}

} // namespace levora::form_ba
