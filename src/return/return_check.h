#pragma once

#include "return/return_screen.h"
#include "return/schema_check.h"

#include <string>
#include <vector>

// The program's own check of a return before it is filed.
namespace levora::form_ba {

// One thing that is wrong, and where to go to mend it.
struct Finding {
    std::string where; // the label of a field, or a grid's heading with column and row
    std::string what;
    std::string control; // of frmFormBA
    int column = 0;      // of a grid; 0 for a field
    int row = 0;
};

// Checks the return as it stands on the screen: the document that it would make against the schema, and
// what no schema sees. Changes nothing, the state of a later document included.
std::vector<Finding> check_return(const frmFormBA& form, session::Session& session, const Schema& schema);

// The two halves.
std::vector<Finding> schema_findings(const frmFormBA& form, session::Session& session, const Schema& schema);
std::vector<Finding> plain_findings(const frmFormBA& form, const session::Session& session);

// A finding on a field, and one on a cell of a grid.
Finding on_field(const widgets::Control& field, std::string what);
Finding on_cell(const widgets::Grid& grid, int column, int row, std::string what);

} // namespace levora::form_ba
