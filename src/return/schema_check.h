#pragma once

#include "return/xml_document.h"

#include <string>
#include <string_view>
#include <vector>

namespace levora::form_ba {

// One element that the schema refuses.
struct SchemaFault {
    std::string element; // as written: "FBAMain:PAN"
    std::string value;
    bool misplaced = false;  // the element itself can't stand there, whatever its value
    std::string row_element; // the element around it
    int row = 0;             // which of its kind that is, from 1
    int outer_row = 0;       // the same of the element around that
};

// Holds the document against "Form.xsd" of the folder and the schemas that it takes in, or against the
// built-in ones where the folder has none. Nothing else is opened, on the disk or elsewhere. A schema
// that can't be used is a Failure 75.
std::vector<SchemaFault> check_against_schema(const XmlDocument& document, const std::string& folder);

// The text of a schema by its file's name; empty for any other name.
std::string_view built_in_schema(std::string_view name);

} // namespace levora::form_ba
