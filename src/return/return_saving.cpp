#include "return/form_ba_writer.h"
#include "return/return_screen.h"
#include "session/common_services.h"
#include "session/file_faults.h"
#include "session/unread_rows.h"

#include <cerrno>

#include <sys/stat.h>

namespace levora::form_ba {

namespace {

// The folder of the working copies is made when it is missing; its parent, the data folder, is not.
void make_folder_of(const std::string& path) {
    const std::string folder = path.substr(0, path.find_last_of('/'));
    if (::mkdir(folder.c_str(), session::shared_folder_mode) != 0 && errno != EEXIST)
        session::throw_file_fault(folder, errno);
}

} // namespace

// A failure is reported once and ends the procedure: the half-made document is never tried again.
void frmFormBA::btnGenerate_Click() {
    session::procedure(session_, "frmFormBA - btnGenerate_Click", [this](const auto&) {
        IsSaving = false;
        widgets::FileDialog dialog;
        dialog.kind = widgets::FileDialogKind::save;
        dialog.extension = ".xml";
        dialog.filter = "e-Return File (*.xml)|*.xml";
        dialog.folder = "C:\\fakepath";
        dialog.name = mskPAN.text() + "WT";
        if (cboReturnType.text() != "Original") dialog.name += "R";
        const std::optional<std::string> chosen = session_.desk.choose_file(dialog);
        if (!chosen) return;
        ReturnFilePath = *chosen;
        eReturn xml(session_);
        write_document(xml, *this, session_);
        xml.save(ReturnFilePath);
        widgets::MessageBox done;
        done.title = "Levora Wealth Tax";
        done.text = "XML File Genarated Successfully in  " + ReturnFilePath;
        session_.desk.show_message(done);
    });
}

void frmFormBA::cmdSave_Click() {
    session::procedure(session_, "frmFormBA - cmdSave_Click", [this](const auto&) {
        IsSaving = true;
        std::string path = working_copy_path(session_);
        // A revised return's copy has a name of its own, under which the next opening does not look.
        if (cboReturnType.text() != "Original") path += "R";
        if (path == unread_copy_ &&
            session::ask_over_unread(session_, "The saved data in " + path) != session::OverUnread::save) {
            IsSaving = false;
            return;
        }
        eReturn xml(session_);
        write_document(xml, *this, session_);
        make_folder_of(path);
        xml.save(path);
        if (path == unread_copy_) unread_copy_.clear();
        IsSaving = false;
        lblFillFrom.set_caption("Data Saved");
    });
}

} // namespace levora::form_ba
