// Any bytes as a file to import: the screen takes what it can and refuses the rest, and what it took can
// be written, read again and checked.
#include "return/ereturn.h"
#include "return/form_ba_reader.h"
#include "return/form_ba_writer.h"
#include "return/return_check.h"
#include "return/windows_1252.h"
#include "return/xml_document.h"
#include "widgets/headless_desk.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace {

using namespace levora;

// One run of the program without a data folder; the return is made anew for each input.
struct Run {
    Run() {
        session.CurrentFY = "2014-2015";
        session.AYStartYear = "2014";
    }

    widgets::HeadlessDesk desk;
    session::Settings settings{"/nonexistent/settings.toml"};
    session::Session session{session::Surroundings{desk, settings, "/nonexistent", "", "FUZZ"}};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Run run;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto document = form_ba::XmlDocument::parse(bytes);
    if (!document) return 0;
    form_ba::frmFormBA form(run.session);
    form_ba::ReadFormBAXml(form, *document);
    run.session.XmlIndent = 0;
    run.session.XmlTagTop = 0;
    form_ba::eReturn xml(run.session);
    form_ba::write_document(xml, form, run.session);
    if (const auto again = form_ba::XmlDocument::parse(form_ba::to_windows_1252(xml.text())))
        form_ba::ReadFormBAXml(form, *again);
    static const form_ba::Schema schema("/nonexistent");
    (void)form_ba::check_return(form, run.session, schema);
    return 0;
}
