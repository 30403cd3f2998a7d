#include "return/return_screen.h"
#include "return/sheet_fields.h"
#include "widgets/value_text.h"

namespace levora::form_ba {

frmITMDIParent::frmITMDIParent(session::Session& session) : Screen(session, "frmITMDIParent", "Levora IT") {
    // Its menu works on the return inside it.
    const auto form = [this] { return session_.screens.find_as<frmFormBA>("frmFormBA"); };
    mnuPreviewSheet.on_click = [form] {
        if (frmFormBA* const inside = form()) inside->preview_active_sheet();
    };
    mnuPrintSheet.on_click = [form] {
        if (frmFormBA* const inside = form()) inside->print_active_sheet();
    };
}

void frmITMDIParent::Form_Load() {
    const std::string name(trimmed(sheet_text(session_, "txtAssesseeName").text()));
    set_caption(name + " - A.Y. - " + sheet_list(session_, "cboFY").text());
}

// A parent window takes the window inside it along.
void frmITMDIParent::Form_Unload() {
    if (session_.screens.find("frmFormBA")) session_.screens.unload("frmFormBA");
}

} // namespace levora::form_ba
