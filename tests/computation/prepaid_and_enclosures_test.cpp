#include "computation/sheet_fixture.h"

namespace levora::computation {

using widgets::Answer;

class PrepaidTest : public SheetTest {
protected:
    PrepaidTest() { EXPECT_TRUE(start()); }

    widgets::Grid& prepaid() { return sheet().sprSATax; }
    widgets::Grid& enclosures() { return sheet().sprEnclosure; }
    void amounts(std::initializer_list<const char*> rows) {
        for (int row = 1; const char* amount : rows)
            EXPECT_TRUE(prepaid().type(PrepaidColumn::amount, row++, amount));
    }
    std::string stored() {
        return fresh.rows(Store::tax,
                          "SELECT BankBranchName, BSRCode, DateOfPayment, Amount FROM PrePaidTaxes");
    }
};

TEST_F(PrepaidTest, CellsTakeWhatTheirKindAllows) {
    struct Case {
        const char* why;
        int column;
        const char* typed;
        bool taken;
        const char* text;
        widgets::Grid* grid;
    };
    widgets::Grid* const paid = &prepaid();
    const Case cases[] = {
        {"30 characters of a bank", 1, "0123456789012345678901234567890", true,
         "012345678901234567890123456789", paid},
        {"7 of a BSR code", 3, "01234567", true, "0123456", paid},
        {"5 of a challan number", 5, "000123", true, "00012", paid},
        {"a date day first", 4, "1/7/2014", true, "01/07/2014", paid},
        {"no such day", 4, "31/06/2014", false, "01/07/2014", paid},
        {"the highest amount", 6, "9999999999", true, "9999999999", paid},
        {"one more", 6, "10000000000", false, "9999999999", paid},
        {"below 0", 6, "-1", false, "9999999999", paid},
        {"paise stay", 6, "1234.55", true, "1234.55", paid},
        {"10 of an enclosure's figure", 2, "12345678901", true, "1234567890", &enclosures()},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(each.grid->type(each.column, 1, each.typed), each.taken) << each.why;
        EXPECT_EQ(each.grid->text(each.column, 1), each.text) << each.why;
    }
}

TEST_F(PrepaidTest, OnlyATypedAmountSumsTheColumn) {
    amounts({"1000", "200"});
    EXPECT_EQ(sheet().txtPrepaidTax.text(), "1200");
    sheet().txtPrepaidTax.set_text("7");
    prepaid().type(PrepaidColumn::bank_name, 1, "A");
    EXPECT_EQ(sheet().txtPrepaidTax.text(), "7") << "another column";
    prepaid().set_active(PrepaidColumn::amount, 2);
    prepaid().press_key("Delete");
    EXPECT_EQ(sheet().txtPrepaidTax.text(), "7") << "a cleared cell";
    prepaid().type(PrepaidColumn::amount, 4, "3");
    EXPECT_EQ(sheet().txtPrepaidTax.text(), "1003") << "over the blank rows";
}

TEST_F(PrepaidTest, BlankRowsAboveTheLastAreStoredToo) {
    prepaid().type(PrepaidColumn::amount, 3, "150");
    prepaid().type(PrepaidColumn::date_of_deposit, 3, "15/07/2014");
    prepaid().type(PrepaidColumn::bank_name, 3, "O'Brien & Co");
    sheet().cmdSave1.click();
    EXPECT_EQ(stored(), "||Null|0; ||Null|0; O'Brien & Co||2014-07-15|150");
    sheet().cmdSave1.click();
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT count(*) FROM PrePaidTaxes"), "3") << "replaced, not added";
    EXPECT_TRUE(start());
    EXPECT_EQ(data_of(prepaid()), "-,-,-,-,-,0 / -,-,-,-,-,0 / O'Brien & Co,-,-,15/07/2014,-,150");
}

TEST_F(PrepaidTest, WantedTheTwoLoadingsDifferInGrowth) {
    fresh.run(Store::tax, "INSERT INTO PrePaidTaxes (AssesseeNo, FY, Amount) WITH RECURSIVE n(i) AS "
                          "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 501) "
                          "SELECT 17, '2014-2015', 1 FROM n");
    EXPECT_TRUE(start());
    EXPECT_EQ(prepaid().rows(), 500);
    EXPECT_EQ(prepaid().text(PrepaidColumn::amount, 500), "1");
    sheet().cmdSATaxPayable.click();
    EXPECT_EQ(prepaid().rows(), 501);
    EXPECT_EQ(prepaid().text(PrepaidColumn::amount, 501), "1");
}

TEST_F(PrepaidTest, ThePanelLoadsWhenItOpensAndStoresWhenItCloses) {
    amounts({"100", "200", "300"});
    fresh.run(Store::tax, "INSERT INTO PrePaidTaxes (AssesseeNo, FY, DateOfPayment, Amount) "
                          "VALUES (17, '2014-2015', '2014-06-01', 55), (17, '2014-2015', Null, Null)");
    sheet().cmdSATaxPayable.click();
    EXPECT_TRUE(sheet().frSATax.visible());
    EXPECT_EQ(sheet().active_control(), &prepaid());
    EXPECT_EQ(data_of(prepaid()), "-,-,-,01/06/2014,-,55 / -,-,-,-,-,0 / -,-,-,-,-,300")
        << "rows beyond the stored ones stay";
    sheet().cmdSATaxPayable.click();
    EXPECT_EQ(stored(), "||2014-06-01|55; ||Null|0; ||Null|300");
    sheet().cmdSATaxPayable.click();
    fresh.run(Store::tax, "DROP TABLE PrePaidTaxes");
    sheet().cmdSATaxPayable.click();
    EXPECT_EQ(fresh.logged(), "frmWealthMain - cmdSATaxPayable_Click");
    EXPECT_TRUE(start());
    sheet().cmdSave1.click();
    EXPECT_EQ(fresh.logged(), "frmWealthMain - cmdSATaxPayable_Click|frmWealthTaxMain - LoadPrepaidTaxes|"
                              "frmWealthMain - cmdSave1_Click");
}

TEST_F(PrepaidTest, EscapeClearsTheCellBeforeItAsks) {
    amounts({"100", "200"});
    prepaid().set_active(PrepaidColumn::amount, 1);
    fresh.desk.queue_answer(Answer::no);
    prepaid().press_key("Escape");
    EXPECT_EQ(fresh.boxes(), "Do you want to delete the selected row(s) ?");
    EXPECT_EQ(data_of(prepaid()), "-,-,-,-,-,- / -,-,-,-,-,200");

    fresh.desk.queue_answer(Answer::yes);
    prepaid().press_key("Escape");
    EXPECT_EQ(data_of(prepaid()), "-,-,-,-,-,200");
    EXPECT_EQ(prepaid().rows(), 500);
    EXPECT_EQ(sheet().txtPrepaidTax.text(), "300") << "a deletion sums nothing";

    prepaid().press_key("Escape"); // clears the last cell
    EXPECT_EQ(fresh.boxes(), "Do you want to delete the selected row(s) ?") << "the one from above";
    EXPECT_EQ(data_of(prepaid()), "");
}

TEST_F(PrepaidTest, TheHyphenInsertsARowAndLosesNone) {
    enclosures().type(1, 1, "Deed");
    enclosures().type(1, 5, "Map");
    enclosures().set_active(1, 1);
    enclosures().type_character(U'-');
    EXPECT_EQ(enclosures().text(1, 2), "Deed");
    EXPECT_EQ(enclosures().text(1, 6), "Map");
    EXPECT_EQ(enclosures().rows(), 6);
    enclosures().type_character(U'+');
    EXPECT_EQ(enclosures().rows(), 6);
    prepaid().type_character(U'-');
    EXPECT_EQ(prepaid().rows(), 500) << "an empty last row falls off";
}

TEST_F(PrepaidTest, KeysOfTheEnclosuresClearNothingAndLeavingTheLastAddsARow) {
    enclosures().type(1, 1, "Deed");
    enclosures().press_key("Escape"); // the question is dismissed
    enclosures().press_key("Delete");
    EXPECT_EQ(data_of(enclosures()), "Deed,-");
    enclosures().set_active(2, 5);
    enclosures().press_key("Tab");
    EXPECT_EQ(enclosures().rows(), 6);
    EXPECT_EQ(enclosures().active_column() * 100 + enclosures().active_row(), 106);
}

TEST_F(PrepaidTest, WantedTheMenusInsertKeyAddsNoRow) {
    prepaid().type(PrepaidColumn::bank_name, 1, "A");
    EXPECT_EQ(prepaid().right_click(), &sheet().mnuWealthTax);
    EXPECT_TRUE(sheet().mnuAddrows.click());
    EXPECT_EQ(data_of(prepaid()), "A,-,-,-,-,-");
    EXPECT_TRUE(sheet().mnuDeleteRows.click());
    EXPECT_EQ(data_of(prepaid()), "") << "Escape has cleared the cell; nothing is left to ask about";
    EXPECT_EQ(fresh.boxes(), "");
}

TEST_F(PrepaidTest, WantedASecondEnclosureIsReportedAndNotStored) {
    fresh.run(Store::tax,
              "INSERT INTO Enclosure (AssesseeNo, FY, Description) VALUES (17, '2013-2014', 'Old')");
    enclosures().type(1, 1, "Valuer's report");
    enclosures().type(2, 1, "2");
    sheet().cmdSave1.click();
    EXPECT_EQ(fresh.boxes(), "");
    enclosures().type(1, 2, "Deed");
    sheet().cmdSave1.click();
    EXPECT_EQ(fresh.boxes(), "3704 Operation is not allowed when the object is closed.");
    EXPECT_EQ(fresh.logged(), "frmWealthMain - SaveWealthTaxComputation");
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT Description, Figure FROM Enclosure"),
              "Old|Null; Valuer's report|2");
}

