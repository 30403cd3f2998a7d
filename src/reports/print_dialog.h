#pragma once

#include "session/session_state.h"
#include "widgets/fields.h"

namespace levora::reports {

// The dialog through which the challan and the return go to paper; PrintSource tells which.
class frmPrint : public session::Screen {
public:
    explicit frmPrint(session::Session& session);

    void Form_Load() override;
    bool Form_KeyDown(std::string_view key) override;

    widgets::Frame frCopies{*this, "frCopies", "Copies"};
    widgets::Label labCopies{*this, "labCopies", "&Number of copies:"};
    widgets::TextField txtNoCopies{*this, "txtNoCopies", "&Number of copies:"};
    widgets::TickBox chkCollate{*this, "chkCollate", "C&ollate"};
    widgets::Frame frCollated{*this, "frCollated"};
    widgets::Frame frNonCollated{*this, "frNonCollated"};
    widgets::Frame frPageRange{*this, "frPageRange", "Page range"};
    widgets::OptionButton optNormalSeq{*this, "optNormalSeq", "&All pages (Normal Page Sequence)",
                                       "Page range"};
    widgets::Frame frMargins{*this, "frMargins", "Forms Margin"};
    widgets::Label labTM{*this, "labTM", "&Top Margin                        mm"};
    widgets::TextField txtTopMargin{*this, "txtTopMargin", "&Top Margin                        mm"};
    widgets::Label labLM{*this, "labLM", "&Left Margin                        mm"};
    widgets::TextField txtLeftMargin{*this, "txtLeftMargin", "&Left Margin                        mm"};
    widgets::TickBox chkPrePrinted{*this, "chkPrePrinted", "&Use Levora pre-printed Form"};
    widgets::Button cmdPrint{*this, "cmdPrint", "&Print"};
    widgets::Button cmdOK{*this, "cmdOK", "&OK"};
    widgets::Button cmdCancel{*this, "cmdCancel", "&Cancel"};
    widgets::Label labStatus{*this, "labStatus", "Levora Challan"};

private:
    void connect();
    void cmdPrint_Click();
    void cmdOK_Click();
    void SavePrintSettings();
    void print_challan(int top_twips, int left_twips, int copies);
    void print_form_bb(int copies);
    void close() { session_.screens.unload("frmPrint"); }

    bool SettingsChanged = false;
};

} // namespace levora::reports
