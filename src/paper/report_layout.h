#pragma once

#include "document/report.h"
#include "paper/fonts.h"
#include "paper/marks.h"
#include "paper/pages.h"

#include <vector>

namespace levora::paper {

// The pages of a filled report, at least one.
std::vector<Marks> lay_out(Fonts& fonts, const document::Report& report, const Pages::RowsTold& told = {});

} // namespace levora::paper
