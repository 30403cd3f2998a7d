#pragma once

#include "session/data_store.h"

#include <span>
#include <string>
#include <string_view>

namespace levora::session {

// What a column takes; anything else is refused by the store itself too. Every column takes Null.
enum class ColumnKind {
    text,
    number, // a double or a whole number
    whole,  // a whole number
    text_or_number,
    date,          // "YYYY-MM-DD", a day of the calendar
    date_or_empty, // the same; the empty text becomes Null
    counter,       // a whole number that the store gives to each new row, never twice
};

struct ColumnRule {
    std::string_view name;
    ColumnKind kind;
};

struct TableRule {
    Store store;
    std::string_view name;
    std::span<const ColumnRule> columns;
    // The first columns of the table that name one row alone; 0 none. The store itself enforces the
    // key where told; elsewhere the screens look for the row first.
    int key_columns = 0;
    bool enforced_key = false;
};

// All tables of the four stores, in the order of the catalogue.
std::span<const TableRule> store_tables();
// Null when the store has no such table, or the table no such column; names without regard to case.
const TableRule* find_table(Store store, std::string_view name);
const ColumnRule* find_column(const TableRule& table, std::string_view name);
// What a column of the kind holds: "whole number".
std::string_view in_words(ColumnKind kind);
// What refuses a value: not a number: "much". A long value is cut, and what can't be shown is "?".
std::string not_what_was_wanted(std::string_view wanted, const Value& value);

// The statements that make the table and its index.
std::string create_table_statement(const TableRule& table);
std::string create_index_statement(const TableRule& table); // empty where it needs none

} // namespace levora::session
