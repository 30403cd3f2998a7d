#include "session/statement_text.h"

#include "widgets/date_text.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace levora::session {

namespace {

constexpr int syntax_error = 1; // the store engine's own number for a statement that it can't read

enum class Kind { blank, word, name, literal, date, other_file, symbol };

struct Token {
    Kind kind;
    std::string_view text;
    int depth; // of parentheses around it
};

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

bool is_word(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

// The length of a quoted run that starts the text; a doubled closing sign stands for itself. A run
// that is never closed takes the rest, for the engine to complain about.
std::size_t quoted_length(std::string_view text, char close) {
    std::size_t at = 1;
    for (;;) {
        at = text.find(close, at);
        if (at == std::string_view::npos) return text.size();
        if (close == ']' || at + 1 >= text.size() || text[at + 1] != close) return at + 1;
        at += 2;
    }
}

std::size_t find_without_case(std::string_view text, std::string_view part) {
    const auto at =
        std::search(text.begin(), text.end(), part.begin(), part.end(), [](char left, char right) {
            return equal_without_case(std::string_view(&left, 1), std::string_view(&right, 1));
        });
    return at == text.end() ? std::string_view::npos : static_cast<std::size_t>(at - text.begin());
}

bool ends_without_case(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && equal_without_case(text.substr(text.size() - end.size()), end);
}

// "[/data/Assessee.mdb; PWD=...]": a folder may hold a closing bracket, so the password marks the end, or
// where there is none the ending of the file.
std::size_t other_file_length(std::string_view text) {
    const std::size_t simple_end = text.find(']');
    if (simple_end == std::string_view::npos) return 0;
    if (text.substr(0, simple_end).find_first_of("/\\") == std::string_view::npos) return 0;
    const std::string_view simple = text.substr(0, simple_end);
    const bool is_file = ends_without_case(simple, ".mdb") || ends_without_case(simple, ".db");
    const std::size_t password = is_file ? std::string_view::npos : find_without_case(text, "; PWD=");
    const std::size_t end = password == std::string_view::npos ? simple_end : text.find(']', password);
    if (end == std::string_view::npos || end + 1 >= text.size() || text[end + 1] != '.') return 0;
    return end + 1;
}

std::size_t date_length(std::string_view text) {
    const std::size_t end = text.find('#', 1);
    if (end == std::string_view::npos || end == 1 || end > 11) return 0;
    const std::string_view inside = text.substr(1, end - 1);
    const bool plausible = std::all_of(inside.begin(), inside.end(),
                                       [](char c) { return (c >= '0' && c <= '9') || c == '/' || c == '-'; });
    return plausible ? end + 1 : 0;
}

std::size_t comment_length(std::string_view text) {
    if (text.substr(0, 2) == "--") return std::min(text.find('\n'), text.size());
    if (text.substr(0, 2) != "/*") return 0;
    const std::size_t end = text.find("*/", 2);
    return end == std::string_view::npos ? text.size() : end + 2;
}

std::vector<Token> tokens_of(std::string_view text) {
    std::vector<Token> tokens;
    int depth = 0;
    while (!text.empty()) {
        const char first = text.front();
        Kind kind = Kind::symbol;
        std::size_t length = 1;
        if (is_blank(first)) {
            kind = Kind::blank;
            while (length < text.size() && is_blank(text[length]))
                ++length;
        } else if (const std::size_t comment = comment_length(text)) {
            kind = Kind::blank;
            length = comment;
        } else if (is_word(first)) {
            kind = Kind::word;
            while (length < text.size() && is_word(text[length]))
                ++length;
        } else if (first == '\'') {
            kind = Kind::literal;
            length = quoted_length(text, '\'');
        } else if (first == '"' || first == '`') {
            kind = Kind::name;
            length = quoted_length(text, first);
        } else if (first == '[') {
            length = other_file_length(text);
            kind = length > 0 ? Kind::other_file : Kind::name;
            if (length == 0) length = quoted_length(text, ']');
        } else if (first == '#' && date_length(text) > 0) {
            kind = Kind::date;
            length = date_length(text);
        } else if (first == '(') {
            ++depth;
        } else if (first == ')') {
            --depth;
        }
        tokens.push_back({kind, text.substr(0, length), depth});
        text.remove_prefix(length);
    }
    return tokens;
}

// "09/30/2014", month first, or "2014-09-30".
std::optional<Date> month_first_date(std::string_view text) {
    if (text.find('/') == std::string_view::npos) return parse_date(text);
    const std::size_t slash = text.find('/');
    const std::size_t second = text.find('/', slash + 1);
    if (second == std::string_view::npos) return std::nullopt;
    std::string day_first(text.substr(slash + 1, second - slash - 1));
    day_first += '/';
    day_first += text.substr(0, slash);
    day_first += text.substr(second);
    return parse_date(day_first);
}

std::string date_literal(std::string_view token) {
    const auto date = month_first_date(token.substr(1, token.size() - 2));
    if (!date) throw Failure(syntax_error, "Syntax error in date in statement: " + std::string(token));
    return as_literal(iso_date(*date));
}

std::string file_of(std::string_view token) {
    std::string_view inside = token.substr(1, token.size() - 2);
    const std::size_t password = find_without_case(inside, "; PWD=");
    if (password != std::string_view::npos) inside = inside.substr(0, password);
    return std::string(trimmed(inside));
}

std::string alias_of(std::vector<AttachedStore>& attached, const std::string& file) {
    for (const AttachedStore& each : attached)
        if (each.file == file) return each.alias;
    attached.push_back({"other_store_" + number_text(static_cast<double>(attached.size() + 1)), file});
    return attached.back().alias;
}

std::string bare_name(std::string_view token) {
    if (token.size() < 2 || is_word(token.front())) return std::string(token);
    return std::string(token.substr(1, token.size() - 2));
}

bool is(const Token& token, std::string_view word) {
    return token.kind == Kind::word && equal_without_case(token.text, word);
}

bool is_symbol(const Token& token, char symbol) {
    return token.kind == Kind::symbol && token.text.front() == symbol;
}

// The tokens that count, each with the place where it stands in the translated text.
struct Placed {
    Token token;
    std::size_t start;
    std::size_t end;
};

// Words after which rows no longer stand for rows of the one table.
bool breaks_single_table(const Token& token) {
    constexpr std::array words{"distinct",  "group",  "having", "union",
                               "intersect", "except", "join",   "select"};
    return std::any_of(words.begin(), words.end(), [&](const char* word) { return is(token, word); });
}

void find_single_table(StatementText& result, const std::vector<Placed>& all) {
    if (all.empty() || !is(all.front().token, "select")) return;
    std::size_t from = 1;
    while (from < all.size() && !(all[from].token.depth == 0 && is(all[from].token, "from")))
        ++from;
    std::size_t at = from + 1;
    if (at >= all.size()) return;
    std::string alias;
    if (all[at].token.kind == Kind::other_file) {
        if (at + 2 >= all.size() || !is_symbol(all[at + 1].token, '.')) return;
        alias = result.attached.front().alias;
        at += 2;
    }
    const Token& table = all[at].token;
    if (table.kind != Kind::word && table.kind != Kind::name) return;

    std::size_t order = std::string::npos;
    std::size_t limit = std::string::npos;
    for (std::size_t i = 1; i < all.size(); ++i) {
        if (breaks_single_table(all[i].token)) return;
        if (all[i].token.depth != 0 || i <= at) continue;
        if (is(all[i].token, "order")) order = i;
        if (is(all[i].token, "limit")) limit = i;
    }
    if (at + 1 < all.size()) {
        const Token& next = all[at + 1].token;
        if (!is(next, "where") && !is(next, "order") && !is(next, "limit") && !is_symbol(next, ';')) return;
    }
    std::size_t last = all.size();
    while (last > 0 && is_symbol(all[last - 1].token, ';'))
        --last;
    if (limit != std::string::npos) last = limit;
    result.order_at = all[last - 1].end;
    result.has_order = order != std::string::npos;
    result.columns_at = all[1].start;
    result.table = bare_name(table.text);
    result.alias = alias;
}

// Where the statement may end at the earliest: a trigger holds statements of its own before its END.
std::size_t body_end(const std::vector<Placed>& all) {
    constexpr std::size_t furthest_word = 2; // CREATE TEMP TRIGGER
    if (all.empty() || !is(all.front().token, "create")) return 0;
    for (std::size_t i = 1; i <= furthest_word && i < all.size(); ++i) {
        if (!is(all[i].token, "trigger")) continue;
        for (std::size_t last = all.size(); last > i; --last)
            if (is(all[last - 1].token, "end")) return last;
    }
    return 0;
}

// Between two statements stands a ";": what follows one must be empty. Names come into statements
// unquoted, so a second statement is never what a screen means.
void refuse_second_statement(const std::vector<Placed>& all) {
    bool ended = false;
    for (std::size_t i = body_end(all); i < all.size(); ++i) {
        const Token& token = all[i].token;
        if (is_symbol(token, ';'))
            ended = true;
        else if (ended)
            throw Failure(syntax_error,
                          "Characters found after end of statement: " + std::string(token.text));
    }
}

} // namespace

std::string as_name(std::string_view name) {
    std::string result = "\"";
    for (const char c : name) {
        if (c == '"') result += '"';
        result += c;
    }
    return result + '"';
}

std::string as_literal(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') result += '\'';
        result += c;
    }
    return result + '\'';
}

