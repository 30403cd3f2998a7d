#include "desktop/column_widths.h"
#include "desktop/grid_header.h"
#include "desktop/grid_model.h"
#include "desktop/grid_view.h"
#include "desktop/qt_text.h"
#include "widgets/form.h"
#include "widgets/grid.h"

#include <QLabel>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QSettings>

#include <algorithm>

// Widths and heights of a grid's columns and rows, told, shared out and given by hand.
namespace levora::desktop {

using widgets::CellKind;

namespace {

constexpr int row_height = 24;
constexpr int cell_padding = 14;
constexpr int header_padding = 22; // with what the style puts around the words
constexpr int button_padding = 34;
constexpr int tick_width = 24;
constexpr int measured_rows = 60;               // rows further down need what these need
constexpr double default_width_characters = 10; // of a grid that tells no width
constexpr int least_text_characters = 10;
constexpr int figure_characters = 9;
constexpr int wide_text_characters = 40;
constexpr int wide_figure_characters = 18;
constexpr int widest_by_fitting = 600;

QString place_of(const widgets::Grid& grid, const char* what) {
    return QStringLiteral("%1/%2/%3").arg(QLatin1String(what), to_qt(grid.form().name()), to_qt(grid.name()));
}

// "3=120 7=64": pixels by section.
QString sizes_text(const QHash<int, int>& sizes) {
    QStringList all;
    for (auto each = sizes.begin(); each != sizes.end(); ++each)
        all += QStringLiteral("%1=%2").arg(each.key()).arg(each.value());
    return all.join(QLatin1Char(' '));
}

QHash<int, int> sizes_of(const QString& text) {
    QHash<int, int> sizes;
    for (const QString& each : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const qsizetype sign = each.indexOf(QLatin1Char('='));
        const int size = each.mid(sign + 1).toInt();
        if (sign > 0 && size > 0) sizes[each.left(sign).toInt()] = size;
    }
    return sizes;
}

int longest_word(const QFontMetrics& metrics, const QString& words) {
    static const QRegularExpression blank(QStringLiteral("[ /]+"));
    int longest = 0;
    for (const QString& word : words.split(blank))
        longest = std::max(longest, metrics.horizontalAdvance(word));
    return longest;
}

} // namespace

void GridView::paintEvent(QPaintEvent* event) {
    if (structure_dirty_) apply_structure();
    QTableView::paintEvent(event);
    paint_frozen(event->region());
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (event->size().width() == event->oldSize().width()) return;
    structure_dirty_ = true; // the columns share other room
    viewport()->update();
}

void GridView::apply_structure() {
    structure_dirty_ = false;
    if (!grid_) return;
    size_columns();
    model_->headers_changed();
    size_row_header();
    for (auto each = hand_heights_.begin(); each != hand_heights_.end(); ++each)
        if (each.key() < row_header_->count()) row_header_->resizeSection(each.key(), each.value());
}

void GridView::size_row_header() {
    if (corner_) corner_->setText(to_qt(grid_->header(0)));
    int widest = fontMetrics().horizontalAdvance(QString::number(grid_->rows()));
    for (int row = 1; row <= grid_->rows(); ++row) {
        const std::string header = grid_->row_header(row);
        if (header.size() > 4) widest = std::max(widest, fontMetrics().horizontalAdvance(to_qt(header)));
    }
    if (corner_) widest = std::max(widest, fontMetrics().horizontalAdvance(corner_->text()) + 8);
    if (row_header_->minimumWidth() != widest + cell_padding)
        row_header_->setFixedWidth(widest + cell_padding);
}

// Words that nobody can write in, from the first row on.
bool GridView::is_label_column(int column) const {
    return column == 1 && grid_->rows() > 0 && grid_->cell_locked(column, 1) &&
           grid_->cell_kind(column, 1) == CellKind::text && !grid_->has_formula(column, 1);
}

int GridView::contents_width(int column) const {
    int widest = 0;
    for (int row = 1; row <= std::min(grid_->rows(), measured_rows); ++row) {
        const int text = fontMetrics().horizontalAdvance(to_qt(shown_text(*grid_, column, row)));
        const CellKind kind = grid_->cell_kind(column, row);
        widest = std::max(widest, text + (kind == CellKind::button  ? button_padding
                                          : kind == CellKind::check ? tick_width + cell_padding
                                                                    : cell_padding));
    }
    return widest;
}

ColumnNeed GridView::need_of(int column) const {
    const int character = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    if (const auto hand = hand_widths_.find(column - 1); hand != hand_widths_.end())
        return {*hand, *hand, *hand};
    if (is_label_column(column)) {
        const int words = contents_width(column);
        return {words, words, words};
    }
    QFont bold = column_header_->font();
    bold.setBold(true);
    const int header = longest_word(QFontMetrics(bold), to_qt(grid_->header(column))) + header_padding;
    const double told_characters =
        grid_->column_width(column) > 0 ? grid_->column_width(column) : default_width_characters;
    ColumnNeed need{header, static_cast<int>(told_characters * character) + cell_padding, 0};
    int least_characters = 0;
    int most_characters = 0;
    for (int row = 1; row <= std::min(grid_->rows(), measured_rows); ++row) {
        const widgets::CellDesign& design = grid_->design(column, row);
        switch (design.kind) {
        case CellKind::number:
        case CellKind::percent:
            least_characters = std::max(least_characters, figure_characters);
            most_characters = std::max(most_characters, wide_figure_characters);
            break;
        case CellKind::date:
            least_characters = std::max(least_characters, 10);
            break;
        case CellKind::mask:
            least_characters = std::max(least_characters, static_cast<int>(design.mask.size()));
            break;
        case CellKind::combo:
        case CellKind::text:
            least_characters = std::max(
                least_characters, design.max_chars > 0 ? std::min(design.max_chars, least_text_characters)
                                                       : least_text_characters);
            most_characters = std::max(most_characters, wide_text_characters);
            break;
        case CellKind::button:
        case CellKind::check:
            break;
        }
        const bool whole = design.kind != CellKind::text && design.kind != CellKind::combo;
        if (!whole) continue;
        const int text = fontMetrics().horizontalAdvance(to_qt(shown_text(*grid_, column, row)));
        need.least =
            std::max(need.least, text + (design.kind == CellKind::button ? button_padding : cell_padding));
    }
    need.least = std::max(need.least, least_characters * character + cell_padding);
    need.told = std::max(need.told, need.least);
    need.most = std::max(need.told, most_characters * character + cell_padding);
    return need;
}

void GridView::size_columns() {
    std::vector<ColumnNeed> needs;
    std::vector<int> sections;
    for (int column = 1; column <= std::min(grid_->columns(), column_header_->count()); ++column) {
        const int section = column - 1;
        if (column_header_->isSectionHidden(section) != grid_->hidden(column))
            setColumnHidden(section, grid_->hidden(column));
        if (grid_->hidden(column)) continue;
        sections.push_back(section);
        needs.push_back(need_of(column));
    }
    const std::vector<int> widths = fit_columns(needs, viewport()->width());
    for (std::size_t at = 0; at < widths.size(); ++at)
        if (column_header_->sectionSize(sections[at]) != widths[at])
            column_header_->resizeSection(sections[at], widths[at]);
    // A column that leaves little room for others can't stay in view.
    const bool labels = !widths.empty() && sections.front() == 0 && is_label_column(1) &&
                        widths.front() < viewport()->width() * 3 / 4;
    column_header_->set_frozen(labels ? 1 : 0);
    size_header();
}

// Long headers take as many lines as they need.
void GridView::size_header() {
    QFont bold = column_header_->font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int height = row_height;
    for (int column = 1; column <= std::min(grid_->columns(), column_header_->count()); ++column) {
        if (grid_->hidden(column)) continue;
        const QString words = to_qt(grid_->header(column));
        const int room = column_header_->sectionSize(column - 1) - header_padding;
        if (metrics.horizontalAdvance(words) <= room) continue;
        const QRect needed =
            metrics.boundingRect(0, 0, std::max(room, 1), 400, Qt::TextWordWrap | Qt::AlignCenter, words);
        height = std::max(height, needed.height() + 10);
    }
    if (column_header_->minimumHeight() != height) column_header_->setFixedHeight(height);
}

// --- given by hand ---

void GridView::kept_by_hand(int section) {
    hand_widths_[section] = column_header_->sectionSize(section);
    size_header();
    keep_sizes();
}

void GridView::fit_column(int section) {
    if (!grid_ || section >= grid_->columns()) return;
    QFont bold = column_header_->font();
    bold.setBold(true);
    const int header = longest_word(QFontMetrics(bold), to_qt(grid_->header(section + 1))) + header_padding;
    column_header_->resizeSection(section,
                                  std::min(std::max(header, contents_width(section + 1)), widest_by_fitting));
    kept_by_hand(section);
}

void GridView::restore_sizes() {
    const QSettings places;
    hand_widths_ = sizes_of(places.value(place_of(*grid_, "columns")).toString());
    hand_heights_ = sizes_of(places.value(place_of(*grid_, "rows")).toString());
}

void GridView::keep_sizes() const {
    if (!grid_) return;
    QSettings places;
    places.setValue(place_of(*grid_, "columns"), sizes_text(hand_widths_));
    places.setValue(place_of(*grid_, "rows"), sizes_text(hand_heights_));
}

} // namespace levora::desktop
