#pragma once

#include "session/store_engine.h"
#include "session/store_tables.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace levora::session {

struct RowSet::State {
    std::weak_ptr<OpenStore> store;
    RowSetUse use = RowSetUse::read;
    std::string table_name; // of a single table
    std::string table;      // as a statement has it, with its file; empty when rows can't be updated
    std::vector<std::string> columns;
    std::vector<const ColumnRule*> rules;  // null for a column that is not of the catalogue
    std::vector<std::int64_t> row_numbers; // of a row set for update
    std::vector<std::vector<Value>> rows;
    // Row and column of values that their column can't hold, which a foreign program has left there.
    std::set<std::pair<std::size_t, std::size_t>> wrong;
    std::size_t current = 0;

    enum class Editing { nothing, current_row, new_row };
    Editing editing = Editing::nothing;
    std::vector<Value> edited;
    std::vector<bool> changed;
    std::string insertion_text;
    PreparedStatement insertion;

    [[nodiscard]] std::size_t column(std::string_view name) const;
    [[nodiscard]] OpenStore& writable_store() const;
    void start_editing();
    void insert_row(OpenStore& writing);
    void update_row(OpenStore& writing);
};

// Reads the rows of a translated select, all at once.
std::unique_ptr<RowSet::State> read_rows(const std::shared_ptr<OpenStore>& store,
                                         const StatementText& statement, RowSetUse use);
// The select with its rows in the order saved, prepared; as it stands where a table knows no order.
PreparedStatement prepare_select(OpenStore& store, const StatementText& statement);

} // namespace levora::session
