#pragma once

#include "return/xml_document.h"

#include <memory>
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

// "Form.xsd" of a folder with the schemas that it takes in, or the built-in ones where the folder has
// none. Nothing else is opened, on the disk or elsewhere.
class Schema {
public:
    // A Failure 75 when what the folder has can't be used.
    explicit Schema(const std::string& folder);
    ~Schema();
    Schema(Schema&&) noexcept;
    Schema& operator=(Schema&&) noexcept;

    // What of the document it refuses.
    [[nodiscard]] std::vector<SchemaFault> faults_of(const XmlDocument& document) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> compiled_;
};

// The text of a schema by its file's name; empty for any other name.
std::string_view built_in_schema(std::string_view name);

} // namespace levora::form_ba
