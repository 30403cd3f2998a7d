#include "desktop/grid_view.h"

#include "desktop/acts.h"
#include "desktop/cell_delegate.h"
#include "desktop/grid_header.h"
#include "desktop/grid_model.h"
#include "desktop/key_names.h"
#include "desktop/qt_text.h"
#include "widgets/grid.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>

#include <algorithm>

namespace levora::desktop {

using widgets::CellKind;
using widgets::Grid;

namespace {
constexpr int row_height = 24;
}

GridView::GridView(QWidget* parent)
    : QTableView(parent), column_header_(new GridHeader(Qt::Horizontal, this)),
      row_header_(new GridHeader(Qt::Vertical, this)) {
    setHorizontalHeader(column_header_);
    setVerticalHeader(row_header_);
    setItemDelegate(new CellDelegate(*this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    row_header_->setMinimumSectionSize(row_height - 4);
    row_header_->setDefaultSectionSize(row_height);
    row_header_->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    column_header_->setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    connect(column_header_, &GridHeader::sized_by_hand, this, &GridView::kept_by_hand);
    connect(column_header_, &GridHeader::fit_wanted, this, &GridView::fit_column);
    connect(row_header_, &GridHeader::sized_by_hand, this, [this](int section) {
        hand_heights_[section] = row_header_->sectionSize(section);
        keep_sizes();
    });
    connect(row_header_, &GridHeader::fit_wanted, this, [this](int section) {
        hand_heights_.remove(section);
        row_header_->resizeSection(section, row_height);
        keep_sizes();
    });
}

void GridView::attach(Grid& grid, Acts& acts) {
    grid_ = &grid;
    acts_ = &acts;
    model_ = new GridModel(grid, this);
    setModel(model_);
    if (auto* button = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        auto* layout = new QHBoxLayout(button);
        layout->setContentsMargins(4, 0, 4, 0);
        corner_ = new QLabel(button);
        corner_->setAlignment(Qt::AlignCenter);
        corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
        layout->addWidget(corner_);
    }
    restore_sizes();
    apply_structure();
    select_active();
}

void GridView::detach() {
    grid_ = nullptr;
    if (model_) model_->detach();
}

int GridView::selected_cells() const {
    const QItemSelection selected = selectionModel() ? selectionModel()->selection() : QItemSelection();
    int count = 0;
    for (const QItemSelectionRange& range : selected)
        count += range.width() * range.height();
    return count;
}

// --- what the grid tells ---

void GridView::cell_changed(int column, int row) {
    ++changes_;
    if (column == 0 || row == 0)
        structure_changed();
    else
        model_->cell_changed(column, row);
}

void GridView::active_cell_changed() {
    ++changes_;
    select_active();
}

void GridView::structure_changed() {
    ++changes_;
    model_->take_counts();
    // Headers and widths come in bursts: they are taken over once, before the next painting.
    structure_dirty_ = true;
    viewport()->update();
    horizontalHeader()->viewport()->update();
}

void GridView::select_active() {
    if (!grid_) return;
    const QModelIndex active = model_->index(grid_->active_row() - 1, grid_->active_column() - 1);
    if (active.isValid() && active != currentIndex()) setCurrentIndex(active);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (previous.isValid()) update(previous);
    if (!extending_) anchor_ = current;
    if (!grid_ || !current.isValid()) return;
    update(current);
    grid_->set_active(current.column() + 1, current.row() + 1);
    emit cell_entered(current.column() + 1, current.row() + 1);
}

// --- focus ---

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (!grid_ || event->reason() == Qt::ActiveWindowFocusReason) return;
    if (acts_->act([this] { grid_->enter(); }))
        emit cell_entered(grid_->active_column(), grid_->active_row());
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason) acts_->tell({});
}

bool GridView::focusNextPrevChild(bool) {
    return false; // Tab is a key of the grid
}

// --- keys ---

void GridView::press(const std::string& key) {
    if (!grid_) return;
    const int column = grid_->active_column();
    const int row = grid_->active_row();
    if (!acts_->act([this, &key] { grid_->press_key(key); })) return;
    if (key == "Tab" || key == "Shift+Tab" || key == "Enter") pass_locked_cells(key, column, row);
    const bool stayed = column == grid_->active_column() && row == grid_->active_row();
    // Past either end, the focus moves on to the next field.
    if (stayed && hasFocus() && (key == "Tab" || key == "Shift+Tab"))
        QTableView::focusNextPrevChild(key == "Tab");
    else if (selected_cells() > 1 && hasFocus())
        setCurrentIndex(currentIndex());
}

// As in a spreadsheet's protected page, keys that go from cell to cell stop where something can be done.
// With nothing of the kind further on, Tab goes to the next field and Enter where the grid takes it.
void GridView::pass_locked_cells(const std::string& key, int from_column, int from_row) {
    using Place = std::pair<int, int>;
    const auto place = [this] { return Place(grid_->active_column(), grid_->active_row()); };
    const Place from(from_column, from_row);
    const Place first = place();
    if (first == from) return;
    Place last = from;
    // A grid whose own rules lead round in a ring is left after one round.
    for (int left = grid_->columns() * grid_->rows(); left > 0 && place() != last; --left) {
        last = place();
        const auto [column, row] = last;
        if (!grid_->cell_locked(column, row) || grid_->cell_kind(column, row) == CellKind::button) return;
        if (!acts_->act([this, &key] { grid_->press_key(key); }) || !grid_) return;
    }
    const auto [column, row] = key == "Enter" ? first : from;
    acts_->act([this, column = column, row = row] { grid_->set_active(column, row); });
}

bool GridView::command_key(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy) && event.key() != Qt::Key_Insert)
        copy();
    else if (event.matches(QKeySequence::Cut))
        cut();
    else if (event.matches(QKeySequence::Paste))
        paste();
    else if (event.matches(QKeySequence::SelectAll))
        selectAll();
    else if (event.key() == Qt::Key_D && event.modifiers() == Qt::ControlModifier)
        fill_down();
    else if (event.key() == Qt::Key_F2)
        start_edit({});
    else if (event.key() == Qt::Key_F1 && event.modifiers() == Qt::ShiftModifier)
        show_note();
    else
        return false;
    return true;
}

