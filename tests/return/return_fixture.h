#pragma once

#include "return/return_screen.h"
#include "session/data_folder.h"
#include "session/session_state.h"
#include "widgets/headless_desk.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

namespace levora::form_ba::testing {

// The fields of the net wealth sheet that the return reads, without the sheet's own rules.
class SheetStandIn : public session::Screen {
public:
    explicit SheetStandIn(session::Session& session)
        : Screen(session, "frmWealthMain", "Wealth Tax Computation") {
        cboFY.set_index(0);
        mskValuationDate.set_text("31/03/2014");
        mskDueDate.set_text("31/07/2014");
    }
    widgets::TextField txtAssesseeName{*this, "txtAssesseeName"};
    widgets::ListField cboFY{*this, "cboFY", widgets::ListStyle::pick, "", {"2014-2015"}};
    widgets::MaskedField mskValuationDate{*this, "mskValuationDate", "##/##/####"};
    widgets::MaskedField mskDueDate{*this, "mskDueDate", "##/##/####"};
    widgets::TextField txtNetWealth{*this, "txtNetWealth"};
    widgets::TextField txtWealthTaxLiability{*this, "txtWealthTaxLiability"};
    widgets::TextField txtInterest{*this, "txtInterest"};
};

inline std::string file_bytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A run on an empty data folder for assessee 1042, year 2014-2015, with the sheet open.
class ReturnTest : public ::testing::Test {
protected:
    ReturnTest() : settings_(folder_.path() + "/settings.toml") {
        std::filesystem::create_directory(folder_.path() + "/program");
        desk_.set_today({2014, 8, 20});
        restart();
    }

    void restart() {
        session_ = std::make_unique<session::Session>(
            session::Surroundings{desk_, settings_, folder_.path() + "/program", "", "DESK"});
        session_->CurrentFY = "2014-2015";
        session_->AYStartYear = "2014";
        session_->AssesseeNo = 1042;
        session_->DataFolder = folder_.path() + "/";
        session_->TaxDb.open(folder_.connect_string(session::Store::tax));
        session_->AssesseeDb.open(folder_.connect_string(session::Store::assessee));
        auto& screens = session_->screens;
        screens.define("frmWealthMain", [this] { return std::make_unique<SheetStandIn>(*session_); });
        screens.define("frmITMDIParent", [this] { return std::make_unique<frmITMDIParent>(*session_); });
        screens.define("frmFormBA", [this] { return std::make_unique<frmFormBA>(*session_); });
        screens.on_unanswered = [this](std::string_view event, const Failure& error) {
            unanswered_ += std::string(event) + ": " + error.what() + "\n";
        };
        screens.on_settled = [this] { session_->commit_all(); };
        (void)sheet();
    }

    SheetStandIn& sheet() { return session_->screens.get<SheetStandIn>("frmWealthMain"); }
    // The return screen, opened if need be.
    frmFormBA& form() { return session_->screens.get<frmFormBA>("frmFormBA"); }

    void run_tax(std::string_view statement) { folder_.run(session::Store::tax, statement); }
    void run_assessee(std::string_view statement) { folder_.run(session::Store::assessee, statement); }

    // The rows in use as lines of cells, with "|" between them.
    static std::string cells(const widgets::Grid& grid, int rows = 0) {
        std::string text;
        for (int row = 1; row <= (rows > 0 ? rows : grid.data_rows()); ++row) {
            for (int column = 1; column <= grid.columns(); ++column)
                text += (column > 1 ? "|" : "") + grid.text(column, row);
            text += "\n";
        }
        return text;
    }

    // What a field, list or tick box of any kind shows.
    static std::string shown(const widgets::Control* control) {
        if (const auto* field = dynamic_cast<const widgets::TextField*>(control)) return field->text();
        if (const auto* mask = dynamic_cast<const widgets::MaskedField*>(control)) return mask->text();
        if (const auto* list = dynamic_cast<const widgets::ListField*>(control)) return list->text();
        if (const auto* tick = dynamic_cast<const widgets::TickBox*>(control))
            return tick->ticked() ? "1" : "0";
        return {};
    }

    std::string message() {
        std::string text;
        for (const auto& each : desk_.take_messages())
            text += each.box.title + ": " + each.box.text + "\n";
        return text;
    }

    session::testing::DataFolder folder_;
    session::Settings settings_;
    widgets::HeadlessDesk desk_;
    std::unique_ptr<session::Session> session_;
    std::string unanswered_;
};

} // namespace levora::form_ba::testing
