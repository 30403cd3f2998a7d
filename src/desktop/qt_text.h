#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace levora::desktop {

inline QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string from_qt(const QString& text) {
    return text.toStdString();
}

// Words for a reader or a tool tip: without access keys, runs of blanks as one.
QString plain_words(std::string_view caption);

// What a tool tip shows of plain words: a short text on one line, a long one in several.
QString tip_text(const QString& words);

} // namespace levora::desktop
