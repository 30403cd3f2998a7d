#include "challan/challan282.h"
#include "widgets/headless_desk.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

using namespace levora;

namespace {

// One assessee with so many stored challans, in a folder of their own.
class Challans {
public:
    explicit Challans(int count) {
        for (const session::Store store : {session::Store::assessee, session::Store::forms})
            session::create_store(path_.string(), store);
        session_.AssesseeDb.open("Data Source=" + path_.string() + "/Assessee.mdb;");
        session_.FormsDb.open("Data Source=" + path_.string() + "/LVForms.mdb;");
        session_.AssesseeNo = 17;
        session_.CurrentFY = "2014-2015";
        desk_.set_today({2014, 9, 15});
        session_.screens.define("frmChallan282",
                                [this] { return std::make_unique<challan::frmChallan282>(session_); });
        store(count);
    }
    ~Challans() { std::filesystem::remove_all(path_); }

    challan::frmChallan282& screen() { return session_.screens.get<challan::frmChallan282>("frmChallan282"); }
    void close() { session_.screens.unload("frmChallan282"); }

private:
    void store(int count) {
        session::RowSet rows = session_.FormsDb.open_rows("Challan", session::RowSetUse::update);
        for (int number = 1; number <= count; ++number) {
            rows.add_new();
            rows.set("AssesseeNo", 17);
            rows.set("AY", "20" + std::to_string(10 + number % 5) + "-20" + std::to_string(11 + number % 5));
            rows.set("ChallanNo", "ITNS282");
            rows.set("ChallanDate", iso_date({2010 + number % 5, 1 + number % 12, 1 + number % 28}));
            rows.set("TypeOfPayment", number % 2 == 0 ? "100" : "300");
            rows.set("InstallmentNo", 1 + number % 4);
            rows.set("IncomeTax", number * 1000);
            rows.set("Total", number * 1000);
            rows.update();
        }
        rows.close();
        session_.FormsDb.commit();
    }

    std::filesystem::path path_ = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "levora-bench-XXXXXX").string();
        return std::filesystem::path(mkdtemp(pattern.data()));
    }();
    widgets::HeadlessDesk desk_;
    session::Settings settings_{path_.string() + "/settings.toml"};
    session::Session session_{{desk_, settings_, path_.string(), "2014-2015 17 Individual x 0", "DESK"}};
};

// The screen opened with the list of all challans of one client.
void opening_of_the_challans(benchmark::State& state) {
    Challans challans(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(challans.screen().cboChallanList.count());
        state.PauseTiming();
        challans.close();
        state.ResumeTiming();
    }
}
BENCHMARK(opening_of_the_challans)->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);

// A stored challan picked from the list and shown.
void choice_of_a_challan(benchmark::State& state) {
    Challans challans(static_cast<int>(state.range(0)));
    challan::frmChallan282& screen = challans.screen();
    int row = 0;
    for (auto _ : state)
        screen.cboChallanList.choose(++row % screen.cboChallanList.count());
}
BENCHMARK(choice_of_a_challan)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
