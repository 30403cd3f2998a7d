#pragma once

#include "document/report.h"
#include "session/session_state.h"
#include "widgets/fields.h"

#include <memory>

namespace levora::reports {

// A report in the preview; PreviewSource tells which. Its pages are the window's to draw.
class frmRepPreview : public session::Screen {
public:
    explicit frmRepPreview(session::Session& session);

    void Form_Load() override;

    // What the viewer shows; null while there is nothing to see.
    [[nodiscard]] const std::shared_ptr<document::Report>& report() const { return report_; }

    widgets::Frame CRViewer1{*this, "CRViewer1"};

private:
    [[nodiscard]] std::string caption_of_source() const;

    std::shared_ptr<document::Report> report_;
};

// The sheet of a grid in the preview.
class frmSprPreview : public session::Screen {
public:
    explicit frmSprPreview(session::Session& session);

    bool Form_QueryUnload() override;
    bool Form_KeyDown(std::string_view key) override;

    widgets::Frame SpreadPreview{*this, "SpreadPreview"};
    widgets::Button cmdClose{*this, "cmdClose", "&Close"};

private:
    // Takes the temporary total row of the urban land away again.
    void take_total_row_away();
};

// A "please wait" window, ready for a slow report.
class frmReportAvi : public session::Screen {
public:
    explicit frmReportAvi(session::Session& session);

    void Form_Load() override;
    void Form_Activate() override;

    widgets::Frame anmReport{*this, "anmReport"};
    widgets::Label labWait{*this, "labWait", "Please Wait...."};
    widgets::Timer Timer1{*this, "Timer1", 500};
};

} // namespace levora::reports
