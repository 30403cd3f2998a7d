#include "widgets/utf8.h"

namespace levora {

char32_t take_character(std::string_view& text) {
    const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    std::size_t length = 1;
    char32_t character = lead;
    if (lead >= 0xF0 && lead < 0xF8) {
        length = 4;
        character = lead & 0x07U;
    } else if (lead >= 0xE0) {
        length = lead < 0xF0 ? 3 : 1;
        character = lead < 0xF0 ? lead & 0x0FU : lead;
    } else if (lead >= 0xC0) {
        length = 2;
        character = lead & 0x1FU;
    }
    bool whole = length <= text.size();
    for (std::size_t i = 1; whole && i < length; ++i)
        whole = (byte(i) & 0xC0U) == 0x80U;
    if (!whole) {
        text.remove_prefix(1);
        return lead;
    }
    for (std::size_t i = 1; i < length; ++i)
        character = (character << 6U) | (byte(i) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

void append_character(std::string& text, char32_t character) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0U | (character >> 6U));
        add(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        add(0xE0U | (character >> 12U));
        add(0x80U | ((character >> 6U) & 0x3FU));
        add(0x80U | (character & 0x3FU));
    } else {
        add(0xF0U | (character >> 18U));
        add(0x80U | ((character >> 12U) & 0x3FU));
        add(0x80U | ((character >> 6U) & 0x3FU));
        add(0x80U | (character & 0x3FU));
    }
}

std::size_t character_count(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        take_character(text);
        ++count;
    }
    return count;
}

std::string_view first_characters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    while (count > 0 && !rest.empty()) {
        take_character(rest);
        --count;
    }
    return text.substr(0, text.size() - rest.size());
}

} // namespace levora
