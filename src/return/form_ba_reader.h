#pragma once

#include "return/return_screen.h"
#include "return/xml_document.h"

namespace levora::form_ba {

// Fills the screen from a document. What can't be read is skipped without a word, and its controls
// stay as they were: only a whole section that is missing, or a value that a control refuses.
void ReadFormBAXml(frmFormBA& form, const XmlDocument& document);

// The schedules of the document, from its element FBAMain:Form_BA and all that stands in it.
void read_schedules(frmFormBA& form, const XmlNode& form_ba, const XmlIndex& all);

// Runs one statement of the reader; a failing one is passed over.
template <class Statement> void quietly(Statement statement) {
    try {
        statement();
    } catch (const Failure&) {
        // The next statement runs.
    }
}

} // namespace levora::form_ba
