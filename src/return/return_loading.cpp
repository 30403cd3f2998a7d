#include "return/form_ba_reader.h"
#include "return/return_screen.h"
#include "session/common_services.h"
#include "widgets/typed_control.h"
#include "widgets/value_text.h"

#include <optional>
#include <string>

namespace levora::form_ba {

void frmFormBA::btnImport_Click() {
    widgets::FileDialog dialog;
    dialog.title = "Select XML file.";
    dialog.extension = ".xml";
    dialog.filter = "e-Return File (*.xml)|*.xml";
    dialog.folder = session::RegReadValue(session_, session::registry::levora_iter, "e-Return File Path");
    const std::optional<std::string> chosen = session_.desk.choose_file(dialog);
    if (!chosen) return;
    ClearFormBA();
    LoadXmlFile(*chosen);
    ReturnFilePath = *chosen;
}

void frmFormBA::ClearFormBA() {
    // Wanted: by the name. TotalValMovableProp is a text field too and stays.
    const auto empty_fields = [this] {
        for (widgets::Control* each : controls())
            if (equal_without_case(std::string_view(each->name()).substr(0, 3), "TXT"))
                if (auto* const field = widgets::as_if<widgets::TextField>(each)) field->set_text("");
    };
    empty_fields();
    empty_fields(); // figures that were worked out again from a later field, once that was empty
    for (widgets::Grid* grid :
         {&sprScheduleBTP, &sprImmovableProperty, &sprMovableProperty, &sprJewellery, &sprPreciousStone,
          &sprAssetInterest, &sprAssetsClaimedExempt, &sprScheduleOPR})
        grid->clear_data();
    clear_other_persons();
}

bool frmFormBA::LoadXmlFile(const std::string& path) {
    const std::optional<XmlDocument> document = XmlDocument::load(path);
    if (!document) {
        widgets::MessageBox box;
        box.text = "Blank or Invalid XML file, could not load the file";
        box.icon = widgets::Icon::information;
        session_.desk.show_message(box);
        return false;
    }
    ReadFormBAXml(*this, *document);
    return true;
}

} // namespace levora::form_ba
