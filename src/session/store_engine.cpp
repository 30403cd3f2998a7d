#include "session/store_engine.h"

#include "session/file_faults.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <thread>
#include <type_traits>

#include <sys/stat.h>
#include <unistd.h>

namespace levora::session {

namespace {

// A store that is not there, or may not be read, is told before the engine's own words for it.
void check_file(const std::string& file) {
    const std::filesystem::path path(file);
    struct stat found {};
    const std::string folder = path.has_parent_path() ? path.parent_path().string() : ".";
    if (::stat(folder.c_str(), &found) != 0 || !S_ISDIR(found.st_mode))
        throw Failure(error_number::path_not_found, "Path not found: " + folder);
    if (::stat(file.c_str(), &found) != 0)
        throw Failure(error_number::store_not_found,
                      "Could not find file '" + file + "': " + reason_of(errno) + ".");
    if (S_ISDIR(found.st_mode)) throw_file_fault(file, EISDIR);
    if (::access(file.c_str(), R_OK) != 0) throw_file_fault(file, errno);
}

constexpr std::string_view nothing_stored = " (nothing of this save is stored)";

// A fault of disk or memory, no matter what the statement says: no part of a save may go down then.
bool is_of_machine(int code) {
    switch (code & 0xFF) {
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_NOMEM:
    case SQLITE_CANTOPEN:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_READONLY:
    case SQLITE_PROTOCOL:
    case SQLITE_INTERNAL:
        return true;
    default:
        return false;
    }
}

// A journal that can't be made on a full disk is told by the machine only.
bool is_full_disk(int code, int system_error) {
    if ((code & 0xFF) == SQLITE_FULL) return true;
    const bool of_file = (code & 0xFF) == SQLITE_CANTOPEN || (code & 0xFF) == SQLITE_IOERR;
    return of_file && (system_error == ENOSPC || system_error == EDQUOT);
}

// The engine counts each allocation under a lock, a count that nobody here reads.
void stop_counting_memory() {
    static const int code = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    (void)code; // too late where the engine runs already: then it counts on
}

std::optional<Store> store_of_file(const std::string& file) {
    return store_of(std::filesystem::path(file).stem().string());
}

} // namespace

OpenStore::OpenStore(std::string file, std::chrono::milliseconds longest_wait)
    : file_(std::move(file)), store_(store_of_file(file_)), gate_(file_), longest_wait_(longest_wait) {
    check_file(file_);
    stop_counting_memory();
    sqlite3* database = nullptr;
    const int code =
        sqlite3_open_v2(file_.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(database);
    if (code != SQLITE_OK) fail(code);
    sqlite3_extended_result_codes(database, 1);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_busy_handler(database, wait_while_busy, this);
    run("PRAGMA synchronous = FULL");
    // Rows stay in memory until the commit, so that readers are kept out for that moment only.
    run("PRAGMA cache_spill = OFF");
    // A foreign or damaged file says so here, not at its first use.
    run("SELECT count(*) FROM sqlite_schema");
}

OpenStore::~OpenStore() {
    detach_all();
}

int OpenStore::wait_while_busy(void* self, int attempts) {
    auto& store = *static_cast<OpenStore*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (attempts == 0) store.busy_until_ = now + store.longest_wait_;
    if (now >= store.busy_until_) return 0;
    constexpr int patient_attempts = 3;
    if (attempts >= patient_attempts && store.borrow_gate()) return 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(1 + attempts / 4, 10)));
    return 1;
}

bool OpenStore::borrow_gate() {
    if (gate_.is_inside()) return false;
    try {
        const auto left = busy_until_ - std::chrono::steady_clock::now();
        gate_borrowed_ = gate_.enter(std::chrono::duration_cast<std::chrono::milliseconds>(left));
    } catch (const Failure&) {
        gate_borrowed_ = false; // a folder that can be read only has no gate
    }
    return gate_borrowed_;
}

void OpenStore::give_gate_back() {
    if (gate_borrowed_) gate_.leave();
    gate_borrowed_ = false;
}

