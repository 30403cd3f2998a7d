#pragma once

#include <QHash>
#include <QPersistentModelIndex>
#include <QTableView>

#include <string>
#include <vector>

class QLabel;
class QTimer;

namespace levora::widgets {
class Grid;
}

namespace levora::desktop {

class Acts;
class GridHeader;
class GridModel;
struct ColumnNeed;

// A grid in a table view. Outside edit mode every key goes to the grid first; what is typed opens an
// editor over the active cell. Ranges can be selected, copied and pasted as in a spreadsheet. Columns
// share the room there is; a width or height given by hand is remembered. A first column of labels
// stays in view when the grid scrolls sideways.
class GridView final : public QTableView {
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);

    // Ties the view to its grid. Both the grid and the acts outlive detach().
    void attach(widgets::Grid& grid, Acts& acts);
    void detach();
    [[nodiscard]] widgets::Grid* grid() const { return grid_; }

    // The grid tells of changes.
    void cell_changed(int column, int row);
    void active_cell_changed();
    void structure_changed();

    // --- for the cell editors ---
    void commit(int column, int row, const std::string& text);
    // Whether the active cell would take this text; tells why not.
    bool would_accept(const std::string& text);
    // Presses a button cell or turns a tick; false for cells of other kinds.
    bool press_cell(int column, int row);
    // From a label on to the first cell of its row that can be written in.
    void leave_label();
    // A key outside edit mode, by its name.
    void press(const std::string& key);
    [[nodiscard]] const QString& first_typed() const { return first_typed_; }
    [[nodiscard]] int selected_cells() const;

    // --- places, with the columns that stand in view ---
    [[nodiscard]] QModelIndex indexAt(const QPoint& place) const override;
    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

    // --- as in a spreadsheet ---
    void copy() const;
    void cut();
    void paste();
    // The first row of the selection into the rows below it; into a single row, the one above.
    void fill_down();
    void clear_selected();

signals:
    // Where the person is now, for what the window tells about it.
    void cell_entered(int column, int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    struct Range;
    struct CellText;
    [[nodiscard]] Range selected_range() const;
    void select_range(const Range& range);
    // Columns from 1 that are not hidden.
    [[nodiscard]] std::vector<int> shown_columns(int from, int to) const;
    // Writes the cells as one step of undo; `without_place` of what was given found no cell. False when
    // cancelled: nothing is written then.
    bool write_cells(const QString& what, const std::vector<CellText>& cells, int without_place = 0);
    bool grow_to(int rows);
    void go_to_anchor();
    void press_escape(int column, int row);
    void pass_locked_cells(const std::string& key, int from_column, int from_row);
    bool command_key(const QKeyEvent& event);
    bool selection_key(const QKeyEvent& event);
    void type_character(const QString& typed);
    void start_edit(const QString& first_typed);
    void show_note() const;
    void apply_structure();
    void size_columns();
    [[nodiscard]] ColumnNeed need_of(int column) const;
    [[nodiscard]] bool is_label_column(int column) const;
    [[nodiscard]] int contents_width(int column) const;
    void size_header();
    void size_row_header();
    void fit_column(int section);
    void kept_by_hand(int section);
    void restore_sizes();
    void keep_sizes() const;
    void paint_frozen(const QRegion& region);
    void select_active();

    widgets::Grid* grid_ = nullptr;
    Acts* acts_ = nullptr;
    GridModel* model_ = nullptr;
    QLabel* corner_ = nullptr;
    GridHeader* column_header_;
    GridHeader* row_header_;
    QString first_typed_;          // null opens an editor on what the cell holds
    QHash<int, int> hand_widths_;  // in pixels, by section: given by a person
    QHash<int, int> hand_heights_; //
    QPersistentModelIndex anchor_; // where a selection began
    bool extending_ = false;       // a selection is being drawn on from its anchor
    bool structure_dirty_ = false;
    int changes_ = 0; // what the grid told since the view was tied to it
};

} // namespace levora::desktop
