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

// Room for one more, so that adding it can't fail.
template <class T> void make_room(std::vector<T>& list) {
    if (list.size() == list.capacity()) list.reserve(2 * list.size() + 8);
}

// One store file, open: what a connection and its row sets share. All failures of the engine leave
// here as a Failure with the engine's number and text, and the file's path where it is the file's.
class OpenStore {
public:
    // How long a store that another program keeps is waited for, the opening too.
    static constexpr std::chrono::milliseconds usual_wait = std::chrono::seconds(10);
    explicit OpenStore(std::string file, std::chrono::milliseconds longest_wait = usual_wait);
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

    struct Written {
        std::string text;
        std::vector<Value> values = {};
        std::int64_t row_number = 0; // where it made a row
    };

    // Attaches the other files that a statement names; they go when no transaction needs them.
    void attach(const std::vector<AttachedStore>& others);
    void detach_all() noexcept;

    // Starts the transaction in hand if there is none: waits for the gate. Rows of the same save that
    // a failing disk has taken back are written anew first.
    void begin();
    // Keeps what a statement of the transaction has written, for that case. All memory is had before the
    // statement runs, so that what it wrote is never forgotten.
    void remember(Written&& written) noexcept; // after make_room_to_remember
    void make_room_to_remember() { make_room(written_); }
    // The same, but a store that can't be written stays without: its rows can still be read.
    void begin_if_writable();
    // The turn alone, until this store is closed.
    void enter_gate();
    // Ends it, with the rows that a fault had taken back. Rows that could not go down are then not there
    // at all.
    void commit();
    // The same before a person is waited for: rows that were taken back stay in memory.
    void commit_unless_lost();
    void rollback() noexcept;
    [[nodiscard]] bool in_transaction() const;

    // Takes the rows of the transaction in hand back, as a failing disk does; true when there was one.
    bool take_back() noexcept;
    // True while rows are taken back by a statement's fault.
    [[nodiscard]] bool has_loss() const noexcept { return lost_ && !lost_in_commit_; }
    // They are not written anew then, and nothing more goes down until the event is over.
    void give_up() noexcept;
    void end_event() noexcept; // with which a loss is forgotten

    // Nothing is under way and nothing left over: no transaction, statement, attached file, lost rows.
    [[nodiscard]] bool is_at_rest() const;
    // Another file, or none, has the name of the one that is open here.
    [[nodiscard]] bool file_has_moved() const;
    // Lets go what an idle store does not need: the pages read, and the gate's file, which may be another
    // one at the next turn.
    void rest();

    [[noreturn]] void fail(int code);

private:
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
    std::chrono::milliseconds longest_wait_;
    std::chrono::steady_clock::time_point busy_until_;
    struct Attached {
        std::string alias;
        std::string detaching; // the statement, ready for a time without memory
    };
    std::vector<Attached> attached_;
    bool gate_borrowed_ = false;
    bool begun_ = false;
    std::vector<Written> written_; // in the transaction in hand
    // Set from the moment when written rows were taken back, or could not be written at all, until they
    // stand. What still comes of the same save must not go down alone.
    bool lost_ = false;
    bool lost_in_commit_ = false; // by no statement's fault: the end of the event commits once more
    bool given_up_ = false;
};

// "INSERT INTO table (a, b) VALUES (?, ?)"; the table's name as a statement has it.
std::string insert_statement(const std::string& table, const std::vector<std::string>& columns);
Value column_value(sqlite3_stmt* statement, int column);
void bind_value(OpenStore& store, sqlite3_stmt* statement, int place, const Value& value);

} // namespace levora::session