void OpenStore::fail(int code) {
    const int number = database_ ? sqlite3_extended_errcode(database_.get()) : code;
    std::string text = database_ ? sqlite3_errmsg(database_.get()) : sqlite3_errstr(code);
    for (const auto& [alias, detaching] : attached_) // which no statement of the screens has named
        if (const std::size_t at = text.find(alias + '.'); at != std::string::npos)
            text.erase(at, alias.size() + 1);
    Failure failure(number, text);
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        failure = Failure(number, file_ + ": " + text + ": another program keeps it for too long");
        break;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        failure = Failure(error_number::permission_denied, file_ + ": " + text);
        break;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_PROTOCOL:
        failure = Failure(number, file_ + ": " + text);
        break;
    default:
        break;
    }
    if (is_full_disk(code, database_ ? sqlite3_system_errno(database_.get()) : 0))
        failure = Failure(error_number::disk_full, file_ + ": the disk is full");
    if (begun_ && (is_of_machine(code) || !in_transaction())) {
        take_back();
        throw Failure(failure.number, failure.what() + std::string(nothing_stored));
    }
    throw failure;
}

PreparedStatement OpenStore::prepare(const std::string& text) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), text.c_str(), static_cast<int>(text.size()) + 1,
                                        &statement, nullptr);
    give_gate_back();
    if (code != SQLITE_OK) fail(code);
    return PreparedStatement(statement);
}

bool OpenStore::step(sqlite3_stmt* statement) {
    const int code = sqlite3_step(statement);
    give_gate_back();
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) fail(code);
    return false;
}

void OpenStore::run(const std::string& text) {
    const PreparedStatement statement = prepare(text);
    while (statement && step(statement.get())) {
    }
}

StatementResult OpenStore::run(sqlite3_stmt* statement) {
    StatementResult result;
    if (!statement) return result;
    const int count = sqlite3_column_count(statement);
    result.is_select = count > 0;
    for (int i = 0; i < count; ++i)
        result.columns.emplace_back(sqlite3_column_name(statement, i));
    const int before = sqlite3_total_changes(database_.get());
    while (step(statement)) {
        std::vector<Value>& row = result.rows.emplace_back();
        for (int i = 0; i < count; ++i)
            row.push_back(column_value(statement, i));
    }
    result.rows_touched = sqlite3_total_changes(database_.get()) - before;
    return result;
}

void OpenStore::attach(const std::vector<AttachedStore>& others) {
    detach_all(); // what a statement that failed has left
    for (const AttachedStore& each : others) {
        const std::string file = store_file(each.file);
        check_file(file);
        const PreparedStatement statement = prepare("ATTACH ? AS " + as_name(each.alias));
        bind_value(*this, statement.get(), 1, file);
        attached_.push_back({each.alias, "DETACH " + as_name(each.alias)});
        step(statement.get());
    }
}

void OpenStore::detach_all() noexcept {
    if (in_transaction()) return;
    // A file that can't be let go now goes with the connection.
    for (const Attached& each : attached_)
        sqlite3_exec(database_.get(), each.detaching.c_str(), nullptr, nullptr, nullptr);
    attached_.clear();
}

bool OpenStore::in_transaction() const {
    return database_ && sqlite3_get_autocommit(database_.get()) == 0;
}

bool OpenStore::is_at_rest() const {
    return !in_transaction() && !begun_ && !lost_ && !given_up_ && written_.empty() && attached_.empty() &&
           sqlite3_next_stmt(database_.get(), nullptr) == nullptr;
}

