#include "return/return_check_screen.h"

#include "widgets/typed_control.h"
#include "widgets/value_text.h"

#include <cstddef>

namespace levora::form_ba {

frmReturnCheck::frmReturnCheck(session::Session& session)
    : Screen(session, "frmReturnCheck", "Check of the return") {
    cmdGoThere.on_click = [this] { go_there(); };
    cmdCheckAgain.on_click = [this] { check(); };
    cmdClose.on_click = [this] { session_.screens.unload("frmReturnCheck"); };
}

// Also when it is asked for again while it shows: the return may have changed since.
void frmReturnCheck::Form_Activate() {
    check();
}

void frmReturnCheck::check() {
    lstFindings.clear();
    findings_.clear();
    auto* const form = session_.screens.find_as<frmFormBA>("frmFormBA");
    if (!form) {
        lblSummary.set_caption("The return is not open.");
        return;
    }
    if (!schema_) schema_.emplace(session_.program_folder);
    findings_ = check_return(*form, session_, *schema_);
    for (const Finding& each : findings_)
        lstFindings.add_row({each.where, each.what});
    const auto count = static_cast<double>(findings_.size());
    lblSummary.set_caption(findings_.empty() ? "Nothing is wrong with this return."
                           : findings_.size() == 1
                               ? "One thing is to be looked at before this return is filed."
                               : number_text(count) + " things are to be looked at before "
                                                      "this return is filed.");
    cmdGoThere.set_enabled(!findings_.empty());
    if (!findings_.empty()) lstFindings.set_index(0);
}

void frmReturnCheck::go_there() {
    auto* const form = session_.screens.find_as<frmFormBA>("frmFormBA");
    const int chosen = lstFindings.index();
    if (!form || chosen < 0 || chosen >= static_cast<int>(findings_.size())) return;
    const Finding& finding = findings_[static_cast<std::size_t>(chosen)];
    widgets::Control* const control = form->find(finding.control);
    if (!control) return;
    session_.screens.show("frmFormBA");
    if (const int tab = form->tab_of(*control); tab >= 0) form->SSTab1.set_tab(tab);
    if (control == &form->sprPreciousStone) form->frPreciousStone.set_visible(true);
    if (auto* const grid = widgets::as_if<widgets::Grid>(control); grid && finding.column > 0)
        grid->set_active(finding.column, finding.row);
    if (control->enabled() && control->visible()) control->set_focus();
}

} // namespace levora::form_ba
