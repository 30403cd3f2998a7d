#include "desktop/desktop_run.h"
#include "desktop/look.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace levora;

constexpr int wrong_call = 2;
constexpr int no_display = 1;
constexpr int broken_off = 3;

constexpr std::string_view call =
    "usage: levora-wealth-tax [options] YEAR ASSESSEE [STATUS [WORD [ADDRESS]]]\n";
constexpr std::string_view own_usage =
    "  --palette light|dark     the palette (default: as the desktop has it)\n"
    "YEAR is the assessment year, such as 2014-2015; ASSESSEE the number of the assessee.\n";

struct CommandLine {
    desktop::RunOptions run;
    desktop::Shade shade = desktop::Shade::system;
};

// Options of our own come first; all words behind them are the program's command line.
std::optional<std::string> read_command_line(const std::vector<std::string>& words, CommandLine& line) {
    static_cast<program::RunPlaces&>(line.run) = program::own_places();
    std::size_t at = 0;
    for (; at < words.size() && words[at].starts_with("--"); at += 2) {
        const std::string& option = words[at];
        if (at + 1 == words.size()) return option + " needs a value";
        const std::string& value = words[at + 1];
        if (program::take_place(line.run, option, value)) continue;
        if (option == "--palette" && (value == "light" || value == "dark"))
            line.shade = value == "dark" ? desktop::Shade::dark : desktop::Shade::light;
        else
            return "unknown option " + option + " " + value;
    }
    for (; at < words.size(); ++at)
        line.run.command_line += (line.run.command_line.empty() ? "" : " ") + words[at];
    return std::nullopt;
}

// An exception that no screen could report ends here, not in the toolkit. What was in hand in the stores
// has been taken back by then.
class Application final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "levora-wealth-tax: %s; the program ends, what was saved stands\n",
                         error.what());
            std::_Exit(broken_off);
        }
    }
};

bool has_display() {
    const auto given = [](const char* name) {
        const char* value = std::getenv(name);
        return value && *value;
    };
    return given("DISPLAY") || given("WAYLAND_DISPLAY") || given("QT_QPA_PLATFORM");
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (!words.empty() && words.front() == "--help") {
        std::cout << call << program::places_usage << own_usage;
        return 0;
    }
    CommandLine line;
    if (const std::optional<std::string> fault = read_command_line(words, line)) {
        std::cerr << "levora-wealth-tax: " << *fault << "\n" << call << program::places_usage << own_usage;
        return wrong_call;
    }
    if (!has_display()) {
        std::cerr << "levora-wealth-tax: there is no display to open a window on (neither DISPLAY nor "
                     "WAYLAND_DISPLAY is set).\nTo work without a window, use levora-wealth-script.\n";
        return no_display;
    }
    // The words are the program's own: none of them is an option of the toolkit.
    int own_argc = 1;
    Application application(own_argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Levora"));
    QApplication::setApplicationName(QStringLiteral("levora-wealth-tax"));
    QGuiApplication::setDesktopFileName(QStringLiteral("levora-wealth-tax"));
    QApplication::setQuitOnLastWindowClosed(false);
    desktop::apply_look(application, line.shade);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/levora-wealth-tax.svg")));

    desktop::DesktopRun run(line.run);
    // Not quit(), which would ask every window for its leave.
    run.on_ended = [] {
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    };
    if (!run.start()) return 0;
    return QApplication::exec();
}
