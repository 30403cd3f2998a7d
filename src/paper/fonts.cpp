#include "paper/fonts.h"

#include "widgets/failure.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace levora::paper {

namespace {

constexpr double millimetres_per_point = 25.4 / 72;
constexpr int unusable_font = 321;

QString family_name(Family family) {
    return family == Family::text ? QStringLiteral("Liberation Sans") : QStringLiteral("DejaVu Sans");
}

// The platform without a display complains where this folder is not set.
void ensure_runtime_folder() {
    if (std::getenv("XDG_RUNTIME_DIR")) return;
    const std::string folder =
        (std::filesystem::temp_directory_path() / ("levora-runtime-" + std::to_string(getuid()))).string();
    if (mkdir(folder.c_str(), S_IRWXU) == 0 || std::filesystem::is_directory(folder))
        setenv("XDG_RUNTIME_DIR", folder.c_str(), 0);
}

void require(Family family) {
    const QString wanted = family_name(family);
    if (QFontInfo(font_of({.family = family})).family() == wanted) return;
    const char* package = family == Family::text ? "fonts-liberation" : "fonts-dejavu-core";
    throw Failure(unusable_font,
                  "The font \"" + wanted.toStdString() +
                      "\" is not installed, and paper without it would lack its text. Install the "
                      "package " +
                      package + " and try again.");
}

} // namespace

void ensure_application() {
    if (QCoreApplication::instance()) return;
    struct Application {
        Application() {
            setenv("QT_QPA_PLATFORM", "offscreen", 1);
            ensure_runtime_folder();
            application = std::make_unique<QGuiApplication>(count, arguments);
        }
        int count = 1;
        char name[7] = "levora";
        char* arguments[2] = {name, nullptr};
        std::unique_ptr<QGuiApplication> application;
    };
    static const Application application;
}

QFont font_of(const FontKey& key) {
    // A character that the text's family lacks, as the rupee sign, is looked for in the other one first.
    QFont font(QStringList{family_name(key.family), family_name(Family::ticks)});
    font.setPixelSize(qRound(key.size * millimetres_per_point * units_per_millimetre));
    font.setBold(key.bold);
    font.setItalic(key.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    // By the width of the characters: a spacing in pixels would follow each device's resolution.
    if (key.letter_spacing > 0) font.setLetterSpacing(QFont::PercentageSpacing, 100 + key.letter_spacing);
    return font;
}

Fonts::Fonts() {
    ensure_application();
    require(Family::text);
    require(Family::ticks);
}

double Fonts::width(const FontKey& key, const QString& text) {
    Measures& known = measures(key);
    const auto found = known.widths.constFind(text);
    if (found != known.widths.constEnd()) return *found;
    constexpr qsizetype most_known = 2000; // labels of the forms, and of figures the last ones
    if (known.widths.size() >= most_known) known.widths.clear();
    return *known.widths.insert(text, metrics(key).horizontalAdvance(text) / units_per_millimetre);
}

double Fonts::ascent(const FontKey& key) {
    return measures(key).ascent;
}

double Fonts::line_height(const FontKey& key) {
    return measures(key).line_height;
}

// Shaping a text costs far more than finding it, and a form has the same labels for every client. So
// numbers are kept for as long as the program runs; fonts can't be, as they end with the application.
Fonts::Measures& Fonts::measures(const FontKey& key) {
    static std::map<FontKey, Measures> all;
    auto found = all.find(key);
    if (found == all.end()) {
        const QFontMetricsF& font = metrics(key);
        found = all.emplace(key, Measures{.ascent = font.ascent() / units_per_millimetre,
                                          .line_height = font.height() / units_per_millimetre,
                                          .widths = {}})
                    .first;
    }
    return found->second;
}

const QFontMetricsF& Fonts::metrics(const FontKey& key) {
    auto found = metrics_.find(key);
    if (found == metrics_.end()) found = metrics_.emplace(key, QFontMetricsF(font_of(key))).first;
    return found->second;
}

} // namespace levora::paper
