#include "desktop/tabbed_text.h"

#include "widgets/grid.h"

#include <QRegularExpression>

#include <algorithm>

namespace levora::desktop {

using widgets::CellKind;

namespace {

constexpr QLatin1Char quote('"');

bool breaks_cells(QChar c) {
    return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

// The end of the quoted cell that begins at `begin`, behind its closing quote; -1 when it is none.
qsizetype end_of_quoted(const QString& text, qsizetype begin) {
    if (begin >= text.size() || text[begin] != quote) return -1;
    for (qsizetype at = begin + 1; at < text.size(); ++at) {
        if (text[at] != quote) continue;
        if (at + 1 < text.size() && text[at + 1] == quote)
            ++at;
        else
            return at + 1 == text.size() || breaks_cells(text[at + 1]) ? at + 1 : -1;
    }
    return -1;
}

QString figure_text(QString given) {
    static const QRegularExpression sign(QStringLiteral("^(₹|Rs\\.?|INR)"),
                                         QRegularExpression::CaseInsensitiveOption);
    given.remove(QChar(0xA0)).remove(QLatin1Char(' ')).remove(sign);
    if (given.startsWith(QLatin1Char('(')) && given.endsWith(QLatin1Char(')')))
        given = QLatin1Char('-') + given.mid(1, given.size() - 2).remove(sign);
    return given;
}

QString date_text(const QString& given) {
    static const QRegularExpression year_first(QStringLiteral("^(\\d{4})-(\\d\\d)-(\\d\\d)(?:[ T].*)?$"));
    static const QRegularExpression day_first(QStringLiteral("^(\\d{1,2})[-.](\\d{1,2})[-.](\\d{4})$"));
    if (const auto found = year_first.match(given); found.hasMatch())
        return QStringLiteral("%1/%2/%3").arg(found.captured(3), found.captured(2), found.captured(1));
    if (const auto found = day_first.match(given); found.hasMatch())
        return QStringLiteral("%1/%2/%3")
            .arg(found.captured(1).rightJustified(2, QLatin1Char('0')),
                 found.captured(2).rightJustified(2, QLatin1Char('0')), found.captured(3));
    return given;
}

} // namespace

QString tabbed_text(const std::vector<QStringList>& rows) {
    QStringList lines;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (QString cell : row) {
            const bool special =
                cell.contains(quote) || std::any_of(cell.cbegin(), cell.cend(), breaks_cells);
            if (special) cell = quote + cell.replace(quote, QStringLiteral("\"\"")) + quote;
            cells += cell;
        }
        lines += cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

std::vector<QStringList> tabbed_rows(const QString& text) {
    std::vector<QStringList> rows;
    bool row_open = false;
    for (qsizetype at = 0; at < text.size() || row_open;) {
        if (!row_open) rows.emplace_back();
        const qsizetype quoted = end_of_quoted(text, at);
        qsizetype end = quoted > 0 ? quoted : at;
        while (end < text.size() && !breaks_cells(text[end]))
            ++end;
        QString cell = quoted > 0 ? text.mid(at + 1, quoted - at - 2) : text.mid(at, end - at);
        if (quoted > 0) cell.replace(QStringLiteral("\"\""), QStringLiteral("\""));
        rows.back() += cell;
        row_open = end < text.size() && text[end] == QLatin1Char('\t');
        at = end + (text.mid(end, 2) == QLatin1String("\r\n") ? 2 : 1);
    }
    return rows;
}

QString cell_text(const QString& given, const widgets::CellDesign& design) {
    static const QRegularExpression breaks(QStringLiteral("[\\r\\n\\t]+"));
    QString text = given;
    text.replace(breaks, QStringLiteral(" "));
    switch (design.kind) {
    case CellKind::number:
    case CellKind::percent:
        return figure_text(text);
    case CellKind::date:
        return date_text(text.trimmed());
    case CellKind::check:
        if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) return QStringLiteral("1");
        if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) return QStringLiteral("0");
        return text;
    default:
        return text;
    }
}

} // namespace levora::desktop
