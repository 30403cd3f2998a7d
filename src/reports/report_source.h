#pragma once

#include "document/report.h"
#include "session/session_state.h"

#include <cstdint>
#include <memory>
#include <string>

// Which report is printed and which is previewed: the values of PrintSource and PreviewSource.
namespace levora::reports {

namespace print_source {
constexpr std::uint8_t challan = 1;
constexpr std::uint8_t form_bb = 2;
} // namespace print_source

namespace preview_source {
constexpr std::uint8_t challan = 1;
constexpr std::uint8_t form_bb = 2;
constexpr std::uint8_t statement = 4;
} // namespace preview_source

// Opens the ways from the screens' preview and print buttons to their reports: the session's paper
// hooks "Challan282", "FormBB" and "RepWealthTax".
void connect_reports(session::Session& session);

// The report that the preview shows, by PreviewSource; null when it has not been made.
std::shared_ptr<document::Report> previewed_report(const session::Session& session);

// Millimetres as a screen or setting holds them, in twips.
int margin_twips(std::string_view millimetres);

} // namespace levora::reports
