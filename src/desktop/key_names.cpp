#include "desktop/key_names.h"

#include "desktop/qt_text.h"

#include <QKeyEvent>

#include <array>
#include <string_view>

namespace levora::desktop {

namespace {

struct NamedKey {
    int key;
    std::string_view name;
};

constexpr std::array named_keys{
    NamedKey{Qt::Key_Delete, "Delete"},
    NamedKey{Qt::Key_Insert, "Insert"},
    NamedKey{Qt::Key_Escape, "Escape"},
    NamedKey{Qt::Key_Return, "Enter"},
    NamedKey{Qt::Key_Enter, "Enter"},
    NamedKey{Qt::Key_Tab, "Tab"},
    NamedKey{Qt::Key_Left, "Left"},
    NamedKey{Qt::Key_Right, "Right"},
    NamedKey{Qt::Key_Up, "Up"},
    NamedKey{Qt::Key_Down, "Down"},
    NamedKey{Qt::Key_Home, "Home"},
    NamedKey{Qt::Key_End, "End"},
    NamedKey{Qt::Key_PageUp, "PageUp"},
    NamedKey{Qt::Key_PageDown, "PageDown"},
    NamedKey{Qt::Key_Backspace, "Backspace"},
    NamedKey{Qt::Key_Space, "Space"},
};

std::string base_name(int key) {
    for (const NamedKey& each : named_keys)
        if (each.key == key) return std::string(each.name);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return "F" + std::to_string(key - Qt::Key_F1 + 1);
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return std::string(1, static_cast<char>(key));
    return {};
}

} // namespace

QString tip_text(const QString& words) {
    constexpr qsizetype one_line = 90;
    // Only rich text is broken into lines.
    return QStringLiteral("<p style='white-space:%1'>%2</p>")
        .arg(words.size() <= one_line ? QStringLiteral("pre") : QStringLiteral("normal"),
             words.toHtmlEscaped());
}

QString plain_words(std::string_view caption) {
    QString words = to_qt(caption);
    words.remove(QLatin1Char('&'));
    return words.simplified();
}

std::string key_name(const QKeyEvent& event) {
    int key = event.key();
    Qt::KeyboardModifiers held = event.modifiers();
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
        held |= Qt::ShiftModifier;
    }
    const std::string base = base_name(key);
    if (base.empty()) return {};
    std::string name;
    if (held & Qt::ControlModifier) name += "Ctrl+";
    if (held & Qt::AltModifier) name += "Alt+";
    if (held & Qt::ShiftModifier) name += "Shift+";
    return name + base;
}

bool types_character(const QKeyEvent& event) {
    const QString text = event.text();
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !text.isEmpty() && text.front().isPrint() && !(event.modifiers() & commands);
}

} // namespace levora::desktop
