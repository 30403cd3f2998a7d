#include "session/client_file.h"
#include "session/store_backup.h"
#include "session/store_check.h"
#include "session/whole_folder.h"
#include "tools/sample_clients.h"
#include "tools/terminal_line.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

enum ExitCode { ok = 0, failed = 1, wrong_call = 2 };

void say(const std::string& line) {
    std::printf("%s\n", line.c_str());
}

// Tells on the terminal how far the work is.
auto told_by(levora::tools::TerminalLine& line) {
    return [&line](const std::string& what, int done, int of) { line.tell(what, done, of); };
}

int create(const Arguments& arguments) {
    levora::session::create_data_folder(arguments[0]);
    say(arguments[0] + ": four empty stores made");
    return ok;
}

int sample(const Arguments& arguments) {
    levora::tools::add_sample_clients(arguments[0]);
    say(arguments[0] + ": sample clients added");
    return ok;
}

int check(const Arguments& arguments) {
    std::vector<std::string> faults;
    {
        levora::tools::TerminalLine line;
        faults = levora::session::find_faults(arguments[0], told_by(line));
    }
    for (const std::string& each : faults)
        say(each);
    say(arguments[0] + ": " + (faults.empty() ? "no fault found" : "faults found"));
    return faults.empty() ? ok : failed;
}

int backup(const Arguments& arguments) {
    {
        levora::tools::TerminalLine line;
        levora::session::back_up_folder(arguments[0], arguments[1], told_by(line));
    }
    say(arguments[1] + ": " + arguments[0] + " as it stands now");
    return ok;
}

int restore(const Arguments& arguments) {
    {
        levora::tools::TerminalLine line;
        levora::session::restore_folder(arguments[0], arguments[1], told_by(line));
    }
    say(arguments[1] + ": restored from " + arguments[0]);
    return ok;
}

int export_client(const Arguments& arguments) {
    const std::string& number = arguments[1];
    if (number.find_first_not_of("0123456789") != std::string::npos || number.empty()) {
        std::fprintf(stderr, "levora-wealth-data: not an assessee number: \"%s\"\n", number.c_str());
        return wrong_call;
    }
    levora::session::export_client(arguments[0], static_cast<std::int64_t>(levora::val(number)),
                                   arguments[2]);
    say(arguments[2] + ": assessee " + number);
    return ok;
}

int import_client(const Arguments& arguments) {
    const std::int64_t number = levora::session::import_client(arguments[0], arguments[1]);
    say(arguments[1] + ": assessee " + levora::number_text(static_cast<double>(number)) + " brought in");
    return ok;
}

struct Command {
    std::string_view name;
    std::string_view arguments;
    std::size_t argument_count;
    std::string_view help;
    int (*run)(const Arguments& arguments);
};

constexpr Command commands[] = {
    {"create", "FOLDER", 1, "make an empty data folder with its four stores", create},
    {"sample", "FOLDER", 1, "add the sample clients to a data folder", sample},
    {"check", "FOLDER", 1, "look for faults in stores, tables, columns, values and keys", check},
    {"backup", "FOLDER FILE", 2, "copy a whole data folder into one file, while programs run", backup},
    {"restore", "FILE FOLDER", 2, "make the data folder of a backup again", restore},
    {"export", "FOLDER ASSESSEENO FILE", 3, "copy one client into a file", export_client},
    {"import", "FILE FOLDER", 2, "bring a client from such a file into a data folder", import_client},
};

void print_help(std::FILE* stream) {
    std::fprintf(stream, "levora-wealth-data: looks after the data folders of Levora Wealth Tax\n\n");
    for (const Command& each : commands)
        std::fprintf(stream, "    levora-wealth-data %-7s %-22s %s\n", each.name.data(),
                     each.arguments.data(), each.help.data());
    std::fprintf(stream, "\nNothing is ever written over. Exit status: 0 done, 1 failed or faults found, "
                         "2 wrong call.\n");
}

int run(std::span<char*> words) {
    if (words.size() == 2 && (std::string_view(words[1]) == "--help" || std::string_view(words[1]) == "-h")) {
        print_help(stdout);
        return ok;
    }
    const std::string_view name = words.size() > 1 ? words[1] : "";
    const Arguments arguments(words.begin() + (words.size() > 1 ? 2 : 1), words.end());
    for (const Command& each : commands)
        if (each.name == name && each.argument_count == arguments.size()) return each.run(arguments);
    print_help(stderr);
    return wrong_call;
}

} // namespace

int main(int count, char** words) {
    try {
        return run(std::span(words, static_cast<std::size_t>(count)));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "levora-wealth-data: %s\n", error.what());
        return failed;
    }
}
