#pragma once

#include "return/return_check.h"
#include "session/session_state.h"
#include "widgets/fields.h"

#include <optional>
#include <vector>

namespace levora::form_ba {

// What the check of the return has found, with a way to each place.
class frmReturnCheck : public session::Screen {
public:
    explicit frmReturnCheck(session::Session& session);

    void Form_Activate() override;

    widgets::Label lblSummary{*this, "lblSummary", ""};
    widgets::ColumnList lstFindings{*this, "lstFindings", {"Where", "What"}, "&Findings"};
    widgets::Button cmdGoThere{*this, "cmdGoThere", "&Go there"};
    widgets::Button cmdCheckAgain{*this, "cmdCheckAgain", "Check &again"};
    widgets::Button cmdClose{*this, "cmdClose", "&Close"};

private:
    void check();
    void go_there();

    std::optional<Schema> schema_; // read with the first check
    std::vector<Finding> findings_;
};

} // namespace levora::form_ba
