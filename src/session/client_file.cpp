#include "session/client_file.h"

#include "session/parts_file.h"
#include "session/store_tables.h"
#include "session/whole_folder.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

namespace levora::session {

namespace {

const std::string number_part = "AssesseeNo";

std::string number_of(std::int64_t assessee_no) {
    return number_text(static_cast<double>(assessee_no));
}

void copy_rows_out(WholeFolder& from, OpenStore& to, const TableRule& table, const std::string& assessee_no) {
    to.run(create_table_statement(table));
    const StatementResult rows =
        from.run("SELECT * FROM " + as_name(table.name) + " WHERE AssesseeNo = " + assessee_no);
    if (rows.rows.empty()) return;
    std::vector<std::string> columns;
    std::vector<std::size_t> wanted; // a later version's columns stay behind
    for (std::size_t i = 0; i < rows.columns.size(); ++i) {
        if (!find_column(table, rows.columns[i])) continue;
        columns.push_back(rows.columns[i]);
        wanted.push_back(i);
    }
    const PreparedStatement insert = to.prepare(insert_statement(as_name(table.name), columns));
    for (const auto& row : rows.rows) {
        sqlite3_reset(insert.get());
        for (std::size_t i = 0; i < wanted.size(); ++i)
            bind_value(to, insert.get(), static_cast<int>(i) + 1, row[wanted[i]]);
        to.step(insert.get());
    }
}

void copy_rows_in(OpenStore& from, WholeFolder& to, const TableRule& table) {
    const PreparedStatement select = from.prepare("SELECT * FROM " + as_name(table.name) + " ORDER BY rowid");
    std::vector<std::string> columns;
    std::vector<int> wanted;
    for (int i = 0; i < sqlite3_column_count(select.get()); ++i) {
        const ColumnRule* column = find_column(table, sqlite3_column_name(select.get(), i));
        // The folder gives its own numbers, so that none is given twice.
        if (!column || column->kind == ColumnKind::counter) continue;
        columns.emplace_back(column->name);
        wanted.push_back(i);
    }
    while (from.step(select.get())) {
        std::vector<Value> values;
        values.reserve(wanted.size());
        for (const int each : wanted)
            values.push_back(column_value(select.get(), each));
        to.insert(table.name, columns, values);
    }
}

} // namespace

void export_client(const std::string& folder, std::int64_t assessee_no, const std::string& file) {
    PartsFile exported(file, PartsFile::Kind::client);
    const std::string number = number_of(assessee_no);
    {
        WholeFolder stores(folder);
        if (!stores.has_rows_of(assessee_no))
            throw Failure(error_number::file_not_found, folder + ": there is no assessee " + number);
        for (const TableRule& table : store_tables())
            if (find_column(table, "AssesseeNo")) copy_rows_out(stores, exported.store(), table, number);
    }
    exported.put(number_part, number);
    for (const auto& [name, content] : working_copies(folder, "WT " + number + " "))
        exported.put(name, content);
    exported.finish();
}

std::int64_t import_client(const std::string& file, const std::string& folder) {
    PartsFile imported = PartsFile::open(file, PartsFile::Kind::client);
    const std::map<std::string, std::string> parts = imported.parts();
    const auto number = parts.find(number_part);
    const auto assessee_no = static_cast<std::int64_t>(number == parts.end() ? 0 : val(number->second));
    if (assessee_no <= 0) throw Failure(error_number::path_access, file + ": it names no assessee");

    WholeFolder stores(folder);
    if (stores.has_rows_of(assessee_no))
        throw Failure(error_number::path_access,
                      folder + ": assessee " + number_of(assessee_no) + " is there already");
    for (const TableRule& table : store_tables())
        if (find_column(table, "AssesseeNo")) copy_rows_in(imported.store(), stores, table);
    const std::vector<std::string> copies = write_working_copies(folder, parts);
    try {
        stores.commit();
    } catch (...) {
        remove_files(copies);
        throw;
    }
    return assessee_no;
}

} // namespace levora::session
