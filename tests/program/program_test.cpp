#include "program/program.h"

#include "computation/wealth_sheet.h"
#include "session/fresh_start.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace levora::program {

using computation::frmWealthMain;

class ProgramTest : public testing::Test, protected session::testing::FreshStart {
protected:
    bool start(const std::string& command_line = "2014-2015 17 Individual x 0") {
        program.reset();
        program = std::make_unique<Program>(
            session::Surroundings{desk, settings, folder.path(), command_line, machine_name});
        return program->start();
    }
    widgets::Screens& screens() { return program->session().screens; }
    frmWealthMain& sheet() { return screens().get<frmWealthMain>("frmWealthMain"); }
    std::string screens_shown() {
        std::string all;
        for (const widgets::Form* form : screens().loaded())
            if (form->visible()) all += (all.empty() ? "" : " ") + form->name();
        return all;
    }

    std::unique_ptr<Program> program;
};

TEST_F(ProgramTest, TheSheetIsTheHubOfAllScreens) {
    struct Opening {
        widgets::Button frmWealthMain::*button;
        const char* shown;
        int asset_type;
    };
    constexpr Opening openings[] = {
        {&frmWealthMain::cmdAssets, "frmImmovable", 0},
        {&frmWealthMain::cmdDeemedAssets, "frmDeemedAsset", 2},
        {&frmWealthMain::cmdExemptedAsset, "frmAssetExempt", 0},
        {&frmWealthMain::cmdformBA, "frmWealthMain frmITMDIParent frmFormBA", 0},
        {&frmWealthMain::cmdChallan, "frmWealthMain frmChallan282", 0},
        {&frmWealthMain::cmdPreview, "frmWealthMain frmRepPreview", 0},
    };
    for (const Opening& opening : openings) {
        ASSERT_TRUE(start());
        program->session().BusinessAssetFlag = opening.button == &frmWealthMain::cmdAssets;
        program->session().DeemedAssetFlag = opening.button == &frmWealthMain::cmdAssets;
        EXPECT_TRUE((sheet().*opening.button).click());
        EXPECT_EQ(screens_shown(), opening.shown);
        EXPECT_EQ(program->session().asset_type(), opening.asset_type) << opening.shown;
        EXPECT_EQ(boxes(), "");
    }
}

TEST_F(ProgramTest, ASecondStartSeesNothingOfTheFirst) {
    ASSERT_TRUE(start("2014-2015 17 Public_Company x 1"));
    sheet().txtLessDebt.type("5");
    sheet().cmdDeemedAssets.click();
    EXPECT_FALSE(start("2014-2015 0 Individual x 0") || program->running());
    ASSERT_TRUE(start() && program->running());
    EXPECT_EQ(screens_shown(), "frmWealthMain");
    EXPECT_EQ(sheet().txtLessDebt.text(), "");
    EXPECT_FALSE(program->session().IsCompanyAssessee || program->session().DeemedAssetFlag);
    sheet().cmdMainExit.click();
    EXPECT_FALSE(program->running());
}

} // namespace levora::program
