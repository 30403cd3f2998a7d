#pragma once

#include "paper/marks.h"

#include <string_view>

namespace levora::paper {

// Code 39 inside the box, from what stands between the two stars of the text: black bars with a quiet
// zone of ten narrow bars at each side. Nothing for a text that is empty between its stars, holds
// characters that Code 39 does not have, or is too long for narrow bars of a quarter of a millimetre.
void place_bar_code(const QRectF& box, std::string_view starred, Marks& marks);

} // namespace levora::paper