// Keys that move or widen the selection by the view's own rules.
bool GridView::selection_key(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

// A range was drawn from its active cell on: typing and arrows go on from there, as in a spreadsheet.
void GridView::go_to_anchor() {
    if (selected_cells() > 1 && anchor_.isValid() && anchor_ != currentIndex()) setCurrentIndex(anchor_);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (!grid_) return;
    if (command_key(*event)) return;
    if (event->key() == Qt::Key_Tab && event->modifiers() & Qt::ControlModifier) {
        QTableView::focusNextPrevChild(!(event->modifiers() & Qt::ShiftModifier));
        return;
    }
    if (selection_key(*event)) {
        extending_ = event->modifiers() & Qt::ShiftModifier;
        const QPersistentModelIndex before = currentIndex();
        QTableView::keyPressEvent(event);
        // A move that ends where it began still gives the selection up.
        if (!extending_ && before == currentIndex() && selected_cells() > 1) setCurrentIndex(before);
        extending_ = false;
        return;
    }
    const bool keeps_range = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Escape ||
                             (event->key() >= Qt::Key_Shift && event->key() <= Qt::Key_ScrollLock);
    if (!keeps_range) go_to_anchor();
    const int column = grid_->active_column();
    const int row = grid_->active_row();
    const CellKind kind = grid_->cell_kind(column, row);
    if (event->key() == Qt::Key_Space && (kind == CellKind::button || kind == CellKind::check)) {
        press_cell(column, row);
        return;
    }
    if (kind == CellKind::combo && event->modifiers() & Qt::AltModifier && event->key() == Qt::Key_Down) {
        start_edit({});
        return;
    }
    if (types_character(*event)) {
        type_character(event->text());
        return;
    }
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier && selected_cells() > 1) {
        clear_selected();
        return;
    }
    if (event->key() == Qt::Key_Return && kind == CellKind::button) {
        press_cell(column, row);
        return;
    }
    const std::string name = key_name(*event);
    if (name.empty() || event->modifiers() & Qt::AltModifier) {
        event->ignore();
        return;
    }
    if (name == "Delete") {
        const int before = changes_;
        const std::string held = grid_->text(column, row);
        press(name);
        if (!grid_ || held.empty()) return;
        // A grid without a rule of its own for this key: the cell is emptied as by typing.
        if (changes_ == before && !grid_->cell_locked(column, row))
            commit(column, row, {});
        else
            acts_->keep_edit(*grid_, column, row, held);
        return;
    }
    if (name == "Escape") {
        press_escape(column, row);
        return;
    }
    press(name);
    if (event->modifiers() & Qt::ControlModifier) event->ignore();
}

// A grid may empty its cell at this key, which can be taken back as any edit; not so where it deletes the
// row.
void GridView::press_escape(int column, int row) {
    const auto others = [this, column, row] {
        std::string all;
        for (int each = 1; each <= grid_->columns(); ++each)
            if (each != column && !grid_->cell_locked(each, row)) all += grid_->text(each, row) + '\t';
        return all;
    };
    const std::string held = grid_->text(column, row);
    const std::string before = others();
    press("Escape");
    if (grid_ && row <= grid_->rows() && !held.empty() && grid_->text(column, row).empty() &&
        others() == before)
        acts_->keep_edit(*grid_, column, row, held);
}

