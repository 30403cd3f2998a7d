#include "desktop/cell_delegate.h"

#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/qt_text.h"
#include "widgets/grid.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QToolTip>

namespace levora::desktop {

using widgets::CellDesign;
using widgets::CellKind;

namespace {

// "99/99" with "U" for capitals, as a line edit knows masks; blanks stand for open places.
QString input_mask(const std::string& mask) {
    QString result;
    for (const char c : mask) {
        if (c == '9')
            result += QLatin1Char('9');
        else if (c == 'U')
            result += QStringLiteral(">A");
        else
            result += QLatin1Char('\\') + QString(QLatin1Char(c));
    }
    return result + QStringLiteral(";_");
}

// As flat as the buttons beside the grid.
void draw_button(QPainter& painter, const QStyleOptionViewItem& option, const QString& caption) {
    const QPalette palette = QApplication::palette(); // the grid's own has the ground of its cells
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool hovered = enabled && option.state & QStyle::State_MouseOver;
    const QRectF shape = QRectF(option.rect).adjusted(2.5, 1.5, -2.5, -1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette.color(hovered ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(palette.brush(enabled ? QPalette::Button : QPalette::Window));
    painter.drawRoundedRect(shape, 3, 3);
    painter.setPen(palette.color(enabled ? QPalette::Normal : QPalette::Disabled, QPalette::ButtonText));
    painter.setFont(option.font);
    painter.drawText(option.rect.adjusted(4, 0, -4, 0), Qt::AlignCenter,
                     option.fontMetrics.elidedText(caption, Qt::ElideRight, option.rect.width() - 8));
    painter.restore();
}

} // namespace

CellDelegate::CellDelegate(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

QWidget* CellDelegate::list_editor(QWidget* parent, int column, int row) const {
    const CellDesign& design = view_.grid()->design(column, row);
    auto* list = new QComboBox(parent);
    list->setEditable(design.editable);
    for (const std::string& item : design.items)
        list->addItem(to_qt(item));
    space_items(*list);
    auto* self = const_cast<CellDelegate*>(this);
    connect(list, &QComboBox::activated, self, [self, list] {
        emit self->commitData(list);
        emit self->closeEditor(list, NoHint);
    });
    return list;
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    widgets::Grid* grid = view_.grid();
    if (!grid) return nullptr;
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    if (grid->cell_locked(column, row)) return nullptr;
    const CellDesign& design = grid->design(column, row);
    if (design.kind == CellKind::button || design.kind == CellKind::check) return nullptr;
    QWidget* editor = nullptr;
    if (design.kind == CellKind::combo) {
        editor = list_editor(parent, column, row);
    } else {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        if (design.kind == CellKind::number || design.kind == CellKind::percent) {
            line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            // Figures are read without regard to the machine's locale.
            static const QRegularExpression figure(QStringLiteral("[-+0-9.,% ]*"));
            line->setValidator(new QRegularExpressionValidator(figure, line));
        }
        if (design.kind == CellKind::text && design.max_chars > 0) line->setMaxLength(design.max_chars);
        if (design.kind == CellKind::mask) line->setInputMask(input_mask(design.mask));
        if (design.kind == CellKind::date) line->setPlaceholderText(tr("dd/mm/yyyy"));
        editor = line;
    }
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(plain_words(grid->header(column)));
    grid->set_edit_mode(true);
    return editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const widgets::Grid* grid = view_.grid();
    if (!grid) return;
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
        list->setCurrentIndex(grid->index(column, row));
        if (list->isEditable()) {
            list->setEditText(view_.first_typed().isNull() ? to_qt(grid->text(column, row))
                                                           : view_.first_typed());
        } else if (!view_.first_typed().isEmpty()) {
            const int found = list->findText(view_.first_typed(), Qt::MatchStartsWith);
            if (found >= 0) list->setCurrentIndex(found);
        }
    } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        if (view_.first_typed().isNull()) {
            line->setText(to_qt(grid->text(column, row)));
            line->selectAll();
        } else {
            line->setText(view_.first_typed());
            if (!line->inputMask().isEmpty()) line->setCursorPosition(1);
        }
    }
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
    widgets::Grid* grid = view_.grid();
    if (!grid) return;
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
        const int chosen = list->currentIndex();
        const bool picked =
            chosen >= 0 && (!list->isEditable() || list->currentText() == list->itemText(chosen));
        if (picked && chosen == grid->index(column, row)) return;
        if (picked || list->isEditable()) view_.commit(column, row, from_qt(list->currentText()));
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        const QString typed =
            line->inputMask().isEmpty() || line->text().isEmpty() || line->hasAcceptableInput()
                ? line->text()
                : line->displayText().remove(QLatin1Char('_'));
        view_.commit(column, row, from_qt(typed));
    }
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const widgets::Grid* grid = view_.grid();
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    if (!grid || column > grid->columns() || row > grid->rows()) return;
    const CellKind kind = grid->cell_kind(column, row);
    QStyleOptionViewItem cell = option;
    if (index == view_.currentIndex() && view_.selected_cells() <= 1) {
        // The active cell is framed, so that its ground and ink stay readable.
        cell.state &= ~QStyle::State_Selected;
        const QVariant ground = index.data(Qt::BackgroundRole);
        painter->fillRect(cell.rect,
                          ground.isValid() ? ground.value<QBrush>() : option.palette.brush(QPalette::Base));
    }
    cell.state &= ~QStyle::State_HasFocus;
    if (kind == CellKind::button) {
        painter->fillRect(cell.rect, option.palette.brush(QPalette::Base));
        draw_button(*painter, cell, index.data(Qt::DisplayRole).toString());
    } else {
        QStyledItemDelegate::paint(painter, cell, index);
    }
    if (index == view_.currentIndex()) {
        painter->save();
        // Without the focus the place is kept, but is not called for.
        const bool focused = view_.hasFocus();
        QPen frame(option.palette.color(focused ? QPalette::Highlight : QPalette::Mid), focused ? 2 : 1);
        frame.setJoinStyle(Qt::MiterJoin);
        painter->setPen(frame);
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
        painter->restore();
    }
    if (!grid->note(column, row).empty()) {
        // A small corner tells that the cell has a note.
        const QPoint corner = option.rect.topRight();
        painter->save();
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(QPalette::Highlight));
        painter->drawPolygon(QPolygon({corner, corner - QPoint(6, 0), corner + QPoint(0, 6)}));
        painter->restore();
    }
}

