#include "reports/preview_screens.h"

#include "reports/report_source.h"
#include "reports/screen_text.h"
#include "session/common_services.h"
#include "widgets/failure.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"

#include <filesystem>
#include <string>

namespace levora::reports {

namespace {

// What a viewer says that can't show its report at all.
constexpr int unspecified_error = -2147467259;
constexpr std::string_view total_row_grid = "sprUrbanLand";

} // namespace

frmRepPreview::frmRepPreview(session::Session& session) : Screen(session, "frmRepPreview", "Preview") {}

std::string frmRepPreview::caption_of_source() const {
    switch (session_.PreviewSource) {
    case preview_source::challan:
        return "Challan 282 Preview - A.Y. " + text_of(session_, "frmChallan282", "cboAssessmentYear") +
               " - " + text_of(session_, "frmChallan282", "txtName");
    case preview_source::form_bb:
        return "Wealth Tax Return Preview - F.Y. " + session_.CurrentFY;
    case preview_source::statement:
        return "Statement of Wealth Tax Preview - F.Y. " + session_.CurrentFY;
    default:
        return caption();
    }
}

void frmRepPreview::Form_Load() {
    session::procedure(session_, "RepPreview - Form_Load", [this](const session::Attempt& attempt) {
        const std::shared_ptr<document::Report> source = previewed_report(session_);
        if (!source) throw Failure(error_number::object_not_set, "There is no report to preview.");
        attempt([&] { set_caption(caption_of_source()); });
        source->caption = caption();
        attempt([&] {
            try {
                source->format();
                report_ = source;
            } catch (const Failure& error) {
                if (error.number != unspecified_error) throw;
                session_.desk.show_message({"Preview not available",
                                            "Levora Wealth Tax",
                                            widgets::Icon::information,
                                            {widgets::Answer::ok}});
            }
        });
    });
}

frmSprPreview::frmSprPreview(session::Session& session) : Screen(session, "frmSprPreview", "Preview") {
    cmdClose.on_click = [this] { session_.screens.unload("frmSprPreview"); };
}

bool frmSprPreview::Form_QueryUnload() {
    take_total_row_away();
    return true;
}

void frmSprPreview::take_total_row_away() {
    if (session_.SheetGridName != total_row_grid) return;
    session_.SheetGridName.clear();
    widgets::Form* assets = session_.screens.find("frmImmovable");
    auto* grid = assets ? widgets::as_if<widgets::Grid>(assets->find(total_row_grid)) : nullptr;
    if (grid) grid->set_rows(grid->rows() - 1);
}

bool frmSprPreview::Form_KeyDown(std::string_view key) {
    if (key != "Ctrl+Alt+C" && key != "Ctrl+Alt+T") return false;
    session::procedure(session_, "frmSprPreview - Form_KeyDown", [&](const session::Attempt& attempt) {
        attempt([&] {
            if (key == "Ctrl+Alt+C")
                session_.desk.start_program("CALC.EXE", widgets::ProgramWindow::minimized);
            else
                session_.desk.start_program(
                    session::RegReadValue(session_, session::registry::shared, "LVCalc Path") +
                        R"(\Levora Calc.exe)",
                    widgets::ProgramWindow::normal);
        });
    });
    return true;
}

frmReportAvi::frmReportAvi(session::Session& session)
    : Screen(session, "frmReportAvi", "Levora - Generating Report") {
    Timer1.on_tick = [this] { labWait.set_visible(!labWait.visible()); };
}

void frmReportAvi::Form_Load() {
    session::procedure(session_, "ReportAvi - Form_Load", [this](const session::Attempt& attempt) {
        attempt([this] {
            const std::string file = session_.program_folder + "/LevoraRep.avi";
            std::error_code none;
            if (!std::filesystem::exists(file, none))
                throw Failure(error_number::file_not_found, "File not found: " + file);
        });
    });
}

void frmReportAvi::Form_Activate() {
    Timer1.set_running(true);
}

} // namespace levora::reports
