#include "program/program.h"

#include "challan/challan282.h"
#include "computation/wealth_sheet.h"
#include "reports/preview_screens.h"
#include "reports/print_dialog.h"
#include "reports/report_source.h"
#include "return/return_check_screen.h"
#include "return/return_screen.h"
#include "schedules/assets_screen.h"
#include "schedules/business_assets.h"
#include "schedules/deemed_assets.h"
#include "schedules/exempted_assets.h"
#include "widgets/value_text.h"

#include <array>
#include <memory>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace levora::program {

namespace {

constexpr std::string_view start_screen = "frmWealthMain";
constexpr std::size_t computer_name_length = 15; // a buffer of 16 with its closing NUL

// Which screen is made by which name: one line for each. A button of the sheet whose screen is not here
// is disabled.
struct ScreenEntry {
    std::string_view name;
    std::unique_ptr<widgets::Form> (*make)(session::Session& session);
};

template <class T> std::unique_ptr<widgets::Form> make_screen(session::Session& session) {
    return std::make_unique<T>(session);
}

constexpr std::array screens{
    ScreenEntry{"frmWealthMain", make_screen<computation::frmWealthMain>},
    ScreenEntry{"frmChallan282", make_screen<challan::frmChallan282>},
    ScreenEntry{"frmImmovable", make_screen<schedules::frmImmovable>},
    ScreenEntry{"frmBusinessAssets", make_screen<schedules::frmBusinessAssets>},
    ScreenEntry{"frmDeemedAsset", make_screen<schedules::frmDeemedAsset>},
    ScreenEntry{"frmAssetExempt", make_screen<schedules::frmAssetExempt>},
    ScreenEntry{"frmITMDIParent", make_screen<form_ba::frmITMDIParent>},
    ScreenEntry{"frmFormBA", make_screen<form_ba::frmFormBA>},
    ScreenEntry{"frmReturnCheck", make_screen<form_ba::frmReturnCheck>},
    ScreenEntry{"frmPrint", make_screen<reports::frmPrint>},
    ScreenEntry{"frmRepPreview", make_screen<reports::frmRepPreview>},
    ScreenEntry{"frmSprPreview", make_screen<reports::frmSprPreview>},
    ScreenEntry{"frmReportAvi", make_screen<reports::frmReportAvi>},
};

} // namespace

Program::Program(session::Surroundings surroundings) : session_(std::move(surroundings)) {
    for (const ScreenEntry& screen : screens)
        session_.screens.define(std::string(screen.name),
                                [this, make = screen.make] { return make(session_); });
    reports::connect_reports(session_);
}

bool Program::start() {
    started_ = true;
    session_.screens.show(start_screen);
    return running();
}

std::vector<std::string> Program::screen_names() {
    std::vector<std::string> names;
    names.reserve(screens.size());
    for (const ScreenEntry& screen : screens)
        names.emplace_back(screen.name);
    return names;
}

std::string computer_name() {
    std::array<char, 256> name{};
    if (gethostname(name.data(), name.size() - 1) != 0) return {};
    return std::string(trimmed(std::string_view(name.data()).substr(0, computer_name_length)));
}

} // namespace levora::program
