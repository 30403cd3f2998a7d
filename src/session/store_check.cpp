#include "session/store_check.h"

#include "session/data_store.h"
#include "session/statement_text.h"
#include "session/store_tables.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace levora::session {

namespace {

constexpr std::size_t most_rows_told = 10; // of one kind of fault in one table

class Checker {
public:
    Checker(std::string folder, const WorkTold& told) : folder_(std::move(folder)), told_(told) {}

    void check_store(Store store);
    void check_orphans();

    std::vector<std::string> faults;

private:
    StatementResult run(Store store, const std::string& statement) const {
        return run_statement(folder_, store, statement);
    }
    void tell(Store store, const std::string& fault) {
        faults.push_back(std::string(base_name(store)) + ": " + fault);
    }
    void check_table(const TableRule& table);
    bool check_columns(const TableRule& table);
    void check_values(const TableRule& table, const ColumnRule& column);
    void check_keys(const TableRule& table);

    std::string folder_;
    const WorkTold& told_;
    int tables_done_ = 0;
    std::set<std::string_view> sound_tables_;
};

// The test that a wrong value of this column passes, in the engine's words.
std::string wrong_value_test(const ColumnRule& column) {
    const std::string name = as_name(column.name);
    switch (column.kind) {
    case ColumnKind::text:
        return "typeof(" + name + ") NOT IN ('text', 'null')";
    case ColumnKind::text_or_number:
        return "typeof(" + name + ") = 'blob'";
    case ColumnKind::number:
        return "typeof(" + name + ") NOT IN ('integer', 'real', 'null')";
    case ColumnKind::whole:
    case ColumnKind::counter:
        return "typeof(" + name + ") NOT IN ('integer', 'null')";
    case ColumnKind::date:
    case ColumnKind::date_or_empty:
        break;
    }
    return name + " IS NOT date(" + name + ", '+0 days')";
}

void Checker::check_store(Store store) {
    try {
        const StatementResult integrity = run(store, "PRAGMA integrity_check(10)");
        for (const auto& row : integrity.rows)
            // Wrong values are told below, by row and column.
            if (row[0].text() != "ok" && !row[0].text().starts_with("CHECK constraint failed"))
                tell(store, "the file is damaged: " + row[0].text());
        for (const TableRule& table : store_tables())
            if (table.store == store) {
                if (told_)
                    told_(std::string(table.name), tables_done_++, static_cast<int>(store_tables().size()));
                check_table(table);
            }
    } catch (const Failure& failure) {
        tell(store, failure.what());
    }
}

void Checker::check_table(const TableRule& table) {
    if (!check_columns(table)) return;
    sound_tables_.insert(table.name);
    for (const ColumnRule& column : table.columns)
        check_values(table, column);
    check_keys(table);
}

bool Checker::check_columns(const TableRule& table) {
    const StatementResult found =
        run(table.store, "SELECT name FROM pragma_table_info(" + as_literal(table.name) + ")");
    if (found.rows.empty()) {
        tell(table.store, "table \"" + std::string(table.name) + "\" is missing");
        return false;
    }
    bool all_there = true;
    for (const ColumnRule& column : table.columns) {
        const bool there = std::any_of(found.rows.begin(), found.rows.end(), [&](const auto& row) {
            return equal_without_case(row[0].text(), column.name);
        });
        if (there) continue;
        tell(table.store, "table \"" + std::string(table.name) + "\" lacks the column \"" +
                              std::string(column.name) + "\"");
        all_there = false;
    }
    return all_there;
}

void Checker::check_values(const TableRule& table, const ColumnRule& column) {
    const StatementResult wrong =
        run(table.store, "SELECT rowid, " + as_name(column.name) + " FROM " + as_name(table.name) +
                             " WHERE " + wrong_value_test(column) + " LIMIT " +
                             number_text(static_cast<double>(most_rows_told)));
    for (const auto& row : wrong.rows)
        tell(table.store, "table \"" + std::string(table.name) + "\", row " + row[0].text() + ", column \"" +
                              std::string(column.name) +
                              "\": " + not_what_was_wanted(in_words(column.kind), row[1]));
}

void Checker::check_keys(const TableRule& table) {
    if (table.key_columns == 0) return;
    std::string columns;
    for (const ColumnRule& column : table.columns.first(static_cast<std::size_t>(table.key_columns)))
        columns += (columns.empty() ? "" : ", ") + as_name(column.name);
    const StatementResult doubled =
        run(table.store, "SELECT " + columns + ", count(*) AS rows FROM " + as_name(table.name) +
                             " GROUP BY " + columns + " HAVING count(*) > 1");
    for (const auto& row : doubled.rows) {
        std::string key;
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            key += (key.empty() ? "" : ", ") + std::string(table.columns[i].name) + " " + row[i].text();
        tell(table.store, "table \"" + std::string(table.name) + "\" has " + row.back().text() +
                              " rows of one key: " + key);
    }
}

// Rows belong to an assessee of the master. Wanted: rent, plot and stone rows whose property or item is
// gone are no fault, as the screens keep them under their old numbers.
void Checker::check_orphans() {
    const std::string master =
        "[" + store_path(folder_, Store::assessee) + "; PWD=].AssesseeInfo"; // reached from the other files
    for (const TableRule& table : store_tables()) {
        if (!sound_tables_.contains("AssesseeInfo") || !sound_tables_.contains(table.name) ||
            !find_column(table, "AssesseeNo") || table.name == "AssesseeInfo")
            continue;
        const StatementResult lost =
            run(table.store, "SELECT AssesseeNo, count(*) AS rows FROM " + as_name(table.name) +
                                 " WHERE AssesseeNo IS NULL OR AssesseeNo NOT IN (SELECT AssesseeNo FROM " +
                                 master + ") GROUP BY AssesseeNo");
        for (const auto& row : lost.rows)
            tell(table.store,
                 "table \"" + std::string(table.name) + "\" has " + row[1].text() + " row(s) of " +
                     (row[0].is_null() ? std::string("no assessee") : "assessee " + row[0].text()) +
                     (row[0].is_null() ? "" : ", whom the master does not have"));
    }
}

} // namespace

std::vector<std::string> find_faults(const std::string& folder, const WorkTold& told) {
    Checker checker(folder, told);
    for (const Store each : all_stores)
        checker.check_store(each);
    checker.check_orphans();
    return std::move(checker.faults);
}

} // namespace levora::session