TEST_F(PrepaidTest, EnclosuresLoadInTheirOrderAndGrowTheGrid) {
    for (const char* text : {"f", "e", "d", "c", "b", "a"})
        fresh.run(Store::tax,
                  "INSERT INTO Enclosure (AssesseeNo, FY, Description) VALUES (17, '2014-2015', '" +
                      std::string(text) + "')");
    EXPECT_TRUE(start());
    EXPECT_EQ(data_of(enclosures()), "f,- / e,- / d,- / c,- / b,- / a,-");
    EXPECT_EQ(enclosures().rows(), 6);
}

TEST_F(PrepaidTest, PanelsSlideInTenStepsEachWay) {
    struct Panel {
        widgets::Button& button;
        widgets::Frame& frame;
        widgets::Timer& timer;
        double wider, further_left;
        void slide() const {
            while (timer.tick()) {
            }
        }
    };
    const Panel panels[] = {
        {sheet().cmdInterest, sheet().frInterest, sheet().timInterest, 3735, 3720},
        {sheet().cmdSATaxPayable, sheet().frSATax, sheet().timSATax, 8055, 8160},
    };
    for (const Panel& panel : panels) {
        SCOPED_TRACE(panel.frame.name());
        const double width = panel.frame.width_twips;
        const double left = panel.frame.left_twips;
        int ticks = 0;
        panel.button.click();
        EXPECT_EQ(panel.button.caption(), ">>");
        while (panel.timer.tick())
            ++ticks;
        EXPECT_EQ(ticks, 11) << "the last one stops the timer";
        EXPECT_EQ(panel.frame.width_twips, width + panel.wider);
        EXPECT_EQ(panel.frame.left_twips, left - panel.further_left);
        panel.button.click();
        EXPECT_EQ(panel.button.caption(), "<<");
        EXPECT_TRUE(panel.frame.visible());
        panel.slide();
        EXPECT_FALSE(panel.frame.visible());
        EXPECT_EQ(panel.frame.width_twips, width);
        panel.button.click();
        panel.timer.tick();
        panel.button.click(); // closed while it opens: never narrower than nothing
        panel.slide();
        EXPECT_GE(panel.frame.width_twips, 0);
    }
    EXPECT_EQ(fresh.boxes(), "");
    sheet().cmdEnclosure.click(); // at once
    EXPECT_TRUE(sheet().frEnclosure.visible());
    sheet().cmdEnclosure.click();
    EXPECT_FALSE(sheet().frEnclosure.visible());
}

TEST_F(PrepaidTest, WantedTheGridsSheetHasMarginsAndNoHeader) {
    EXPECT_TRUE(sheet().mnuPrintSheet.click());
    EXPECT_TRUE(fresh.desk.take_sheets().empty()) << "no grid is active";
    prepaid().type(PrepaidColumn::amount, 1, "5");
    sheet().mnuPrintSheet.click();
    enclosures().enter();
    sheet().mnuPreviewSheet.click();
    const auto sheets = fresh.desk.take_sheets();
    ASSERT_EQ(sheets.size(), 2U);
    EXPECT_EQ(sheets[0].grid + sheets[0].header + sheets[0].footer, "sprSATax");
    EXPECT_EQ(sheets[0].margin_left + sheets[0].margin_top, 400);
    EXPECT_EQ(sheets[1].grid, "sprEnclosure");
    EXPECT_TRUE(!sheets[0].preview && sheets[1].preview);
}

} // namespace levora::computation