std::string store_file(std::string_view told) {
    std::string path(told);
    // A folder kept from another platform ends its last name with a backslash.
    if (const std::size_t separator = path.find_last_of("/\\"); separator != std::string::npos)
        path[separator] = '/';
    constexpr std::string_view old_ending = ".mdb";
    if (path.size() > old_ending.size() &&
        equal_without_case(std::string_view(path).substr(path.size() - old_ending.size()), old_ending))
        path.replace(path.size() - old_ending.size(), old_ending.size(), ".db");
    return path;
}

std::string data_source(std::string_view connect_string) {
    constexpr std::string_view key = "Data Source=";
    const std::size_t start = find_without_case(connect_string, key);
    if (start == std::string_view::npos) return {};
    const std::string_view rest = connect_string.substr(start + key.size());
    // A folder may hold a ";": the file's ending closes the value.
    const std::size_t ending = find_without_case(rest, ".mdb;");
    if (ending != std::string_view::npos) return std::string(rest.substr(0, ending + 4));
    return std::string(rest.substr(0, std::min(rest.find(';'), rest.size())));
}

StatementText translate(std::string_view statement) {
    if (statement.find('\0') != std::string_view::npos)
        throw Failure(syntax_error, "The statement holds a NUL character");
    StatementText result;
    std::vector<Placed> all;
    for (const Token& token : tokens_of(statement)) {
        const std::size_t start = result.text.size();
        // DELETE * FROM: the asterisk says nothing, as rows are always deleted whole.
        if (is_symbol(token, '*') && all.size() == 1 && is(all.front().token, "delete")) continue;
        if (token.kind == Kind::date)
            result.text += date_literal(token.text);
        else if (token.kind == Kind::other_file)
            result.text += alias_of(result.attached, file_of(token.text));
        else
            result.text += token.text;
        if (token.kind != Kind::blank) all.push_back({token, start, result.text.size()});
    }
    refuse_second_statement(all);
    find_single_table(result, all);
    return result;
}

std::string StatementText::in_saved_order() const {
    if (!is_single_table()) return text;
    std::string ordered = text;
    return ordered.insert(order_at, has_order ? ", rowid" : " ORDER BY rowid");
}

std::string StatementText::with_row_number() const {
    std::string numbered = in_saved_order();
    return numbered.insert(columns_at, "rowid, ");
}

} // namespace levora::session
