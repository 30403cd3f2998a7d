// Statements, connect strings and file names of arbitrary bytes: no crash, literals untouched, and one
// statement stays one.

#include "session/statement_text.h"
#include "widgets/failure.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <sqlite3.h>

using namespace levora;
using namespace levora::session;

namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

// What the engine itself takes for the first statement of a text; nothing where it can't read it.
bool engine_reads_all(const std::string& text) {
    static sqlite3* const database = [] {
        sqlite3* opened = nullptr;
        sqlite3_open(":memory:", &opened);
        sqlite3_exec(opened, "CREATE TABLE T (a, b)", nullptr, nullptr, nullptr);
        return opened;
    }();
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(database, text.c_str(), -1, &statement, &rest);
    sqlite3_finalize(statement);
    if (code != SQLITE_OK || !statement) return true;
    // Behind it stand blanks, comments and ";" alone: another preparation finds nothing to run.
    while (*rest != '\0') {
        const char* before = rest;
        sqlite3_stmt* second = nullptr;
        if (sqlite3_prepare_v2(database, rest, -1, &second, &rest) != SQLITE_OK) return true;
        const bool found = second != nullptr;
        sqlite3_finalize(second);
        if (found) return false;
        if (rest == before) break;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    try {
        const StatementText translated = translate(text);
        expect(engine_reads_all(translated.text));
        (void)translated.in_saved_order();
        if (translated.is_single_table()) (void)translated.with_row_number();
        for (const AttachedStore& each : translated.attached)
            (void)store_file(each.file);
    } catch (const Failure& failure) {
        expect(failure.number == 1);
    }
    (void)store_file(data_source(text));
    return 0;
}
