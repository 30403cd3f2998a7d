#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace levora::session {

// A file that a statement names beside the open store's own, and the name that it goes by there.
struct AttachedStore {
    std::string alias;
    std::string file; // as told: "FOLDER/Assessee.mdb"
};

// A statement of the screens in the words of the store engine.
struct StatementText {
    std::string text;
    std::vector<AttachedStore> attached;

    // Of a select from one table alone: the table's name and the file's alias ("" the store's own).
    // Its rows can be updated, and come in the order saved.
    std::string table;
    std::string alias;
    std::size_t columns_at = 0; // where the list of columns starts in `text`
    std::size_t order_at = 0;   // where an order clause ends, or one may stand
    bool has_order = false;

    [[nodiscard]] bool is_single_table() const { return !table.empty(); }
    // The text with the rows in the order saved, where no other order is told or that one leaves ties.
    [[nodiscard]] std::string in_saved_order() const;
    // The same with the row's number as a first column before the told ones.
    [[nodiscard]] std::string with_row_number() const;
};

// Translates DELETE * FROM, #MM/dd/yyyy# dates and [FOLDER\file; PWD=...].Table; the rest stays as it
// is, literals untouched. A date that the calendar does not have is a Failure.
StatementText translate(std::string_view statement);

// A name as a statement can have it, whatever signs are in it.
std::string as_name(std::string_view name);
// 'O''Neil'
std::string as_literal(std::string_view text);
// The path of the SQLite file that a told store file stands for: FOLDER\LVWTax.mdb is FOLDER/LVWTax.db.
std::string store_file(std::string_view told);
// The file told by the "Data Source" of a connect string; empty when there is none.
std::string data_source(std::string_view connect_string);

} // namespace levora::session
