#include "schedules/assets_screen.h"
#include "schedules/property_grid.h"
#include "widgets/headless_desk.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

using namespace levora;
using namespace levora::schedules;

namespace {

// One assessee with so many let-out properties, stored, on a folder of its own.
class Assets {
public:
    explicit Assets(int properties) {
        session::create_store(folder(), session::Store::tax);
        session_.DataFolder = folder();
        session_.TaxDb.open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + folder() + "LVWTax.mdb");
        session_.AssesseeNo = 17;
        session_.CurrentFY = "2014-2015";
        session_.screens.define("frmImmovable", [this] { return std::make_unique<frmImmovable>(session_); });
        own(properties);
    }
    ~Assets() { std::filesystem::remove_all(path_); }

    frmImmovable& screen() { return session_.screens.get<frmImmovable>("frmImmovable"); }
    void close() { session_.screens.unload("frmImmovable"); }

private:
    std::string folder() { return path_.string() + "/"; }
    void own(int properties) {
        ImmovableSchedule& schedule = screen().immovable;
        schedule.cboNumberOfProperty.type(number_text(properties));
        for (int column = 2; column <= properties + 1; ++column) {
            schedule.sprImmovable.type(column, PropertyRow::premises, "Park View");
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
    session::Session session_{{desk_, settings_, folder(), "", "DESK"}};
};

// One typed figure of a property, through its valuation and the total to the summary.
void edit_of_a_property(benchmark::State& state) {
    const int properties = static_cast<int>(state.range(0));
    Assets assets(properties);
    widgets::Grid& grid = assets.screen().immovable.sprImmovable;
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        grid.type(properties + 1, PropertyRow::annual_value, odd ? "650000" : "600000");
        benchmark::DoNotOptimize(assets.screen().txtTotalNetAmount.value());
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