bool OpenStore::file_has_moved() const {
    int moved = 1;
    const int code = sqlite3_file_control(database_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return code != SQLITE_OK || moved != 0;
}

void OpenStore::rest() {
    gate_.close();
    sqlite3_db_release_memory(database_.get());
}

void OpenStore::enter_gate() {
    if (!gate_.enter(longest_wait_))
        throw Failure(SQLITE_BUSY, file_ + ": database is locked: another program keeps it for too long");
}

void OpenStore::begin_if_writable() {
    const bool lost = lost_;
    try {
        begin();
    } catch (const Failure& failure) {
        if (failure.number != error_number::permission_denied) throw;
        lost_ = lost;
    }
}

void OpenStore::begin() {
    if (in_transaction() && !lost_) return;
    lost_in_commit_ = false;
    start_transaction();
    if (!lost_) return;
    for (const Written& each : written_)
        write_again(each);
    lost_ = false;
}

void OpenStore::start_transaction() {
    if (lost_) rollback(); // should it still hang on
    try {
        enter_gate();
        run("BEGIN IMMEDIATE");
    } catch (const std::exception& error) {
        gate_.leave();
        lost_ = true; // what the event writes later would stand there without this
        const auto* failure = dynamic_cast<const Failure*>(&error);
        if (!failure || std::string_view(failure->what()).ends_with(nothing_stored)) throw;
        throw Failure(failure->number, failure->what() + std::string(nothing_stored));
    }
    begun_ = true;
}

void OpenStore::write_again(const Written& each) {
    const PreparedStatement statement = prepare(each.text);
    for (std::size_t i = 0; i < each.values.size(); ++i)
        bind_value(*this, statement.get(), static_cast<int>(i) + 1, each.values[i]);
    while (step(statement.get())) {
    }
    if (each.row_number == 0 || each.row_number == sqlite3_last_insert_rowid(database_.get())) return;
    rollback();
    throw Failure(SQLITE_ABORT,
                  file_ + ": another program has changed these rows meanwhile" + std::string(nothing_stored));
}

void OpenStore::remember(Written&& written) noexcept {
    written_.push_back(std::move(written));
}

bool OpenStore::take_back() noexcept {
    if (!begun_) return false;
    rollback();
    lost_ = true;
    return true;
}

void OpenStore::give_up() noexcept {
    rollback();
    written_.clear();
    lost_ = false;
    given_up_ = true;
}

void OpenStore::end_event() noexcept {
    if (!lost_ && !given_up_) return;
    rollback();
    written_.clear();
    given_up_ = in_transaction(); // without memory even this fails: then it is tried again
    lost_ = false;
    lost_in_commit_ = false;
}

void OpenStore::commit_unless_lost() {
    if (!lost_) commit();
}

void OpenStore::commit() {
    if (given_up_) {
        rollback();
        return;
    }
    if (lost_) begin();
    if (!in_transaction()) return;
    lost_in_commit_ = true;
    run("COMMIT");
    lost_in_commit_ = false;
    written_.clear();
    begun_ = false;
    gate_.leave();
    detach_all();
}

void OpenStore::rollback() noexcept {
    begun_ = false;
    if (in_transaction()) sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    gate_.leave();
    detach_all();
}

std::string insert_statement(const std::string& table, const std::vector<std::string>& columns) {
    std::string names;
    std::string places;
    for (const std::string& each : columns) {
        names += (names.empty() ? "" : ", ") + as_name(each);
        places += places.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + table + " (" + names + ") VALUES (" + places + ")";
}

Value column_value(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<std::int64_t>(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        return bytes ? std::string(bytes, size) : std::string();
    }
    default:
        return {};
    }
}

void bind_value(OpenStore& store, sqlite3_stmt* statement, int place, const Value& value) {
    const int code = std::visit(
        [&](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::int64_t>)
                return sqlite3_bind_int64(statement, place, held);
            else if constexpr (std::is_same_v<Held, double>)
                return sqlite3_bind_double(statement, place, held);
            else if constexpr (std::is_same_v<Held, std::string>)
                return sqlite3_bind_text64(statement, place, held.data(), held.size(), SQLITE_TRANSIENT,
                                           SQLITE_UTF8);
            else
                return sqlite3_bind_null(statement, place);
        },
        value.held());
    if (code != SQLITE_OK) store.fail(code);
}

} // namespace levora::session
