#include "return/return_screen.h"
#include "widgets/failure.h"

#include <filesystem>

namespace levora::form_ba {

// Wanted: the blank in the program's name is not quoted, and only the year is handed over.
void frmFormBA::cmdValidatitor_Click() {
    const std::string validator = session_.program_folder + "/Levora XML Validator.exe";
    const bool is_there = std::filesystem::exists(validator);
    try {
        session_.desk.start_program(validator + " Form.xsd " + mskAY.text(),
                                    widgets::ProgramWindow::maximized);
    } catch (const Failure& error) {
        if (is_there || error.number != error_number::file_not_found) throw;
    }
    // Without the suite's validator the return is checked here.
    if (!is_there) session_.screens.show("frmReturnCheck");
}

} // namespace levora::form_ba