void GridView::type_character(const QString& typed) {
    const int before = changes_;
    const char32_t character = typed.toUcs4().value(0);
    if (!acts_->act([this, character] { grid_->type_character(character); })) return;
    // A character that the grid answered for itself starts no edit.
    if (changes_ != before) return;
    const int column = grid_->active_column();
    const int row = grid_->active_row();
    if (grid_->cell_locked(column, row)) {
        acts_->tell(tr("This cell is computed or fixed; it can't be typed in."));
        return;
    }
    const CellKind kind = grid_->cell_kind(column, row);
    const bool figure = kind == CellKind::number || kind == CellKind::percent;
    if (figure && !QStringLiteral("0123456789.,-+%").contains(typed)) {
        acts_->tell(tr("%1 takes a figure.").arg(plain_words(grid_->header(column))));
        return;
    }
    start_edit(typed);
}

void GridView::start_edit(const QString& first_typed) {
    if (!grid_ || !currentIndex().isValid() || state() == EditingState) return;
    go_to_anchor();
    first_typed_ = first_typed;
    const QModelIndex index = currentIndex();
    edit(index);
    first_typed_ = QString();
    // The view selects what an editor opens with; what was typed stays and is typed on.
    if (!first_typed.isNull())
        for (QLineEdit* line : viewport()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly))
            if (line->isVisible() && line->inputMask().isEmpty()) line->end(false);
    if (auto* list = qobject_cast<QComboBox*>(indexWidget(index))) list->showPopup();
    for (QComboBox* list : viewport()->findChildren<QComboBox*>(QString(), Qt::FindDirectChildrenOnly))
        if (list->isVisible() && !list->isEditable()) list->showPopup();
}

void GridView::leave_label() {
    if (!grid_ || !is_label_column(grid_->active_column())) return;
    const int row = grid_->active_row();
    for (int column = grid_->active_column() + 1; column <= grid_->columns(); ++column)
        if (!grid_->hidden(column) && !grid_->cell_locked(column, row)) {
            setCurrentIndex(model_->index(row - 1, column - 1));
            return;
        }
}

void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    if (grid_) grid_->set_edit_mode(false);
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
}

// --- acts on cells ---

bool GridView::would_accept(const std::string& text) {
    if (!grid_) return false;
    const int column = grid_->active_column();
    const int row = grid_->active_row();
    const widgets::CellDesign& design = grid_->design(column, row);
    if (design.kind == CellKind::mask || grid_->accepted(column, row, text)) {
        acts_->tell({});
        return true;
    }
    const QString name = plain_words(grid_->header(column));
    QString why = tr("%1 does not take \"%2\".").arg(name, to_qt(text));
    if (design.kind == CellKind::number)
        why += tr(" A number from %1 to %2 is wanted.")
                   .arg(to_qt(group_indian_text(number_text(design.min))),
                        to_qt(group_indian_text(number_text(design.max))));
    else if (design.kind == CellKind::percent)
        why += tr(" A percentage from %1 to %2 is wanted.")
                   .arg(to_qt(number_text(design.min * 100)), to_qt(number_text(design.max * 100)));
    else if (design.kind == CellKind::date)
        why += tr(" A date from %1 to %2 is wanted, day first.")
                   .arg(to_qt(day_month_year(design.first)), to_qt(day_month_year(design.last)));
    acts_->tell(why);
    return false;
}

void GridView::commit(int column, int row, const std::string& text) {
    if (!grid_ || column > grid_->columns() || row > grid_->rows()) return;
    if (text == grid_->text(column, row)) return;
    if (!acts_->edit_cell(*grid_, column, row, text) && grid_)
        acts_->tell(tr("%1 did not take \"%2\": the cell stays as it was.")
                        .arg(plain_words(grid_->header(column)), to_qt(text)));
}

bool GridView::press_cell(int column, int row) {
    if (!grid_) return false;
    const CellKind kind = grid_->cell_kind(column, row);
    if (kind == CellKind::button) {
        acts_->act([this, column, row] { grid_->press(column, row); });
        return true;
    }
    if (kind == CellKind::check) {
        commit(column, row, grid_->text(column, row) == "1" ? "0" : "1");
        return true;
    }
    return false;
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    start_edit({});
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (!grid_) return;
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QModelIndex at = indexAt(event->pos());
        if (at.isValid() && !selectionModel()->isSelected(at)) setCurrentIndex(at);
    }
    const widgets::Menu* menu = nullptr;
    if (!acts_->act([this, &menu] { menu = grid_->right_click(); }) || menu) return;
    QMenu own(this);
    connect(own.addAction(tr("Cu&t")), &QAction::triggered, this, &GridView::cut);
    connect(own.addAction(tr("&Copy")), &QAction::triggered, this, &GridView::copy);
    connect(own.addAction(tr("&Paste")), &QAction::triggered, this, &GridView::paste);
    connect(own.addAction(tr("Fill &Down")), &QAction::triggered, this, &GridView::fill_down);
    own.exec(event->globalPos());
}

void GridView::show_note() const {
    const std::string& note = grid_->note(grid_->active_column(), grid_->active_row());
    if (note.empty()) return;
    QToolTip::showText(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()), to_qt(note));
}

} // namespace levora::desktop
