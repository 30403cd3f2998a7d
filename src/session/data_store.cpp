#include "session/data_store.h"

#include "session/file_faults.h"
#include "session/kept_stores.h"
#include "session/row_set.h"
#include "session/store_engine.h"
#include "session/store_image.h"
#include "session/store_tables.h"
#include "session/whole_files.h"
#include "widgets/value_text.h"

#include <array>

namespace levora::session {

namespace {

constexpr std::array<std::string_view, 4> base_names{"LVWTax", "Assessee", "LVIT", "LVForms"};

[[noreturn]] void throw_closed() {
    throw Failure(
        error_number::closed_connection,
        "The connection cannot be used to perform this operation. It is either closed or invalid in "
        "this context.");
}

// A whole table is told by its bare name: "Challan", "[TempPrint]".
std::string select_of(std::string_view told) {
    const std::string_view name = trimmed(told);
    const bool bracketed = name.size() > 2 && name.front() == '[' && name.find(']') == name.size() - 1;
    if (!name.empty() && (bracketed || name.find_first_of(" \t\r\n;*(") == std::string_view::npos))
        return "Select * From " + std::string(name);
    return std::string(told);
}

} // namespace

struct Connection::State {
    std::shared_ptr<OpenStore> store;
    std::string file;
    KeptStores* kept = nullptr;
    std::chrono::milliseconds longest_wait = OpenStore::usual_wait;
};

Connection::Connection() : state_(std::make_unique<State>()) {}

Connection::~Connection() {
    if (!state_->store) return;
    try {
        state_->store->commit_unless_lost();
    } catch (const std::exception&) {
        state_->store->rollback(); // nobody is left to be told
    }
}

void Connection::open(const std::string& connect_string) {
    if (state_->store) throw Failure(3705, "Operation is not allowed when the object is open.");
    const std::string told = data_source(connect_string);
    if (told.empty())
        throw Failure(error_number::store_not_found,
                      "Could not find file '': the connect string names none.");
    const std::string file = store_file(told);
    state_->store =
        state_->kept ? state_->kept->open(file) : std::make_shared<OpenStore>(file, state_->longest_wait);
    state_->store->set_longest_wait(state_->longest_wait);
    state_->file = state_->store->file();
}

void Connection::close() {
    if (!state_->store) throw_closed();
    state_->store->commit();
    state_->store.reset();
}

bool Connection::is_open() const {
    return state_->store != nullptr;
}

const std::string& Connection::file() const {
    return state_->file;
}

void Connection::keep_in(KeptStores* kept) {
    state_->kept = kept;
}

void Connection::set_longest_wait(std::chrono::milliseconds longest_wait) {
    state_->longest_wait = longest_wait;
    if (state_->store) state_->store->set_longest_wait(longest_wait);
}

int Connection::execute(std::string_view statement) {
    if (!state_->store) throw_closed();
    OpenStore& store = *state_->store;
    const StatementText translated = translate(statement);
    store.attach(translated.attached);
    PreparedStatement prepared = store.prepare(translated.text);
    if (!prepared) return 0;
    const bool writes = sqlite3_stmt_readonly(prepared.get()) == 0;
    if (writes) store.begin();
    store.make_room_to_remember();
    OpenStore::Written written{translated.text};
    const StatementResult result = store.run(prepared.get());
    prepared.reset();
    if (writes) store.remember(std::move(written));
    store.detach_all();
    return result.rows_touched;
}

RowSet Connection::open_rows(std::string_view select, RowSetUse use) {
    if (!state_->store) throw_closed();
    OpenStore& store = *state_->store;
    const StatementText translated = translate(select_of(select));
    if (use == RowSetUse::update) store.begin_if_writable();
    store.attach(translated.attached);
    RowSet rows;
    rows.state_ = read_rows(state_->store, translated, use);
    store.detach_all();
    return rows;
}

void Connection::commit() {
    if (state_->store) state_->store->commit();
}

bool Connection::in_transaction() const {
    return state_->store && state_->store->in_transaction();
}

void Connection::commit_unless_lost() {
    if (state_->store) state_->store->commit_unless_lost();
}

bool Connection::take_back() noexcept {
    return state_->store && state_->store->take_back();
}

bool Connection::has_loss() const noexcept {
    return state_->store && state_->store->has_loss();
}

void Connection::give_up() noexcept {
    if (state_->store) state_->store->give_up();
}

void Connection::end_event() noexcept {
    if (state_->store) state_->store->end_event();
}

std::string_view base_name(Store store) {
    return base_names.at(static_cast<std::size_t>(store));
}

std::optional<Store> store_of(std::string_view name) {
    for (const Store each : all_stores)
        if (equal_without_case(base_name(each), name)) return each;
    return std::nullopt;
}

std::string store_path(const std::string& folder, Store store) {
    const std::string separator = folder.ends_with('/') ? "" : "/";
    return folder + separator + std::string(base_name(store)) + ".db";
}

void create_store(const std::string& folder, Store store) {
    write_new_file(store_path(folder, store), image_of_empty(store), shared_file_mode);
}

StatementResult run_statement(const std::string& folder, Store store, std::string_view statement) {
    const auto opened = std::make_shared<OpenStore>(store_path(folder, store));
    const StatementText translated = translate(statement);
    opened->attach(translated.attached);
    const PreparedStatement prepared = prepare_select(*opened, translated);
    // Not within a transaction of ours, as some statements refuse to run in one; the turn is waited for.
    if (prepared && sqlite3_stmt_readonly(prepared.get()) == 0) opened->enter_gate();
    return opened->run(prepared.get());
}

} // namespace levora::session
