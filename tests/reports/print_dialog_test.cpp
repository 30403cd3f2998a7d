#include "reports_fixture.h"

namespace levora::reports {
namespace {

class PrintDialogTest : public ReportsTest {
protected:
    PrintDialogTest() {
        set("Challan282 Top Margin", "4");
        set("Challan282 Left Margin", "6");
        set("Challan282 PrePrinted", "1");
        set("FormBA Top Margin", "8");
        start();
        click_on_sheet("cmdChallan");
    }
    void set(const char* name, const char* text) {
        settings.write(session::registry::levora_forms, name, text);
    }
    std::string setting(const char* name) {
        const auto value = settings.read(session::registry::levora_forms, name);
        return value ? std::get<std::string>(*value) : "none";
    }
    std::string kept() {
        return setting("Challan282 Left Margin") + "|" + setting("Challan282 Top Margin") + "|" +
               setting("Challan282 PrePrinted") + "|" + setting("FormBA Left Margin") + "|" +
               setting("FormBA Top Margin");
    }
    bool closed() { return session().screens.find("frmPrint") == nullptr; }
};

TEST_F(PrintDialogTest, EachReportHasItsOwnSettings) {
    challan().cmdPrint.click();
    EXPECT_EQ(dialog().txtTopMargin.text() + "|" + dialog().txtLeftMargin.text() + "|" +
                  dialog().txtNoCopies.text(),
              "4|6|1");
    EXPECT_EQ(dialog().chkPrePrinted.value(), 1);
    dialog().cmdCancel.click();

    click_on_sheet("cmdformBA");
    form_ba().cmdPrint.click();
    EXPECT_EQ(dialog().txtTopMargin.text() + "|" + dialog().txtLeftMargin.text(), "8|");
    EXPECT_EQ(dialog().chkPrePrinted.value(), 0) << "the return has no pre-printed form";
    dialog().txtLeftMargin.type("2");
    dialog().chkPrePrinted.click();
    dialog().cmdOK.click();
    EXPECT_EQ(kept(), "6|4|1|2|8");
}

TEST_F(PrintDialogTest, OnlyOKKeepsWhatWasChanged) {
    struct Case {
        const char* why;
        void (*act)(frmPrint& dialog);
        const char* kept;
    };
    const Case cases[] = {
        {"cancel", [](frmPrint& d) { d.cmdCancel.click(); }, "6|4|1|none|8"},
        {"Esc", [](frmPrint& d) { d.press_key("Escape"); }, "6|4|1|none|8"},
        {"OK without a change", [](frmPrint& d) { d.cmdOK.click(); }, "6|4|1|none|8"},
        {"OK; an empty margin is kept as a blank",
         [](frmPrint& d) {
             d.txtTopMargin.type("");
             d.chkPrePrinted.click();
             d.cmdOK.click();
         },
         "6| |0|none|8"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        challan().cmdPrint.click();
        each.act(dialog());
        EXPECT_TRUE(closed());
        EXPECT_EQ(kept(), each.kept);
    }
}

TEST_F(PrintDialogTest, PrintingForgetsTheMarginsTypedForIt) {
    challan().cmdPrint.click();
    dialog().chkCollate.click();
    EXPECT_TRUE(dialog().frCollated.visible() && !dialog().frNonCollated.visible());
    dialog().chkCollate.click();
    EXPECT_TRUE(!dialog().frCollated.visible() && dialog().frNonCollated.visible());
    dialog().txtTopMargin.type("10");
    dialog().txtLeftMargin.type("wide");
    dialog().txtNoCopies.type("");
    desk.queue_printer();
    dialog().cmdPrint.click();
    EXPECT_TRUE(closed());
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_EQ(printed[0]->top_margin_twips, 567);
    EXPECT_EQ(printed[0]->left_margin_twips, 0) << "no number is 0";
    EXPECT_EQ(printed[0]->copies, 0) << "empty goes to the report as 0";
    EXPECT_TRUE(printed[0]->suppressed("SecChallan282Form")) << "the stationery has the form already";
    EXPECT_EQ(kept(), "6|4|1|none|8");

    challan().cmdPrint.click();
    dialog().txtNoCopies.type("40000"); // more than a number holds
    desk.queue_printer();
    desk.queue_answer(widgets::Answer::ok); // which tries nothing again
    dialog().cmdPrint.click();
    EXPECT_EQ(boxes() + logged(), "6 OverflowfrmPrint - cmdPrint_Click");
    EXPECT_TRUE(closed());
}

TEST_F(ReportsTest, TheSheetPreviewHasKeysAndTheWaitingWindowBlinks) {
    settings.write(session::registry::shared, "LVCalc Path", "C:\\Levora");
    start();
    session().screens.show("frmSprPreview");
    for (const char* key : {"Ctrl+Alt+C", "Ctrl+Alt+T", "Ctrl+Alt+X"})
        screen<frmSprPreview>("frmSprPreview").press_key(key);
    std::string started;
    for (const auto& each : desk.take_started())
        started += each.line + "|";
    EXPECT_EQ(started, "CALC.EXE|C:\\Levora\\Levora Calc.exe|");

    session().screens.show("frmReportAvi");
    EXPECT_EQ(boxes(), "53 File not found: " + folder.path() + "/LevoraRep.avi");
    EXPECT_EQ(logged(), "ReportAvi - Form_Load");
    auto& window = screen<frmReportAvi>("frmReportAvi");
    std::string shown;
    for (int tick = 0; tick < 3; ++tick) {
        window.Timer1.tick();
        shown += window.labWait.visible() ? "on " : "off ";
    }
    EXPECT_EQ(shown, "off on off ");
}

} // namespace
} // namespace levora::reports
