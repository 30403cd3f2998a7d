#pragma once

#include "program/program.h"

#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/headless_desk.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace levora::program::testing {

// A person who saves, says yes, and presses the button of so many error reports before dismissing them.
class Person : public widgets::HeadlessDesk {
public:
    int presses = 0;
    int reports = 0;

    std::optional<widgets::Answer> to_replace; // what stands in the store unread
    std::string told;                          // the boxes, a line each

    std::optional<widgets::Answer> show_message(const widgets::MessageBox& box) override {
        const bool report = box.title == "Levora Wealth Tax - Error";
        told += (report ? "Error: " : "") + box.text.substr(0, box.text.find('\n')) + "\n";
        if (box.text.find("were not read") != std::string::npos) return to_replace;
        if (!report) {
            const auto& offered = box.buttons;
            const bool yes = std::find(offered.begin(), offered.end(), widgets::Answer::yes) != offered.end();
            return yes ? widgets::Answer::yes : widgets::Answer::ok;
        }
        ++reports;
        if (presses-- > 0) return box.buttons.front();
        return std::nullopt;
    }
};

// One run of the program on the sample client.
class SampleRun {
public:
    explicit SampleRun(const std::string& folder)
        : folder_(folder), settings_(folder + "/settings.toml"),
          program_(std::make_unique<Program>(
              session::Surroundings{person, settings_, folder, "2014-2015 101 Individual x 0", "DESK"})) {
        person.set_today({2014, 9, 15});
        settings_.hold(session::registry::shared, "LVDBPath", folder);
    }
    bool start() { return program_->start(); }
    [[nodiscard]] bool running() const { return program_->running(); }
    [[nodiscard]] session::Session& session() { return program_->session(); }
    void end() { program_.reset(); }

    template <class T> T& control(const char* screen, const char* name) {
        return dynamic_cast<T&>(*program_->session().screens.load(screen).find(name));
    }
    widgets::Grid& grid(const char* screen, const char* name) { return control<widgets::Grid>(screen, name); }
    void type(const char* screen, const char* name, const std::string& text) {
        control<widgets::TextField>(screen, name).type(text);
    }
    void click(const char* screen, const char* name) { control<widgets::Button>(screen, name).click(); }
    void choose_file() { person.queue_file(folder_ + "/out.xml"); }

    Person person;

private:
    std::string folder_;
    session::Settings settings_;
    std::unique_ptr<Program> program_;
};

struct Save {
    const char* name;
    void (*enter)(SampleRun& run, const std::string& figure);
    void (*save)(SampleRun& run);
    // Wanted: a setting that can't be written is told to nobody.
    bool told = true;
};

inline void enter_sheet(SampleRun& run, const std::string& figure) {
    run.type("frmWealthMain", "txtLessDebt", figure);
    for (int row = 1; row <= 30; ++row)
        run.grid("frmWealthMain", "sprSATax").type(6, row, figure);
}

inline void enter_return(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdformBA");
    run.type("frmFormBA", "txtFirstName", "F" + figure);
    run.choose_file();
}

inline void enter_assets(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdAssets");
    run.grid("frmImmovable", "sprImmovable").type(2, 28, figure);
    run.grid("frmImmovable", "sprUrbanLand").type(12, 1, figure);
}

inline void enter_deemed(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdDeemedAssets");
    for (int row = 1; row <= 8; ++row)
        run.grid("frmDeemedAsset", "sprDeemedAsset").type(6, row, figure);
}

inline void enter_business(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdAssets");
    run.click("frmImmovable", "cmdBusinessAsset");
    for (int row = 1; row <= 8; ++row) {
        run.grid("frmBusinessAssets", "sprAssetOfBusiness").choose(1, row, "Gold");
        run.grid("frmBusinessAssets", "sprAssetOfBusiness").type(2, row, figure);
    }
}

inline void enter_exempted(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdExemptedAsset");
    for (int row = 1; row <= 5; ++row)
        run.grid("frmAssetExempt", "sprAssetExempt").type(2, row, figure);
}

inline void enter_challan(SampleRun& run, const std::string& figure) {
    run.click("frmWealthMain", "cmdChallan");
    run.control<widgets::ColumnList>("frmChallan282", "cboChallanList").choose(1); // the first loads nothing
    run.type("frmChallan282", "txtIncomeTax", figure);
    run.type("frmChallan282", "txtInterest", figure);
}

inline const Save saves[] = {
    {"sheet", enter_sheet, [](SampleRun& run) { run.click("frmWealthMain", "cmdSave1"); }},
    {"exit", enter_sheet, [](SampleRun& run) { run.click("frmWealthMain", "cmdMainExit"); }},
    {"assets", enter_assets, [](SampleRun& run) { run.click("frmImmovable", "cmdOK"); }},
    {"deemed", enter_deemed, [](SampleRun& run) { run.click("frmDeemedAsset", "cmdDeemedAssetOk"); }},
    {"business", enter_business,
     [](SampleRun& run) { run.click("frmBusinessAssets", "cmdBusinessAssetSave"); }},
    {"exempted", enter_exempted, [](SampleRun& run) { run.click("frmAssetExempt", "cmdOK"); }},
    {"challan", enter_challan, [](SampleRun& run) { run.click("frmChallan282", "cmdSave"); }},
    {"XML file", enter_return, [](SampleRun& run) { run.click("frmFormBA", "btnGenerate"); }},
    {"working copy", enter_return, [](SampleRun& run) { run.click("frmFormBA", "cmdSave"); }},
    {"settings", [](SampleRun& run, const std::string&) { run.click("frmWealthMain", "cmdChallan"); },
     [](SampleRun& run) { run.type("frmChallan282", "txtTopMargin", "27"); }, false},
};

} // namespace levora::program::testing
