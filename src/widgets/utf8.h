#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace levora {

// Takes the first character off a UTF-8 text; a byte that starts none counts as one character.
char32_t take_character(std::string_view& text);
void append_character(std::string& text, char32_t character);
std::size_t character_count(std::string_view text);
// The first `count` characters.
std::string_view first_characters(std::string_view text, std::size_t count);

} // namespace levora
