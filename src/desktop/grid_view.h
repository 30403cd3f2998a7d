#pragma once

#include <QHash>
#include <QTableView>

#include <string>

class QLabel;
class QTimer;

namespace levora::widgets {
class Grid;
}

namespace levora::desktop {

class Acts;
class GridModel;

// A grid in a table view. Outside edit mode every key goes to the grid first; what is typed opens an
// editor over the active cell. Ranges can be selected, copied and pasted as in a spreadsheet.
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
    // A key outside edit mode, by its name.
    void press(const std::string& key);
    [[nodiscard]] const QString& first_typed() const { return first_typed_; }
    [[nodiscard]] int selected_cells() const;

    // --- as in a spreadsheet ---
    void copy() const;
    void cut();
    void paste();
    // The first row of the selection into the rows below it.
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

private:
    bool command_key(const QKeyEvent& event);
    bool selection_key(const QKeyEvent& event);
    void type_character(const QString& typed);
    void start_edit(const QString& first_typed);
    void show_note() const;
    void apply_structure();
    void size_columns();
    void size_header(int character);
    void select_active();

    widgets::Grid* grid_ = nullptr;
    Acts* acts_ = nullptr;
    GridModel* model_ = nullptr;
    QLabel* corner_ = nullptr;
    QString first_typed_;         // null opens an editor on what the cell holds
    QHash<int, int> told_widths_; // in pixels, by section
    bool structure_dirty_ = false;
    int changes_ = 0; // what the grid told since the view was tied to it
};

} // namespace levora::desktop
