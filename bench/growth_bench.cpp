#include "computation/wealth_sheet.h"
#include "program/program.h"
#include "return/ereturn.h"
#include "return/form_ba_writer.h"
#include "return/return_screen.h"
#include "return/windows_1252.h"
#include "schedules/assets_screen.h"
#include "schedules/property_grid.h"
#include "session/fresh_start.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <string>

using namespace levora;
using computation::frmWealthMain;
using form_ba::frmFormBA;
using schedules::frmImmovable;

namespace {

// A client with as many properties, plots, firms and prepaid taxes as told, stored. Each step below must
// take no more than in proportion to them: the lines "BigO" say N or less.
//     build/release/bin/levora_bench --benchmark_filter=growth
class Client {
public:
    explicit Client(benchmark::State& state) : rows_(static_cast<int>(state.range(0))) {
        state.SetComplexityN(rows_);
        if (!program_.start()) throw std::runtime_error("the program did not start");
        fill_assets();
        fill_prepaid();
        save();
        if (!fresh_.boxes().empty()) state.SkipWithError("a box came up");
    }

    frmWealthMain& sheet() { return session().screens.get<frmWealthMain>("frmWealthMain"); }
    frmImmovable& assets() { return session().screens.get<frmImmovable>("frmImmovable"); }
    frmFormBA& form() { return session().screens.get<frmFormBA>("frmFormBA"); }
    session::Session& session() { return program_.session(); }
    [[nodiscard]] int rows() const { return rows_; }

    void save() {
        assets().SaveAssetComputation();
        sheet().cmdSave1.click();
        session().commit_all();
    }
    std::string document() {
        session().XmlIndent = 0;
        session().XmlTagTop = 0;
        form_ba::eReturn xml(session());
        form_ba::write_document(xml, form(), session());
        return form_ba::to_windows_1252(xml.text());
    }

private:
    void fill_assets() {
        schedules::ImmovableSchedule& schedule = assets().immovable;
        schedule.cboNumberOfProperty.type(number_text(rows_));
        widgets::Grid& land = assets().urban_land.sprUrbanLand;
        widgets::Grid& firms = assets().firm.sprAssetInterest;
        land.set_rows(rows_);
        firms.set_rows(rows_);
        for (int row = 1; row <= rows_; ++row) {
            schedule.sprImmovable.set_text(row + 1, schedules::PropertyRow::premises, "Park View");
            schedule.sprImmovable.set_text(row + 1, schedules::PropertyRow::annual_value, "600000");
            land.set_text(schedules::LandColumn::description, row, "Plot at the river");
            land.set_text(schedules::LandColumn::valuation, row, "2500000");
            firms.set_text(schedules::FirmColumn::name, row, "Firm");
            firms.set_text(schedules::FirmColumn::value, row, "750000");
        }
    }
    void fill_prepaid() {
        using computation::PrepaidColumn;
        widgets::Grid& grid = sheet().sprSATax;
        if (grid.rows() < rows_) grid.set_rows(rows_);
        for (int row = 1; row <= rows_; ++row) {
            grid.set_text(PrepaidColumn::bank_name, row, "Bank of the Town");
            grid.set_text(PrepaidColumn::date_of_deposit, row, "15/07/2014");
            grid.set_text(PrepaidColumn::amount, row, "1500");
        }
    }

    session::testing::FreshStart fresh_;
    program::Program program_{{fresh_.desk, fresh_.settings, fresh_.folder.path(),
                               "2014-2015 17 Individual x 0", fresh_.machine_name}};
    int rows_;
};

// One prepaid tax typed: the sum of all of them, and the balance.
void growth_of_the_chain(benchmark::State& state) {
    Client client(state);
    frmWealthMain& sheet = client.sheet();
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        sheet.sprSATax.type(computation::PrepaidColumn::amount, client.rows(), odd ? "1600" : "1500");
        sheet.txtLessDebt.set_text(odd ? "100000" : "200000");
        benchmark::DoNotOptimize(sheet.txtBalanceTaxIntPayable.text().data());
    }
}

// One figure of the last property typed, through its valuation and the totals.
void growth_of_the_schedules(benchmark::State& state) {
    Client client(state);
    frmImmovable& assets = client.assets();
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        assets.immovable.sprImmovable.type(client.rows() + 1, schedules::PropertyRow::annual_value,
                                           odd ? "650000" : "600000");
        benchmark::DoNotOptimize(assets.txtTotalNetAmount.value());
    }
}

void growth_of_the_fill(benchmark::State& state) {
    Client client(state);
    for (auto _ : state)
        client.form().FillFromSchedules();
}

void growth_of_the_document(benchmark::State& state) {
    Client client(state);
    client.form().FillFromSchedules();
    for (auto _ : state)
        benchmark::DoNotOptimize(client.document().data());
}

void growth_of_the_save(benchmark::State& state) {
    Client client(state);
    for (auto _ : state)
        client.save();
}

void over_the_rows(benchmark::internal::Benchmark* each) {
    each->RangeMultiplier(10)->Range(1, 1000)->Unit(benchmark::kMicrosecond)->Complexity();
}
BENCHMARK(growth_of_the_chain)->Apply(over_the_rows);
BENCHMARK(growth_of_the_schedules)->Apply(over_the_rows);
BENCHMARK(growth_of_the_fill)->Apply(over_the_rows);
BENCHMARK(growth_of_the_document)->Apply(over_the_rows);
BENCHMARK(growth_of_the_save)->Apply(over_the_rows);

} // namespace
