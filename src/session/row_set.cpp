#include "session/row_set.h"

#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <cmath>
#include <utility>

namespace levora::session {

namespace {

constexpr int no_current_row = 3021;
constexpr int not_updatable = 3027;
constexpr int row_is_gone = 3167;
constexpr int item_not_found = 3265;

[[noreturn]] void refuse(const ColumnRule& rule, std::string_view wanted, const Value& value) {
    throw Failure(error_number::type_mismatch,
                  "column \"" + std::string(rule.name) + "\": " + not_what_was_wanted(wanted, value));
}

// Nothing that such a column could show: saving it again would lose it. Dates are left out, as what is no
// date is shown as none.
bool is_wrong(const ColumnRule& rule, int type, const Value& value) {
    if (type == SQLITE_BLOB) return true;
    const bool of_number =
        rule.kind == ColumnKind::number || rule.kind == ColumnKind::whole || rule.kind == ColumnKind::counter;
    return of_number && type == SQLITE_TEXT && !trimmed(value.text()).empty() && !strict_number(value.text());
}

double number_for(const ColumnRule& rule, const Value& value) {
    double number = value.number();
    if (value.is_text()) {
        const auto strict = strict_number(value.text());
        if (!strict) refuse(rule, "number", value);
        number = *strict;
    }
    if (!std::isfinite(number))
        throw Failure(error_number::overflow, "column \"" + std::string(rule.name) + "\": Overflow");
    return number;
}

Value whole_for(const ColumnRule& rule, const Value& value) {
    constexpr double largest = 9007199254740992.0; // up to here a double holds every whole number
    if (value.is_whole()) return value;
    const double number = round_half_even(number_for(rule, value));
    if (std::fabs(number) > largest)
        throw Failure(error_number::overflow, "column \"" + std::string(rule.name) + "\": Overflow");
    return static_cast<std::int64_t>(number);
}

Value date_for(const ColumnRule& rule, const Value& value) {
    if (rule.kind == ColumnKind::date_or_empty && value.is_text() && value.text().empty()) return {};
    const auto date = value.date();
    if (!date) refuse(rule, "date", value);
    return iso_date(*date);
}

// The value as the column holds it.
Value stored_value(const ColumnRule& rule, const Value& value) {
    if (value.is_null()) return value;
    switch (rule.kind) {
    case ColumnKind::text:
        return value.is_text() ? value : Value(value.text());
    case ColumnKind::number:
        return value.is_whole() ? value : Value(number_for(rule, value));
    case ColumnKind::whole:
    case ColumnKind::counter:
        return whole_for(rule, value);
    case ColumnKind::date:
    case ColumnKind::date_or_empty:
        return date_for(rule, value);
    case ColumnKind::text_or_number:
        break;
    }
    return value;
}

// The next number of a table's counter. It is used up even if no row comes of it, as the program
// shows it to the person before the row is written.
std::int64_t next_counter(OpenStore& store, const std::string& table, const std::string& column) {
    const PreparedStatement highest =
        store.prepare("SELECT max(coalesce((SELECT max(" + as_name(column) + ") FROM " + as_name(table) +
                      "), 0), coalesce((SELECT seq FROM sqlite_sequence WHERE name = " + as_literal(table) +
                      " COLLATE NOCASE), 0)) + 1");
    store.step(highest.get());
    return sqlite3_column_int64(highest.get(), 0);
}

void use_up_counter(OpenStore& store, const std::string& table, std::int64_t number) {
    const std::string name = as_literal(table);
    const std::string text = number_text(static_cast<double>(number));
    std::string statement =
        "UPDATE sqlite_sequence SET seq = max(seq, " + text + ") WHERE name = " + name + " COLLATE NOCASE";
    store.make_room_to_remember();
    store.run(statement);
    if (sqlite3_changes(store.database()) == 0) {
        statement = "INSERT INTO sqlite_sequence (name, seq) SELECT name, " + text +
                    " FROM sqlite_schema WHERE type = 'table' AND name = " + name + " COLLATE NOCASE";
        store.run(statement);
    }
    store.remember({std::move(statement)});
}

} // namespace

std::size_t RowSet::State::column(std::string_view name) const {
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (equal_without_case(columns[i], name)) return i;
    throw Failure(item_not_found,
                  "Item cannot be found in the collection corresponding to the requested name "
                  "or ordinal: \"" +
                      std::string(name) + "\".");
}

OpenStore& RowSet::State::writable_store() const {
    const auto open = store.lock();
    if (!open) throw Failure(error_number::closed_connection, "The connection is closed.");
    if (use != RowSetUse::update || table.empty())
        throw Failure(not_updatable, "Cannot update. The rows were opened for reading.");
    return *open;
}

void RowSet::State::start_editing() {
    if (editing != Editing::nothing) return;
    if (current >= rows.size()) throw Failure(no_current_row, "No current record.");
    edited = rows[current];
    changed.assign(columns.size(), false);
    editing = Editing::current_row;
}

void RowSet::State::insert_row(OpenStore& writing) {
    if (!insertion) {
        insertion_text = insert_statement(table, columns);
        insertion = writing.prepare(insertion_text);
    }
    make_room(row_numbers);
    make_room(rows);
    writing.make_room_to_remember();
    std::vector<Value> row = edited;
    OpenStore::Written written{insertion_text, edited};
    // A statement that has failed is made ready again; its failure is known already.
    sqlite3_reset(insertion.get());
    for (std::size_t i = 0; i < edited.size(); ++i)
        bind_value(writing, insertion.get(), static_cast<int>(i) + 1, edited[i]);
    writing.step(insertion.get());
    sqlite3_reset(insertion.get());
    row_numbers.push_back(sqlite3_last_insert_rowid(writing.database()));
    written.row_number = row_numbers.back();
    writing.remember(std::move(written));
    rows.push_back(std::move(row));
    current = rows.size() - 1;
}

void RowSet::State::update_row(OpenStore& writing) {
    std::string assignments;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (changed[i]) assignments += (assignments.empty() ? "" : ", ") + as_name(columns[i]) + " = ?";
    if (assignments.empty()) return;
    std::vector<Value> values;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (changed[i]) values.push_back(edited[i]);
    values.emplace_back(row_numbers[current]);
    std::string text = "UPDATE " + table + " SET " + assignments + " WHERE rowid = ?";
    const PreparedStatement statement = writing.prepare(text);
    for (std::size_t i = 0; i < values.size(); ++i)
        bind_value(writing, statement.get(), static_cast<int>(i) + 1, values[i]);
    writing.make_room_to_remember();
    writing.step(statement.get());
    if (sqlite3_changes(writing.database()) == 0) throw Failure(row_is_gone, "Record is deleted.");
    writing.remember({std::move(text), std::move(values)});
    rows[current] = edited;
    std::erase_if(wrong, [&](const auto& each) { return each.first == current && changed[each.second]; });
}

PreparedStatement prepare_select(OpenStore& store, const StatementText& statement) {
    if (statement.is_single_table()) {
        try {
            return store.prepare(statement.in_saved_order());
        } catch (const Failure&) {
            // A view, or a table without row numbers; a real fault fails again below, in its own words.
        }
    }
    return store.prepare(statement.text);
}

std::unique_ptr<RowSet::State> read_rows(const std::shared_ptr<OpenStore>& store,
                                         const StatementText& statement, RowSetUse use) {
    if (use == RowSetUse::update && !statement.is_single_table())
        throw Failure(not_updatable, "Cannot update. The rows are not those of one table.");
    auto state = std::make_unique<RowSet::State>();
    state->store = store;
    state->use = use;
    const bool numbered = use == RowSetUse::update;
    const PreparedStatement select =
        numbered ? store->prepare(statement.with_row_number()) : prepare_select(*store, statement);
    if (!select || sqlite3_column_count(select.get()) == 0)
        throw Failure(error_number::closed_row_set, "Operation is not allowed when the object is closed.");

    // Another program may have changed the table: the columns are known for sure after the first step.
    bool more = store->step(select.get());
    const int first = numbered ? 1 : 0;
    const int count = sqlite3_column_count(select.get());
    const TableRule* rule = store->store() ? find_table(*store->store(), statement.table) : nullptr;
    for (int i = first; i < count; ++i) {
        state->columns.emplace_back(sqlite3_column_name(select.get(), i));
        state->rules.push_back(rule ? find_column(*rule, state->columns.back()) : nullptr);
    }
    state->table_name = statement.table;
    if (numbered) {
        state->table = as_name(statement.table);
        if (!statement.alias.empty()) state->table = as_name(statement.alias) + "." + state->table;
    }
    for (; more; more = store->step(select.get())) {
        if (numbered) state->row_numbers.push_back(sqlite3_column_int64(select.get(), 0));
        std::vector<Value>& row = state->rows.emplace_back();
        row.reserve(state->columns.size());
        for (int i = first; i < count; ++i) {
            const auto column = static_cast<std::size_t>(i - first);
            const ColumnRule* const of_column = state->rules[column];
            row.push_back(column_value(select.get(), i));
            if (of_column && is_wrong(*of_column, sqlite3_column_type(select.get(), i), row.back()))
                state->wrong.emplace(state->rows.size() - 1, column);
        }
    }
    return state;
}

RowSet::RowSet() = default;
RowSet::~RowSet() = default;
RowSet::RowSet(RowSet&&) noexcept = default;
RowSet& RowSet::operator=(RowSet&&) noexcept = default;

bool RowSet::is_open() const {
    return state_ != nullptr;
}

RowSet::State& RowSet::open_state() const {
    if (!state_)
        throw Failure(error_number::closed_row_set, "Operation is not allowed when the object is closed.");
    return *state_;
}

bool RowSet::eof() const {
    const State& state = open_state();
    return state.current >= state.rows.size();
}

void RowSet::move_next() {
    State& state = open_state();
    if (state.current >= state.rows.size()) throw Failure(no_current_row, "No current record.");
    state.editing = State::Editing::nothing;
    ++state.current;
}

void RowSet::close() {
    (void)open_state();
    state_.reset();
}

const Value& RowSet::operator[](std::string_view column) const {
    const State& state = open_state();
    const std::size_t at = state.column(column);
    if (state.editing != State::Editing::nothing) return state.edited[at];
    if (state.current >= state.rows.size()) throw Failure(no_current_row, "No current record.");
    const Value& value = state.rows[state.current][at];
    if (state.wrong.contains({state.current, at}))
        throw Failure(error_number::type_mismatch,
                      "table \"" + state.table_name + "\", column \"" + std::string(column) +
                          "\": " + not_what_was_wanted(in_words(state.rules[at]->kind), value));
    return value;
}

const std::vector<std::string>& RowSet::columns() const {
    return open_state().columns;
}

void RowSet::add_new() {
    State& state = open_state();
    OpenStore& store = state.writable_store();
    store.begin();
    state.edited.assign(state.columns.size(), Value());
    state.changed.assign(state.columns.size(), false);
    state.editing = State::Editing::new_row;
    for (std::size_t i = 0; i < state.columns.size(); ++i) {
        if (!state.rules[i] || state.rules[i]->kind != ColumnKind::counter) continue;
        const std::int64_t number = next_counter(store, state.table_name, state.columns[i]);
        use_up_counter(store, state.table_name, number);
        state.edited[i] = number;
    }
}

void RowSet::set(std::string_view column, const Value& value) {
    State& state = open_state();
    (void)state.writable_store();
    const std::size_t at = state.column(column);
    state.start_editing();
    state.edited[at] = state.rules[at] ? stored_value(*state.rules[at], value) : value;
    state.changed[at] = true;
}

void RowSet::update() {
    State& state = open_state();
    OpenStore& store = state.writable_store();
    if (state.editing == State::Editing::nothing) return;
    store.begin();
    if (state.editing == State::Editing::new_row)
        state.insert_row(store);
    else
        state.update_row(store);
    state.editing = State::Editing::nothing;
}

} // namespace levora::session
