#include "computation/wealth_sheet.h"
#include "schedules/assets_screen.h"
#include "schedules/property_grid.h"
#include "widgets/headless_desk.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

using namespace levora;
using namespace levora::schedules;

namespace {

// A started program with one assessee and so many properties, stored, on a folder of its own.
class Assets {
public:
    explicit Assets(int properties) {
        for (const session::Store store : session::all_stores)
            session::create_store(folder(), store);
        settings_.hold(session::registry::shared, "LVDBPath", folder());
        screens().define("frmWealthMain",
                         [this] { return std::make_unique<computation::frmWealthMain>(session_); });
        screens().define("frmImmovable", [this] { return std::make_unique<frmImmovable>(session_); });
        screens().show("frmWealthMain");
        if (screens().ended()) throw std::runtime_error("the program did not start");
        own(properties);
    }
    ~Assets() { std::filesystem::remove_all(path_); }

    frmImmovable& screen() { return screens().get<frmImmovable>("frmImmovable"); }
    computation::frmWealthMain& sheet() { return screens().get<computation::frmWealthMain>("frmWealthMain"); }
    void close() { screen().leave(); }

private:
    widgets::Screens& screens() { return session_.screens; }
    std::string folder() { return path_.string() + "/"; }
    void own(int properties) {
        ImmovableSchedule& schedule = screen().immovable;
        schedule.cboNumberOfProperty.type(number_text(properties));
        for (int column = 2; column <= properties + 1; ++column) {
            for (const int row :
                 {PropertyRow::flat, PropertyRow::premises, PropertyRow::road, PropertyRow::area})
                schedule.sprImmovable.set_text(column, row, "Park View");
            schedule.sprImmovable.set_text(column, PropertyRow::annual_value, "600000");
            schedule.sprImmovable.set_text(column, PropertyRow::cost, "4000000");
        }
        screen().SaveAssetComputation();
        session_.commit_all();
        close();
    }

    std::filesystem::path path_ = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "levora-bench-XXXXXX").string();
        return std::filesystem::path(mkdtemp(pattern.data()));
    }();
    widgets::HeadlessDesk desk_;
    session::Settings settings_{folder() + "settings.toml"};
    session::Session session_{{desk_, settings_, folder(), "2014-2015 17 Individual x 0", "DESK"}};
};

// One typed figure of a property, through its valuation, the totals and the chain down to the tax.
void edit_of_a_property(benchmark::State& state) {
    const int properties = static_cast<int>(state.range(0));
    Assets assets(properties);
    frmImmovable& screen = assets.screen();
    computation::frmWealthMain& sheet = assets.sheet();
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        screen.immovable.sprImmovable.type(properties + 1, PropertyRow::annual_value,
                                           odd ? "650000" : "600000");
        sheet.txtAssetsSec2ea.set_text(screen.txtTotalNetAmount.text());
        benchmark::DoNotOptimize(sheet.txtWealthTaxLiability.value());
    }
}
BENCHMARK(edit_of_a_property)->Arg(1)->Arg(50)->Arg(1000)->Unit(benchmark::kMicrosecond);

// The screen made and filled from the store.
void opening_of_the_screen(benchmark::State& state) {
    Assets assets(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(assets.screen().txtTotalNetAmount.value());
        state.PauseTiming();
        assets.close();
        state.ResumeTiming();
    }
}
BENCHMARK(opening_of_the_screen)->Arg(1)->Arg(50)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
