#pragma once

#include <string>
#include <string_view>

// The document's single-byte text: Windows-1252 outside, UTF-8 inside.
namespace levora::form_ba {

// "?" stands for what Windows-1252 lacks.
std::string to_windows_1252(std::string_view utf8);
// Every byte has a character; the five that the code page leaves open are control characters.
std::string from_windows_1252(std::string_view bytes);
bool is_utf8(std::string_view bytes);

} // namespace levora::form_ba
