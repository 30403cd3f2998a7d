#include "return/schema_check.h"

#include "widgets/failure.h"

#include <filesystem>
#include <memory>
#include <new>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

namespace levora::form_ba {

namespace {

struct FreeSchema {
    void operator()(xmlSchemaParserCtxt* context) const { xmlSchemaFreeParserCtxt(context); }
    void operator()(xmlSchema* schema) const { xmlSchemaFree(schema); }
    void operator()(xmlSchemaValidCtxt* context) const { xmlSchemaFreeValidCtxt(context); }
};

// Where schemas come from while they are read. The library's loader is one for all and is handed
// nothing of ours, so this stands beside it.
std::string schema_folder;
bool schema_lacks_memory = false;

xmlParserInputPtr load_schema(const char* url, const char*, xmlParserCtxtPtr context) try {
    const std::filesystem::path wanted(url ? url : "");
    const std::string name = wanted.filename().string();
    const std::string_view text = built_in_schema(name);
    if (text.empty()) return nullptr; // none of ours
    const std::filesystem::path folder = name == "Form.xsd" ? schema_folder : schema_folder + "/schema";
    const std::filesystem::path file = folder / name;
    if (std::filesystem::exists(file)) return xmlNewInputFromFile(context, file.c_str());
    return xmlNewStringInputStream(context, reinterpret_cast<const xmlChar*>(text.data()));
} catch (const std::bad_alloc&) {
    schema_lacks_memory = true; // no exception may pass through the library
    return nullptr;
}

// For as long as it lives, only schemas are opened.
class SchemaFilesOnly {
public:
    explicit SchemaFilesOnly(const std::string& folder) : before_(xmlGetExternalEntityLoader()) {
        schema_folder = folder;
        schema_lacks_memory = false;
        xmlSetExternalEntityLoader(load_schema);
    }
    ~SchemaFilesOnly() { xmlSetExternalEntityLoader(before_); }
    SchemaFilesOnly(const SchemaFilesOnly&) = delete;
    SchemaFilesOnly& operator=(const SchemaFilesOnly&) = delete;

private:
    xmlExternalEntityLoader before_;
};

// Why a schema can't be had; only a want of memory is told apart.
void note_want_of_memory(void*, xmlErrorPtr error) {
    if (error->code == XML_ERR_NO_MEMORY) schema_lacks_memory = true;
}

std::string written_name(const xmlNode* node) {
    const auto* const local = reinterpret_cast<const char*>(node->name);
    if (!node->ns || !node->ns->prefix) return local;
    return std::string(reinterpret_cast<const char*>(node->ns->prefix)) + ":" + local;
}

int position_among_its_kind(const xmlNode* node) {
    int position = 1;
    const std::string name = written_name(node);
    for (const xmlNode* each = node->prev; each; each = each->prev)
        if (each->type == XML_ELEMENT_NODE && written_name(each) == name) ++position;
    return position;
}

struct Faults {
    std::vector<SchemaFault> list;
    const xmlNode* last = nullptr;
    bool complete = true;
};

SchemaFault fault_at(const xmlNode* node, int code) {
    SchemaFault fault;
    fault.element = written_name(node);
    fault.value = XmlNode(node).text();
    fault.misplaced = code == XML_SCHEMAV_ELEMENT_CONTENT;
    if (node->parent && node->parent->type == XML_ELEMENT_NODE) {
        fault.row_element = written_name(node->parent);
        fault.row = position_among_its_kind(node->parent);
        const xmlNode* const outer = node->parent->parent;
        if (outer && outer->type == XML_ELEMENT_NODE) fault.outer_row = position_among_its_kind(outer);
    }
    return fault;
}

// The library may tell a facet and the type behind it: one fault for each element. No exception may
// pass through the library.
void note_fault(void* user, xmlErrorPtr error) {
    auto& faults = *static_cast<Faults*>(user);
    if (error->code == XML_ERR_NO_MEMORY) faults.complete = false;
    const auto* const node = static_cast<const xmlNode*>(error->node);
    if (!node || node->type != XML_ELEMENT_NODE) return;
    if (node == faults.last) return;
    faults.last = node;
    try {
        faults.list.push_back(fault_at(node, error->code));
    } catch (const std::bad_alloc&) {
        faults.complete = false;
    }
}

} // namespace

struct Schema::Compiled {
    std::unique_ptr<xmlSchema, FreeSchema> schema;
};

Schema::Schema(const std::string& folder) : compiled_(std::make_unique<Compiled>()) {
    const SchemaFilesOnly guard(folder);
    const std::unique_ptr<xmlSchemaParserCtxt, FreeSchema> parser(xmlSchemaNewParserCtxt("Form.xsd"));
    if (!parser) throw std::bad_alloc();
    xmlSchemaSetParserStructuredErrors(parser.get(), note_want_of_memory, nullptr);
    compiled_->schema.reset(xmlSchemaParse(parser.get()));
    if (schema_lacks_memory) throw std::bad_alloc();
    if (!compiled_->schema)
        throw Failure(error_number::path_access, folder + "/Form.xsd can't be used as a schema");
}

Schema::~Schema() = default;
Schema::Schema(Schema&&) noexcept = default;
Schema& Schema::operator=(Schema&&) noexcept = default;

std::vector<SchemaFault> Schema::faults_of(const XmlDocument& document) const {
    const std::unique_ptr<xmlSchemaValidCtxt, FreeSchema> check(
        xmlSchemaNewValidCtxt(compiled_->schema.get()));
    if (!check) throw std::bad_alloc();
    Faults faults;
    xmlSchemaSetValidStructuredErrors(check.get(), note_fault, &faults);
    constexpr int gone_wrong_itself = -1;
    if (xmlSchemaValidateDoc(check.get(), document.get()) == gone_wrong_itself || !faults.complete)
        throw std::bad_alloc();
    return std::move(faults.list);
}

} // namespace levora::form_ba
