#pragma once

#include "session/data_store.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace levora::session {

// All four stores of a data folder in one hand, for what changes or reads them together: other
// programs wait meanwhile, and what is changed stands in all of them or in none. Tables are named
// alone, as no name stands in two stores.
class WholeFolder {
public:
    // Waits for its turn at all four; a Failure as from Connection::open.
    explicit WholeFolder(const std::string& folder);
    ~WholeFolder(); // takes back what was not committed
    WholeFolder(const WholeFolder&) = delete;
    WholeFolder& operator=(const WholeFolder&) = delete;

    StatementResult run(std::string_view statement);
    // A row by its columns' names, through bound values.
    void insert(std::string_view table, const std::vector<std::string>& columns,
                const std::vector<Value>& values);
    // True when any table holds a row of this assessee.
    bool has_rows_of(std::int64_t assessee_no);
    void commit();

private:
    struct State;
    std::unique_ptr<State> state_;
};

// Makes a folder for the owner and group alone, where it is not there.
void make_folder(const std::string& folder);
// Makes the folder, where it is not there, with the four empty stores: all of them or, with a
// Failure, none. A store that is there already is left alone and named.
void create_data_folder(const std::string& folder);

} // namespace levora::session
