#include "window_fixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>

namespace levora::desktop::testing {

class GridViewTest : public WindowTest {
protected:
    // The challans of tax paid, open and in focus.
    GridViewTest() {
        control<widgets::Button>("frmWealthMain", "cmdSATaxPayable").click();
        QApplication::processEvents();
        view().setFocus();
        grid().set_active(1, 1);
        QApplication::processEvents();
    }
    GridView& view() { return widget<GridView>("frmWealthMain", "sprSATax"); }
    widgets::Grid& grid() { return control<widgets::Grid>("frmWealthMain", "sprSATax"); }
    void keys(const char* typed) {
        QWidget* editor = editor_of(view());
        QTest::keyClicks(editor ? editor : &view(), QString::fromLatin1(typed));
        QApplication::processEvents();
    }
    void press(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWidget* editor = editor_of(view());
        key(editor ? *editor : static_cast<QWidget&>(view()), which, held);
    }
    void select(int left, int top, int right, int bottom) {
        grid().set_active(left, top);
        const QAbstractItemModel& cells = *view().model();
        view().selectionModel()->select(
            QItemSelection(cells.index(top - 1, left - 1), cells.index(bottom - 1, right - 1)),
            QItemSelectionModel::ClearAndSelect);
    }
    std::string rows(int count) {
        std::string all;
        for (int row = 1; row <= count; ++row) {
            for (int column = 1; column <= grid().columns(); ++column)
                all += (column > 1 ? "|" : "") + grid().text(column, row);
            all += "\n";
        }
        return all;
    }
    QString foot() { return window("frmWealthMain").statusBar()->findChild<QLabel*>()->text(); }
};

TEST_F(GridViewTest, TypingOpensAnEditorThatEntersInOnePiece) {
    grid().set_active(6, 1);
    keys("1");
    keys("23456");
    EXPECT_EQ(grid().text(6, 1), ""); // not before the editor closes
    EXPECT_TRUE(grid().edit_mode());
    press(Qt::Key_Return);
    EXPECT_EQ(grid().text(6, 1), "123456");
    EXPECT_EQ(text("txtPrepaidTax"), "123456");
    EXPECT_FALSE(grid().edit_mode());
    EXPECT_EQ(grid().active_row(), 2); // past the last column, on to the next row
    EXPECT_EQ(grid().active_column(), 1);
}

TEST_F(GridViewTest, EscapeGivesAnEditUpAndNothingElse) {
    grid().type(1, 1, "State Bank");
    grid().set_active(1, 1);
    press(Qt::Key_F2);
    keys("x");
    press(Qt::Key_Escape);
    EXPECT_EQ(grid().text(1, 1), "State Bank");
    EXPECT_TRUE(desk.take_messages().empty()); // no question about deleting the row
}

TEST_F(GridViewTest, WhatACellRefusesStaysInTheEditorWithTheReason) {
    grid().set_active(6, 1);
    keys("9");
    keys("9999999999");
    press(Qt::Key_Return);
    EXPECT_TRUE(editor_of(view()));
    EXPECT_EQ(grid().text(6, 1), "");
    EXPECT_TRUE(foot().contains(QStringLiteral("9,99,99,99,999"))) << foot().toStdString();
}

TEST_F(GridViewTest, ALetterStartsNoFigure) {
    grid().set_active(6, 1);
    keys("x");
    EXPECT_FALSE(editor_of(view()));
    keys("5");
    press(Qt::Key_Return);
    EXPECT_EQ(grid().text(6, 1), "5");
}

TEST_F(GridViewTest, AKeyThatTheGridAnswersStartsNoEdit) {
    grid().type(1, 1, "first");
    grid().set_active(1, 1);
    keys("-");
    EXPECT_FALSE(editor_of(view()));
    EXPECT_EQ(grid().text(1, 1), "");
    EXPECT_EQ(grid().text(1, 2), "first");
}

TEST_F(GridViewTest, ArrowsTabAndDeleteGoToTheGrid) {
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(view().currentIndex(), view().model()->index(1, 1));
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(grid().active_column(), 2);
    grid().type(2, 2, "Fort");
    press(Qt::Key_Delete);
    EXPECT_EQ(grid().text(2, 2), "");
}

TEST_F(GridViewTest, KeysFromCellToCellPassLockedOnes) {
    const auto lock = [this](int column, int row, bool locked) {
        grid().set_cell_locked(column, row, locked);
    };
    const auto place = [this] { return std::pair(grid().active_column(), grid().active_row()); };
    for (const int column : {2, 3, 5, 6})
        lock(column, 1, true);
    lock(1, 2, true);
    press(Qt::Key_Tab);
    EXPECT_EQ(place(), std::pair(4, 1));
    press(Qt::Key_Return);
    EXPECT_EQ(place(), std::pair(2, 2));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(place(), std::pair(4, 1));
    // Nothing further on can be written in.
    for (int row = 1; row <= grid().rows(); ++row)
        for (int column = 1; column <= grid().columns(); ++column)
            lock(column, row, column != 4 || row != 1);
    press(Qt::Key_Return);
    EXPECT_EQ(place(), std::pair(5, 1));
    grid().set_active(4, 1);
    press(Qt::Key_Tab);
    EXPECT_EQ(place(), std::pair(4, 1));
    EXPECT_FALSE(view().hasFocus());
}

TEST_F(GridViewTest, ARangeIsCopiedAsTabbedLines) {
    grid().type(1, 1, "A");
    grid().type(2, 1, "B");
    grid().type(1, 2, "C");
    select(1, 1, 2, 2);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("A\tB\nC\t"));
}

