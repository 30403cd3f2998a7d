#pragma once

#include "widgets/date_text.h"
#include "widgets/failure.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace levora::session {

// One value of a row: Null, a whole number, a number or a text. Dates are texts "YYYY-MM-DD".
class Value {
public:
    Value() = default;
    Value(std::nullptr_t) {}
    Value(int number) : held_(static_cast<std::int64_t>(number)) {}
    Value(std::int64_t number) : held_(number) {}
    Value(double number) : held_(number) {}
    Value(std::string text) : held_(std::move(text)) {}
    Value(std::string_view text) : held_(std::string(text)) {}
    Value(const char* text) : held_(std::string(text)) {}

    [[nodiscard]] bool is_null() const { return std::holds_alternative<std::monostate>(held_); }
    [[nodiscard]] bool is_whole() const { return std::holds_alternative<std::int64_t>(held_); }
    [[nodiscard]] bool is_text() const { return std::holds_alternative<std::string>(held_); }

    // Null is the empty text; a number its shortest plain text.
    [[nodiscard]] std::string text() const;
    // Null is 0, a text its leading number.
    [[nodiscard]] double number() const;
    // The date that the value holds, if it is one.
    [[nodiscard]] std::optional<Date> date() const;
    // "dd/MM/yyyy" when it is a date, else the empty text.
    [[nodiscard]] std::string day_month_year_or_empty() const;

    [[nodiscard]] const std::variant<std::monostate, std::int64_t, double, std::string>& held() const {
        return held_;
    }

private:
    std::variant<std::monostate, std::int64_t, double, std::string> held_;
};

class Connection;
class KeptStores;

enum class RowSetUse { read, update };

// The rows of one select, read at once, with a cursor on the first. Every operation on a closed row
// set is a Failure 3704. Columns are found without regard to case; an unknown one is a Failure 3265.
class RowSet {
public:
    RowSet();
    ~RowSet();
    RowSet(RowSet&&) noexcept;
    RowSet& operator=(RowSet&&) noexcept;

    [[nodiscard]] bool is_open() const;
    [[nodiscard]] bool eof() const; // past the last row, or none at all
    void move_next();
    void close();

    [[nodiscard]] const Value& operator[](std::string_view column) const; // of the current row
    [[nodiscard]] const std::vector<std::string>& columns() const;

    // A row set for update: add_new starts a row, set changes the new or the current row, update
    // writes it through bound values. Date columns take a Date, an ISO date or a day-first text and
    // refuse anything else; number columns take numbers, texts that are numbers, or Null (Failure 13,
    // with the column's name and the value).
    void add_new();
    void set(std::string_view column, const Value& value);
    void update();

    struct State; // of the store engine

private:
    friend class Connection;
    [[nodiscard]] State& open_state() const;
    std::unique_ptr<State> state_;
};

// One open store: one file. Statements are in the store's own wording: names in square brackets,
// DELETE * FROM, #MM/dd/yyyy# dates, [folder\file; PWD=...].Table for a table of another file.
//
// Rows that are written go down together: the first write opens a transaction, commit() ends it. So a
// kill leaves the old rows or the new ones, while a failing statement keeps what went before it.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // From a connect string ("...;Data Source=FOLDER\LVWTax.mdb;..."). A folder that is not there is
    // a Failure 76, a missing file 3024 with its path and the reason.
    void open(const std::string& connect_string);
    void close(); // commits first
    [[nodiscard]] bool is_open() const;
    [[nodiscard]] const std::string& file() const; // the file opened

    // Runs a statement that is no select; the number of rows touched.
    int execute(std::string_view statement);
    [[nodiscard]] RowSet open_rows(std::string_view select, RowSetUse use = RowSetUse::read);

    // Ends the transaction in hand, if any; a Failure when it can't (disk full: 61).
    void commit();
    [[nodiscard]] bool in_transaction() const;

    // A full or failing disk takes back all rows of the transaction in hand, so that half a save never
    // stands alone. The next statement that writes brings them back with it, and so does commit().
    void commit_unless_lost(); // but not this one, while a person is asked
    // Takes them back when memory runs out; true when there were any.
    bool take_back() noexcept;
    [[nodiscard]] bool has_loss() const noexcept;
    // All that the event has written and still writes is given up.
    void give_up() noexcept;
    void end_event() noexcept;
    // Where open() takes its store from, and where it goes when it is let go. None unless told: then
    // each open() opens the file.
    void keep_in(KeptStores* kept);
    // How long a store that another program keeps is waited for; 10 seconds unless told.
    void set_longest_wait(std::chrono::milliseconds longest_wait);

private:
    struct State;
    std::unique_ptr<State> state_;
};

// The four stores of a data folder, by the base names of their files.
enum class Store { tax, assessee, income_tax, forms };
constexpr Store all_stores[] = {Store::tax, Store::assessee, Store::income_tax, Store::forms};
std::string_view base_name(Store store); // "LVWTax", ...
std::optional<Store> store_of(std::string_view base_name);
std::string store_path(const std::string& folder, Store store); // FOLDER/LVWTax.db

// Makes an empty store with all its tables; a Failure when a file is there already.
void create_store(const std::string& folder, Store store);

// One statement in the store engine's own wording over a connection of its own: what scripts use.
struct StatementResult {
    bool is_select = false;
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;
    int rows_touched = 0;
};
StatementResult run_statement(const std::string& folder, Store store, std::string_view statement);

} // namespace levora::session