bool CellDelegate::editorEvent(QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem&,
                               const QModelIndex& index) {
    if (event->type() != QEvent::MouseButtonRelease || !view_.grid()) return false;
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
    return view_.press_cell(index.column() + 1, index.row() + 1);
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    constexpr int padding = 8;
    const QString shown = index.data(Qt::DisplayRole).toString();
    if (event->type() != QEvent::ToolTip || !index.data(Qt::ToolTipRole).toString().isEmpty() ||
        option.fontMetrics.horizontalAdvance(shown) + padding <= option.rect.width())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), tip_text(shown), view->viewport(), option.rect);
    return true;
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(object);
    if (!editor || event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(object, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto* list = qobject_cast<QComboBox*>(editor);
    std::string then;
    switch (key->key()) {
    case Qt::Key_Escape:
        emit closeEditor(editor, RevertModelCache);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        then = "Enter";
        break;
    case Qt::Key_Tab:
        then = "Tab";
        break;
    case Qt::Key_Backtab:
        then = "Shift+Tab";
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (list) return false;
        then = key->key() == Qt::Key_Up ? "Up" : "Down";
        break;
    default:
        return false;
    }
    if (auto* line = qobject_cast<QLineEdit*>(editor); line && !view_.would_accept(from_qt(line->text())))
        return true; // the editor stays open: the reason stands at the foot of the window
    emit commitData(editor);
    emit closeEditor(editor, NoHint);
    view_.press(then);
    return true;
}

} // namespace levora::desktop