TEST_F(GridViewTest, APasteIsOneStepAndTellsWhatDidNotFit) {
    QApplication::clipboard()->setText(QStringLiteral("SBI\tFort\t0001234\t15/06/2014\t00012\t1,25,000\r\n"
                                                      "BOI\tPune\t0005678\t31/06/2014\t7\t50\r\n"));
    grid().set_active(1, 1);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(rows(3), "SBI|Fort|0001234|15/06/2014|00012|125000\n"
                       "BOI|Pune|0005678||7|50\n" // no such day
                       "|||||\n");
    EXPECT_TRUE(foot().contains(QStringLiteral("1 value"))) << foot().toStdString();
    EXPECT_EQ(text("txtPrepaidTax"), "125050");
    window("frmWealthMain").undo();
    EXPECT_EQ(rows(2), "|||||\n|||||\n");
    window("frmWealthMain").redo();
    EXPECT_EQ(grid().text(6, 2), "50");
}

TEST_F(GridViewTest, AStepThatIsGivenUpLeavesNothingBehind) {
    grid().type(6, 2, "7");
    ScreenWindow& sheet = window("frmWealthMain");
    sheet.edit_cell(grid(), 2, 3, "Fort");
    sheet.undo();
    sheet.begin_step();
    sheet.edit_cell(grid(), 1, 1, "SBI");
    sheet.edit_cell(grid(), 6, 2, "10");
    sheet.give_up_step();
    EXPECT_EQ(rows(3), "|||||\n|||||7\n|||||\n");
    EXPECT_EQ(text("txtPrepaidTax"), "7");
    EXPECT_FALSE(sheet.history().can_undo());
    sheet.redo(); // what was taken back before can still be done again
    EXPECT_EQ(grid().text(2, 3), "Fort");
}

TEST_F(GridViewTest, ACopiedRowFillsEverySelectedRowAndStaysSelected) {
    QApplication::clipboard()->setText(QStringLiteral("SBI\tFort\n"));
    select(1, 1, 2, 3);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(rows(4), "SBI|Fort||||\nSBI|Fort||||\nSBI|Fort||||\n|||||\n");
    EXPECT_EQ(view().selected_cells(), 6);
    press(Qt::Key_Delete);
    EXPECT_EQ(rows(2), "|||||\n|||||\n");
}

