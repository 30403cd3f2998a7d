#pragma once

#include "schedules/asset_opening.h"
#include "schedules/assets_screen.h"
#include "session/data_folder.h"
#include "widgets/headless_desk.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace levora::schedules {

// The sheet and the two screens of rows, as far as the assets screen knows them.
class SheetStandIn : public widgets::Form {
public:
    explicit SheetStandIn(widgets::Screens& screens) : Form(screens, "frmWealthMain", "") {}
    widgets::ListField cboFY{*this, "cboFY", widgets::ListStyle::pick, "A.Y", {"2014-2015"}};
    widgets::TextField txtAssesseeName{*this, "txtAssesseeName"};
    widgets::TextField txtAssetsSec2ea{*this, "txtAssetsSec2ea"};
    widgets::TextField txtDeemedAssets{*this, "txtDeemedAssets"};
    widgets::TextField txtExemptedAssets{*this, "txtExemptedAssets"};
};

class RowsStandIn : public widgets::Form {
public:
    RowsStandIn(widgets::Screens& screens, const AssetParent& parent)
        : Form(screens, std::string(parent.screen), ""), rows(*this, std::string(parent.grid), 9, 20) {}
    widgets::Grid rows;
};

// A desk whose printer and preview can be out of order.
class PaperlessDesk : public widgets::HeadlessDesk {
public:
    bool has_paper = true;
    void print_sheet(const widgets::Grid& grid) override {
        need_paper();
        HeadlessDesk::print_sheet(grid);
    }
    void preview_sheet(const widgets::Grid& grid) override {
        need_paper();
        HeadlessDesk::preview_sheet(grid);
    }

private:
    void need_paper() const {
        constexpr int cancelled = 32755;
        if (!has_paper) throw Failure(cancelled, "Cancel was selected");
    }
};

// One assessee and year on an empty store in a folder of its own.
class AssetsTest : public testing::Test {
protected:
    AssetsTest() {
        session.DataFolder = folder();
        session.TaxDb.open(folder_.connect_string(session::Store::tax));
        session.AssesseeNo = 17;
        session.CurrentFY = "2014-2015";
        screens.define("frmImmovable", [this] { return std::make_unique<frmImmovable>(session); });
        screens.define("frmWealthMain", [this] { return std::make_unique<SheetStandIn>(screens); });
        for (const AssetParent* parent : {&business_parent, &deemed_parent})
            screens.define(std::string(parent->screen),
                           [this, parent] { return std::make_unique<RowsStandIn>(screens, *parent); });
        screens.on_unanswered = [this](std::string_view event, const Failure& failure) {
            unanswered.push_back(std::string(event) + ": " + failure.what());
        };
    }

    std::string folder() { return folder_.path() + "/"; }

    // The screen; loaded in the mode that the session's flags name.
    frmImmovable& assets() { return screens.get<frmImmovable>("frmImmovable"); }
    widgets::Grid& properties() { return assets().immovable.sprImmovable; }
    // As a person does who asks for so many properties.
    void own_properties(std::string_view count) {
        EXPECT_TRUE(assets().immovable.cboNumberOfProperty.type(count));
    }
    // OK, and the screen opened again.
    void save_and_reopen() {
        EXPECT_TRUE(assets().cmdOK.click());
        EXPECT_EQ(screens.find("frmImmovable"), nullptr);
        screens.show("frmImmovable");
    }
    // Texts of a column, the rows named, with blanks between.
    static std::string cells(const widgets::Grid& grid, int column, std::initializer_list<int> rows) {
        std::string all;
        for (const int row : rows)
            all += (all.empty() ? "" : " ") + (grid.text(column, row).empty() ? "-" : grid.text(column, row));
        return all;
    }
    // Headers of columns 2 and up, the hidden ones in brackets.
    static std::string headers(const widgets::Grid& grid) {
        std::string all;
        for (int column = 2; column <= grid.columns(); ++column)
            all += (all.empty() ? "" : " ") +
                   (grid.hidden(column) ? "(" + grid.header(column) + ")" : grid.header(column));
        return all;
    }
    // Texts of a run of cells, a line for each row.
    static std::string table(const widgets::Grid& grid, const widgets::CellRange& range) {
        std::string all;
        for (int row = range.first_row; row <= range.last_row; ++row) {
            for (int column = range.first_column; column <= range.last_column; ++column)
                all += (column == range.first_column ? "" : "|") + grid.text(column, row);
            all += "\n";
        }
        return all;
    }
    // The next box is answered so; what it asked stands in asked().
    void answer(widgets::Answer answer) { desk.queue_answer(answer); }
    std::string asked() {
        std::string all;
        for (const auto& shown : desk.take_messages())
            all += shown.box.text + (shown.box.icon == widgets::Icon::question ? "?" : "") + "\n";
        return all;
    }
    // All rows of a select, a line each, a Null as "null".
    std::string stored(const std::string& select) {
        std::string all;
        for (const auto& row : folder_.run(session::Store::tax, select).rows) {
            std::string line;
            for (const session::Value& value : row)
                line += (line.empty() ? "" : "|") + (value.is_null() ? "null" : value.text());
            all += line + "\n";
        }
        return all;
    }
    void store(const std::string& statement) { folder_.run(session::Store::tax, statement); }

private:
    session::testing::DataFolder folder_;

protected:
    PaperlessDesk desk;
    session::Settings settings{folder() + "settings.toml"};
    session::Session session{{desk, settings, folder(), "", "DESK"}};
    widgets::Screens& screens = session.screens;
    std::vector<std::string> unanswered;
};

} // namespace levora::schedules
