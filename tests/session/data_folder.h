#pragma once

#include "session/data_store.h"

#include "widgets/failure.h"

#include <filesystem>
#include <string>

#include <stdlib.h>

namespace levora::session::testing {

// A folder of its own for one test, with the four stores made; gone with the test.
class DataFolder {
public:
    DataFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "levora-store-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
        for (const Store each : all_stores)
            create_store(path_, each);
    }
    ~DataFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string file(Store store) const { return store_path(path_, store); }
    // As the program builds it.
    [[nodiscard]] std::string connect_string(Store store) const {
        return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path_ + "/" + std::string(base_name(store)) +
               ".mdb;Jet OLEDB:Database Password=mirwen72;";
    }
    StatementResult run(Store store, std::string_view statement) const {
        return run_statement(path_, store, statement);
    }
    // The rows of a select as one text: "a|b; c|d".
    [[nodiscard]] std::string rows(Store store, std::string_view select) const {
        std::string text;
        for (const auto& row : run(store, select).rows) {
            if (!text.empty()) text += "; ";
            for (std::size_t i = 0; i < row.size(); ++i)
                text += (i > 0 ? "|" : "") + (row[i].is_null() ? std::string("Null") : row[i].text());
        }
        return text;
    }

private:
    std::string path_;
};

// The number and text of the Failure that a call throws: "13 column ...".
template <class Call> std::string failure_of(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return std::to_string(failure.number) + " " + failure.what();
    }
    return "none";
}

} // namespace levora::session::testing
