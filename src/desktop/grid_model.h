#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <string>

namespace levora::widgets {
class Grid;
}

namespace levora::desktop {

// A grid's cells for a table view: rows and columns from 0 here, from 1 in the grid. It holds nothing
// but the counts that the view knows of.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    GridModel(const widgets::Grid& grid, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Takes the grid's counts over; rows and columns come and go at the end, as cells report on their
    // own what moved.
    void take_counts();
    void headers_changed();
    // One cell, from 1; -1 all of them.
    void cell_changed(int column, int row);
    // The grid is gone: the model is empty from here on.
    void detach();

private:
    const widgets::Grid* grid_;
    int rows_ = 0;
    int columns_ = 0;
};

// A cell as a person reads it: figures grouped where the design says so.
std::string shown_text(const widgets::Grid& grid, int column, int row);

// What a row is called: by its label, a fixed text in its first cell, or by its header.
QString row_words(const widgets::Grid& grid, int row);

} // namespace levora::desktop
