#include "program/program.h"
#include "schedules/assets_screen.h"
#include "session/fresh_start.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <string>

using namespace levora;
using namespace levora::schedules;
using session::testing::FreshStart;

namespace {

// A client of many assets, once or several times as many: 50 properties, 200 plots, 100 pieces of
// jewellery with five stones each, 200 firms. Limit: 30 ms to save and 30 ms to reload, without a
// window, and growing no worse than linearly.
class Client {
public:
    explicit Client(int times) : items_(100 * times) {
        program_ = std::make_unique<program::Program>(session::Surroundings{
            fresh_.desk, fresh_.settings, fresh_.folder.path(), call, fresh_.machine_name});
        if (!program_->start()) throw std::runtime_error("the program did not start");
        fill_properties(50 * times);
        fill_land(200 * times);
        fill_firms(200 * times);
        screen().jewellery.cboNumberOfJewellery.type(number_text(items_));
        for (int item = 1; item <= items_; ++item)
            fill_item(item);
        save();
    }

    frmImmovable& screen() { return session().screens.get<frmImmovable>("frmImmovable"); }
    void save() {
        screen().SaveAssetComputation();
        session().commit_all();
    }
    void reload() { screen().LoadAssetComputation(); }
    // Each item's sub-screen opened and left by its OK.
    void work_through_stones() {
        for (int item = 1; item <= items_; ++item) {
            screen().jewellery.sprJewellary.press(item + 1, JewelleryRow::stones);
            screen().jewellery.stones.btnOK.click();
        }
    }

private:
    static constexpr const char* call = "2014-2015 17 Individual x 0";

    session::Session& session() { return program_->session(); }
    void fill_properties(int count) {
        ImmovableSchedule& schedule = screen().immovable;
        schedule.cboNumberOfProperty.type(number_text(count));
        for (int column = 2; column <= count + 1; ++column) {
            schedule.sprImmovable.set_text(column, 3, "Park View");
            schedule.sprImmovable.set_text(column, 12, "600000");
        }
    }
    void fill_land(int count) {
        widgets::Grid& grid = screen().urban_land.sprUrbanLand;
        grid.set_rows(count);
        for (int row = 1; row <= count; ++row) {
            grid.set_text(LandColumn::description, row, "Plot at the river");
            grid.set_text(LandColumn::survey, row, "S " + number_text(row));
            grid.set_text(LandColumn::valuation, row, "2500000");
            grid.set_text(LandColumn::debt, row, "40000");
        }
    }
    void fill_firms(int count) {
        widgets::Grid& grid = screen().firm.sprAssetInterest;
        grid.set_rows(count);
        for (int row = 1; row <= count; ++row) {
            grid.set_text(FirmColumn::name, row, "Firm " + number_text(row));
            grid.set_text(FirmColumn::value, row, "750000");
        }
    }
    void fill_item(int item) {
        JewellerySchedule& schedule = screen().jewellery;
        schedule.sprJewellary.set_text(item + 1, JewelleryRow::description, "Necklace");
        schedule.sprJewellary.set_text(item + 1, JewelleryRow::value, "640000");
        schedule.sprJewellary.press(item + 1, JewelleryRow::stones);
        for (int row = 1; row <= 5; ++row) {
            schedule.stones.sprPreciousStone.set_text(StoneColumn::description, row, "Ruby");
            schedule.stones.sprPreciousStone.set_text(StoneColumn::value, row, "5000");
        }
        schedule.stones.btnOK.click();
    }

    FreshStart fresh_;
    int items_;
    std::unique_ptr<program::Program> program_;
};

void save_of_a_client(benchmark::State& state) {
    Client client(static_cast<int>(state.range(0)));
    for (auto _ : state)
        client.save();
}
BENCHMARK(save_of_a_client)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

void reload_of_a_client(benchmark::State& state) {
    Client client(static_cast<int>(state.range(0)));
    for (auto _ : state)
        client.reload();
}
BENCHMARK(reload_of_a_client)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

void stones_of_all_items(benchmark::State& state) {
    Client client(static_cast<int>(state.range(0)));
    for (auto _ : state)
        client.work_through_stones();
}
BENCHMARK(stones_of_all_items)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
