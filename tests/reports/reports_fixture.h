#pragma once

#include "challan/challan282.h"
#include "document/report.h"
#include "program/program.h"
#include "reports/preview_screens.h"
#include "reports/print_dialog.h"
#include "return/complete_return.h"
#include "return/return_screen.h"
#include "session/fresh_start.h"
#include "widgets/fields.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace levora::reports {

using session::Store;

// The whole program on an empty data folder for assessee 17; what goes to the printer is kept.
class ReportsTest : public testing::Test, protected session::testing::FreshStart {
protected:
    ReportsTest() {
        std::filesystem::create_directory_symlink(LEVORA_BIN "/Report", folder.path() + "/Report");
        run(Store::assessee,
            "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, Office_Name, Father_Name, Address1, "
            "Address3, City, District, PIN, ResAddress1, ResCity, PAN, Status, Sex, Ward, Date_of_Birth) "
            "VALUES (17, 'Asha Rao', 'Rao & Sons', 'K Rao', '12', 'MG Road', 'PUNE', 'Pune', '411001', "
            "'House 9', 'Nagpur', 'AAAPR1234C', 0, 1, 'Ward 3', '1960-05-31')");
    }

    void start(const std::string& line = "2014-2015 17 Individual x 0") {
        program = std::make_unique<program::Program>(
            session::Surroundings{desk, settings, folder.path(), line, machine_name});
        program->session().print_report = [this](const std::shared_ptr<document::Report>& report) {
            printed.push_back(report);
        };
        program->start();
    }

    session::Session& session() { return program->session(); }
    template <class T> T& screen(const char* name) { return session().screens.get<T>(name); }
    widgets::Form& sheet() { return session().screens.load("frmWealthMain"); }
    form_ba::frmFormBA& form_ba() { return screen<form_ba::frmFormBA>("frmFormBA"); }
    challan::frmChallan282& challan() { return screen<challan::frmChallan282>("frmChallan282"); }
    frmPrint& dialog() { return screen<frmPrint>("frmPrint"); }

    void click_on_sheet(const char* button) { dynamic_cast<widgets::Button*>(sheet().find(button))->click(); }
    void type_on_sheet(const char* field, const char* text) {
        dynamic_cast<widgets::TextField*>(sheet().find(field))->type(text);
    }

    // The report in the preview; what the boxes said when there is none.
    document::Report& previewed() {
        auto* preview = dynamic_cast<frmRepPreview*>(session().screens.find("frmRepPreview"));
        if (!preview || !preview->report()) throw std::runtime_error("no preview: " + boxes());
        return *preview->report();
    }
    // All objects that hold a text, in the order of the layout, a tick as "[x]".
    static std::string filled(const document::Report& report) {
        std::string all;
        for (const std::string& object : report.objects()) {
            const std::string& text = report.text(object);
            if (!text.empty()) all += object + ": " + (text == document::tick ? "[x]" : text) + "\n";
        }
        return all;
    }
    // A subreport's rows, a cell that is Null as "-".
    static std::string rows_of(const document::Report& report, const char* subreport) {
        std::string all;
        const document::RowTable& table = report.rows(subreport);
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            for (int column = 1; column <= 13; ++column) {
                const session::Value& value = table.value(row, "Col" + number_text(column));
                all += (column > 1 ? "|" : "") + (value.is_null() ? "-" : value.text());
            }
            all += "\n";
        }
        return all;
    }

    std::vector<std::shared_ptr<document::Report>> printed;
    std::unique_ptr<program::Program> program;
};

} // namespace levora::reports