TEST_F(GridViewTest, KeysGoOnFromWhereARangeBegan) {
    grid().set_active(1, 2);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(view().selected_cells(), 3);
    press(Qt::Key_Right);
    EXPECT_EQ(std::pair(grid().active_column(), grid().active_row()), std::pair(2, 2));
    press(Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClicks(&view(), QStringLiteral("F"));
    EXPECT_EQ(std::pair(grid().active_column(), grid().active_row()), std::pair(2, 2));
}

TEST_F(GridViewTest, ADeletedCellCanBeTakenBack) {
    grid().type(1, 1, "SBI");
    grid().set_active(1, 1);
    press(Qt::Key_Delete);
    EXPECT_EQ(grid().text(1, 1), "");
    window("frmWealthMain").undo();
    EXPECT_EQ(grid().text(1, 1), "SBI");
    // This grid takes Escape for the same, once an entry is given up.
    press(Qt::Key_Escape);
    EXPECT_EQ(grid().text(1, 1), "");
    window("frmWealthMain").undo();
    EXPECT_EQ(grid().text(1, 1), "SBI");
}

TEST_F(GridViewTest, FillDownCopiesTheFirstRowOfTheRange) {
    grid().type(1, 1, "SBI");
    grid().type(6, 1, "10");
    select(1, 1, 6, 3);
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(rows(4), "SBI|||||10\nSBI|||||10\nSBI|||||10\n|||||\n");
    EXPECT_EQ(text("txtPrepaidTax"), "30");
}

TEST_F(GridViewTest, APasteTellsWhatDidNotFitAndWhere) {
    QApplication::clipboard()->setText(
        QStringLiteral("BoB\tMain\t12\t30/02/2014\t8\t5\nSBI\tMG\t13\t2014\t9\t7"));
    grid().set_active(1, 1);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(rows(2), "BoB|Main|12||8|5\nSBI|MG|13||9|7\n");
    EXPECT_EQ(window("frmWealthMain").statusBar()->findChild<QLabel*>()->text(),
              "2 values did not fit their cells. The first is \"30/02/2014\" in row 1, Date of Deposit.");
}

class AssetsGridTest : public WindowTest {
protected:
    GridView& view() { return widget<GridView>("frmImmovable", "sprImmovable"); }
    widgets::Grid& grid() { return control<widgets::Grid>("frmImmovable", "sprImmovable"); }
};

TEST_F(AssetsGridTest, ColumnsComeAndGoWithTheCountAndLabelsAreLocked) {
    show("frmImmovable");
    const auto shown = [this] {
        int count = 0;
        for (int column = 0; column < view().model()->columnCount(); ++column)
            count += view().isColumnHidden(column) ? 0 : 1;
        return count;
    };
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("7");
    view().grab(); // headers and widths are taken over before a painting
    EXPECT_EQ(shown(), 8);
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("2");
    view().grab();
    EXPECT_EQ(shown(), 3);
    EXPECT_FALSE(view().model()->index(0, 0).flags() & Qt::ItemIsEditable);
    const QVariant ground = view().model()->index(0, 0).data(Qt::BackgroundRole);
    EXPECT_TRUE(ground.isValid());
}

TEST_F(AssetsGridTest, LabelsStayInViewAndASelectionCanBeginOnThem) {
    show("frmImmovable");
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("9");
    view().grab();
    const QModelIndex label = view().model()->index(2, 0);
    const QRect place = view().visualRect(label);
    grid().set_active(9, 3);
    EXPECT_GT(view().horizontalScrollBar()->value(), 0);
    EXPECT_EQ(view().visualRect(label), place);
    EXPECT_EQ(view().indexAt(place.center()), label);
    EXPECT_GE(view().visualRect(view().model()->index(2, 8)).left(), place.right());
    // Left as far as it goes: the cell comes out from beneath the labels.
    view().setFocus();
    for (int steps = 0; steps < 7; ++steps)
        key(view(), Qt::Key_Left);
    EXPECT_GE(view().visualRect(view().model()->index(2, 1)).left(), place.right());
    grid().set_active(9, 3);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    key(view(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view().selected_cells(), 2);
}

TEST_F(AssetsGridTest, AWidthGivenByHandIsThereAgainAtTheNextStart) {
    show("frmImmovable");
    view().grab();
    QWidget* header = view().horizontalHeader()->viewport();
    const int before = view().columnWidth(1);
    const QPoint edge(view().columnViewportPosition(1) + before - 1, 8);
    QTest::mousePress(header, Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(header, edge + QPoint(20, 0));
    QTest::mouseMove(header, edge + QPoint(40, 0));
    QTest::mouseRelease(header, Qt::LeftButton, Qt::NoModifier, edge + QPoint(40, 0));
    EXPECT_EQ(view().columnWidth(1), before + 40);
    run->program().session().screens.unload("frmImmovable");
    QApplication::processEvents();
    show("frmImmovable");
    view().grab();
    EXPECT_EQ(view().columnWidth(1), before + 40);
    // A double click on the edge fits what stands there.
    QTest::mouseDClick(view().horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       QPoint(view().columnViewportPosition(1) + before + 39, 8));
    EXPECT_NE(view().columnWidth(1), before + 40);
    QSettings().remove(QStringLiteral("columns"));
}

TEST_F(AssetsGridTest, APasteBringsTheRowsThatItNeeds) {
    show("frmImmovable");
    auto& firms = widget<GridView>("frmImmovable", "sprAssetInterest");
    auto& grid = control<widgets::Grid>("frmImmovable", "sprAssetInterest");
    ASSERT_EQ(grid.rows(), 5);
    QStringList lines;
    for (int firm = 1; firm <= 7; ++firm)
        lines += QStringLiteral("Firm %1").arg(firm);
    QApplication::clipboard()->setText(lines.join(QStringLiteral("\r\n")));
    grid.set_active(1, 1);
    firms.paste();
    EXPECT_EQ(grid.rows(), 7);
    EXPECT_EQ(grid.text(1, 7), "Firm 7");
}

TEST_F(AssetsGridTest, EnteringAListThatIsTypedInSelectsAllOfIt) {
    show("frmImmovable");
    auto& count = widget<QComboBox>("frmImmovable", "cboNumberOfProperty");
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("3");
    count.setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    QTest::keyClicks(count.lineEdit(), "5");
    EXPECT_EQ(control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").text(), "5");
    EXPECT_EQ(run->program().session().screens.find("frmImmovable")->active_control()->name(),
              "cboNumberOfProperty");
}

TEST_F(AssetsGridTest, FiguresAreGroupedAndStandRightAndLockedCellsAreSkippedByAPaste) {
    show("frmImmovable");
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("1");
    QApplication::clipboard()->setText(QStringLiteral("label\t1234567"));
    grid().set_active(1, 12);
    view().setFocus();
    key(view(), Qt::Key_V, Qt::ControlModifier);
    const QModelIndex cell = view().model()->index(11, 1);
    EXPECT_EQ(cell.data().toString(), QStringLiteral("12,34,567"));
    EXPECT_TRUE(cell.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_NE(grid().text(1, 12), "label");
    EXPECT_TRUE(window("frmImmovable")
                    .statusBar()
                    ->findChild<QLabel*>()
                    ->text()
                    .contains(QStringLiteral("1 locked")));
    grid().type(2, 28, "140000"); // a text that is read as a number
    EXPECT_EQ(view().model()->index(27, 1).data().toString(), QStringLiteral("1,40,000"));
    EXPECT_TRUE(view().model()->index(27, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_EQ(grid().text(2, 28), "140000");
}

TEST_F(AssetsGridTest, AListCellOffersItsItemsAndTakesTheChosenOne) {
    show("frmImmovable");
    control<widgets::ListField>("frmImmovable", "cboNumberOfProperty").type("1");
    grid().set_active(2, 17);
    view().setFocus();
    key(view(), Qt::Key_F2);
    auto* list = qobject_cast<QComboBox*>(editor_of(view()));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->count(), static_cast<int>(grid().design(2, 17).items.size()));
    list->setCurrentIndex(1);
    emit list->activated(1);
    EXPECT_EQ(grid().index(2, 17), 1);
}

} // namespace levora::desktop::testing
