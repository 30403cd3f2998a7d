#include "window_fixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
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

TEST_F(GridViewTest, FillDownCopiesTheFirstRowOfTheRange) {
    grid().type(1, 1, "SBI");
    grid().type(6, 1, "10");
    select(1, 1, 6, 3);
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(rows(4), "SBI|||||10\nSBI|||||10\nSBI|||||10\n|||||\n");
    EXPECT_EQ(text("txtPrepaidTax"), "30");
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
