#pragma once

#include <QStyledItemDelegate>

namespace levora::desktop {

class GridView;

// Paints and edits the cells of one grid view: an editor for each kind of cell. What an editor holds
// goes into the grid in one piece when the editor closes; Escape gives it up.
class CellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit CellDelegate(GridView& view);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    // A text that its cell cuts short is told whole.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    QWidget* list_editor(QWidget* parent, int column, int row) const;

    GridView& view_;
};

} // namespace levora::desktop
