#pragma once

#include "session/data_store.h"
#include "session/statement_text.h"
#include "session/store_gate.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace levora::session {

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using PreparedStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};

// One store file, open: what a connection and its row sets share. All failures of the engine leave
// here as a Failure with the engine's number and text, and the file's path where it is the file's.
class OpenStore {
public:
    explicit OpenStore(std::string file);
    ~OpenStore();
    OpenStore(const OpenStore&) = delete;
    OpenStore& operator=(const OpenStore&) = delete;

    [[nodiscard]] const std::string& file() const { return file_; }
    [[nodiscard]] std::optional<Store> store() const { return store_; }
    void set_longest_wait(std::chrono::milliseconds longest_wait) { longest_wait_ = longest_wait; }
    [[nodiscard]] sqlite3* database() const { return database_.get(); }

    PreparedStatement prepare(const std::string& text);
    // One step: true while it gives a row.
    bool step(sqlite3_stmt* statement);
    // Runs a statement to its end.
    void run(const std::string& text);
    // The same, with its rows; a null statement, of blanks only, has none.
    StatementResult run(sqlite3_stmt* statement);

    // Attaches the other files that a statement names; they go when no transaction needs them.
    void attach(const std::vector<AttachedStore>& others);
    void detach_all();

    // Starts the transaction in hand if there is none: waits for the gate. Rows of the same save that
    // a failing disk has taken back are written anew first.
    void begin();
    // Keeps what a statement of the transaction has written, for that case; the number of the row
    // where it made one.
    void remember(std::string text, std::vector<Value> values, std::int64_t row_number = 0);
    // The same, but a store that can't be written stays without: its rows can still be read.
    void begin_if_writable();
    // The turn alone, until this store is closed.
    void enter_gate();
    // Ends it. Rows that could not go down are then not there at all.
    void commit();
    void rollback();
    [[nodiscard]] bool in_transaction() const;

    // Gives up the rows of a save that a failing disk has taken back.
    void forget_loss();

    // Nothing is under way and nothing left over: no transaction, statement, attached file, lost rows.
    [[nodiscard]] bool is_at_rest() const;
    // Another file, or none, has the name of the one that is open here.
    [[nodiscard]] bool file_has_moved() const;
    // The gate's file is opened anew at the next turn: it may be another one by then.
    void close_gate() { gate_.close(); }

    [[noreturn]] void fail(int code);

private:
    struct Written {
        std::string text;
        std::vector<Value> values;
        std::int64_t row_number;
    };

    static int wait_while_busy(void* self, int attempts);
    // A reader who finds writers at work again and again takes a turn as they do, for one step.
    bool borrow_gate();
    void give_gate_back();
    void start_transaction();
    void write_again(const Written& each);

    std::string file_;
    std::optional<Store> store_;
    std::unique_ptr<sqlite3, CloseDatabase> database_;
    StoreGate gate_;
    std::chrono::milliseconds longest_wait_{std::chrono::seconds(10)};
    std::chrono::steady_clock::time_point busy_until_;
    std::vector<std::string> attached_;
    bool gate_borrowed_ = false;
    bool begun_ = false;
    std::vector<Written> written_; // in the transaction in hand
    // Set from the moment when written rows were taken back until they stand again. What still comes
    // of the same save must not go down alone.
    bool lost_ = false;
    bool lost_in_commit_ = false; // then the transaction had been whole
};

// "INSERT INTO table (a, b) VALUES (?, ?)"; the table's name as a statement has it.
std::string insert_statement(const std::string& table, const std::vector<std::string>& columns);
Value column_value(sqlite3_stmt* statement, int column);
void bind_value(OpenStore& store, sqlite3_stmt* statement, int place, const Value& value);

} // namespace levora::session
