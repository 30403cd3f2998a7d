#pragma once

#include <QStringList>

namespace levora::desktop {

// The captions of what is on one screen at a time ("&Close"), each with a letter of its own: where two
// want the same, the shorter caption has it and the longer takes another of its letters, first of all
// the beginning of one of its words. A caption that finds none goes without.
QStringList with_own_keys(const QStringList& captions);

} // namespace levora::desktop
