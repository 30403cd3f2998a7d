#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace levora::widgets {
struct CellDesign;
}

namespace levora::desktop {

// Cells as lines of tabbed text, as spreadsheet programs put them on the clipboard: a cell that holds a
// tab, a line break or a quote stands in quotes, with its own quotes doubled.
QString tabbed_text(const std::vector<QStringList>& rows);
// The reverse, whatever the line ends; a line end behind the last row begins no row of its own. A quote
// that is never closed is a plain character.
std::vector<QStringList> tabbed_rows(const QString& text);

// What a cell of this design is to take of a spreadsheet's cell: one line; a figure without the sign of
// the rupee, in brackets when it is below zero; a date with strokes, day first; a tick as "1" or "0".
QString cell_text(const QString& given, const widgets::CellDesign& design);

} // namespace levora::desktop
