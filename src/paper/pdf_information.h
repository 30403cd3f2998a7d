#pragma once

#include <QByteArray>
#include <QString>

namespace levora::paper {

// Adds an author to the information of a finished PDF, as a second revision at its end: the writer
// used here knows title and creator only. A file without the expected trailer stays as it is.
void add_author(QByteArray& pdf, const QString& title, const QString& author);

} // namespace levora::paper
