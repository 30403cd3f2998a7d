#include "paper/pdf_information.h"

#include <QDateTime>

namespace levora::paper {

namespace {

// A text as a PDF has it: UTF-16 with its byte order mark, in hexadecimal digits.
QByteArray pdf_text(const QString& text) {
    QByteArray bytes("\xFE\xFF", 2);
    for (const QChar each : text) {
        bytes.append(static_cast<char>(each.unicode() >> 8));
        bytes.append(static_cast<char>(each.unicode() & 0xFF));
    }
    return "<" + bytes.toHex().toUpper() + ">";
}

// What stands behind a key of the trailer, up to the end of its line.
QByteArray trailer_value(const QByteArray& pdf, qsizetype trailer, const char* key) {
    const qsizetype at = pdf.indexOf(key, trailer);
    if (at < 0) return {};
    const qsizetype start = at + static_cast<qsizetype>(qstrlen(key));
    return pdf.mid(start, pdf.indexOf('\n', start) - start).trimmed();
}

} // namespace

void add_author(QByteArray& pdf, const QString& title, const QString& author) {
    const qsizetype trailer = pdf.lastIndexOf("trailer");
    const qsizetype start = pdf.lastIndexOf("startxref");
    if (trailer < 0 || start < trailer) return;
    const QByteArray root = trailer_value(pdf, trailer, "/Root");
    const QByteArray size = trailer_value(pdf, trailer, "/Size");
    const QByteArray previous = trailer_value(pdf, start, "startxref\n");
    bool is_number = false;
    const int object = size.toInt(&is_number);
    if (!is_number || root.isEmpty() || previous.isEmpty()) return;

    const QByteArray number = QByteArray::number(object);
    const QByteArray date =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("'(D:'yyyyMMddHHmmss'Z)'")).toLatin1();
    const qsizetype place = pdf.size();
    pdf += number + " 0 obj\n<<\n/Title " + pdf_text(title) + "\n/Author " + pdf_text(author) +
           "\n/Creator " + pdf_text(QStringLiteral("Levora Wealth Tax")) + "\n/CreationDate " + date +
           "\n>>\nendobj\n";
    const qsizetype table = pdf.size();
    pdf += "xref\n" + number + " 1\n" + QByteArray::number(place).rightJustified(10, '0') +
           " 00000 n \ntrailer\n<<\n/Size " + QByteArray::number(object + 1) + "\n/Root " + root +
           "\n/Info " + number + " 0 R\n/Prev " + previous + "\n>>\nstartxref\n" + QByteArray::number(table) +
           "\n%%EOF\n";
}

} // namespace levora::paper
