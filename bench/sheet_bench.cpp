#include "computation/wealth_sheet.h"
#include "program/program.h"
#include "session/common_services.h"
#include "session/fresh_start.h"

#include <benchmark/benchmark.h>

#include <sqlite3.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>

using namespace levora;
using computation::frmWealthMain;
using computation::PrepaidColumn;
using session::testing::FreshStart;

namespace {

constexpr const char* call = "2014-2015 17 Individual x 0";
constexpr int prepaid_rows = 500;

// The whole program on a data folder of its own.
class Run {
public:
    Run() { start(); }

    void start() {
        program_.reset();
        program_ = std::make_unique<program::Program>(
            session::Surroundings{fresh.desk, fresh.settings, fresh.folder.path(), call, fresh.machine_name});
        if (!program_->start()) throw std::runtime_error("the program did not start");
    }
    frmWealthMain& sheet() { return program_->session().screens.get<frmWealthMain>("frmWealthMain"); }

    void fill_prepaid() {
        widgets::Grid& grid = sheet().sprSATax;
        for (int row = 1; row <= prepaid_rows; ++row) {
            grid.set_text(PrepaidColumn::bank_name, row, "Bank of the Town");
            grid.set_text(PrepaidColumn::bank_branch, row, "Market Road");
            grid.set_text(PrepaidColumn::bsr_code, row, "0001234");
            grid.set_text(PrepaidColumn::date_of_deposit, row, "15/07/2014");
            grid.set_text(PrepaidColumn::challan_number, row, "00012");
            grid.set_text(PrepaidColumn::amount, row, "1500");
        }
    }

    FreshStart fresh;

private:
    std::unique_ptr<program::Program> program_;
};

// A debt typed, and all that follows of it down to the balance; late, so that there is interest too.
void edit_of_the_debt(benchmark::State& state) {
    Run run;
    frmWealthMain& sheet = run.sheet();
    sheet.txtAssetsSec2ea.set_text("4512349");
    sheet.mskDueDate.type("31/07/2014");
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        sheet.txtLessDebt.type(odd ? "100000.25" : "220000.5");
        benchmark::DoNotOptimize(sheet.txtBalanceTaxIntPayable.text().data());
    }
}
BENCHMARK(edit_of_the_debt)->Unit(benchmark::kMicrosecond);

// Its limit: the same figures worked out and put into texts with no fields between.
void edit_of_the_debt_without_fields(benchmark::State& state) {
    std::array<std::string, 8> texts;
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        texts[0] = odd ? "100000.25" : "220000.5";
        texts[1] = number_text(4512349 - val(texts[0]));
        texts[2] = number_text(session::RoundToHundred(to_double(texts[1])));
        texts[3] = number_text(val(texts[2]) - 3000000);
        texts[4] = number_text(val(texts[3]) * 0.01);
        texts[5] = number_text(round_half_even(val(texts[4]) * 0.01 * 2));
        texts[6] = number_text(val(texts[4]) + val(texts[5]));
        texts[7] = number_text(val(texts[6]));
        benchmark::DoNotOptimize(texts[7].data());
    }
}
BENCHMARK(edit_of_the_debt_without_fields)->Unit(benchmark::kMicrosecond);

// The command line, four stores, the sheet loaded; and the end of the run before it.
void start_to_a_loaded_sheet(benchmark::State& state) {
    Run run;
    run.sheet().txtAssetsSec2ea.set_text("4512349");
    run.sheet().cmdSave1.click();
    for (auto _ : state)
        run.start();
}
BENCHMARK(start_to_a_loaded_sheet)->Unit(benchmark::kMillisecond);

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

Database open_bare(const std::string& file) {
    sqlite3* database = nullptr;
    if (sqlite3_open(file.c_str(), &database) != SQLITE_OK) throw std::runtime_error("no store " + file);
    return Database(database);
}

void run_bare(sqlite3* database, const char* statement) {
    if (sqlite3_exec(database, statement, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
}

// Its limit: the four files opened by the engine alone, and one row read.
void start_of_the_bare_engine(benchmark::State& state) {
    const session::testing::DataFolder folder;
    for (auto _ : state) {
        std::array<Database, 4> opened;
        for (std::size_t i = 0; const session::Store store : session::all_stores)
            opened.at(i++) = open_bare(folder.file(store));
        run_bare(opened[0].get(), "SELECT * FROM NetWealthComputation");
        run_bare(opened[0].get(), "SELECT * FROM PrePaidTaxes");
        run_bare(opened[1].get(), "SELECT Assessee_Name FROM AssesseeInfo");
        run_bare(opened[2].get(), "SELECT AuditRetDueDate FROM AYRetDate");
    }
}
BENCHMARK(start_of_the_bare_engine)->Unit(benchmark::kMillisecond);

void save_with_500_prepaid_rows(benchmark::State& state) {
    Run run;
    run.sheet().txtAssetsSec2ea.set_text("4512349");
    run.fill_prepaid();
    for (auto _ : state)
        run.sheet().cmdSave1.click();
    if (!run.fresh.boxes().empty()) state.SkipWithError("the save reported an error");
}
BENCHMARK(save_with_500_prepaid_rows)->Unit(benchmark::kMillisecond);

// Its limit: the same rows in one transaction of the engine alone.
void bare_transaction_of_500_rows(benchmark::State& state) {
    const session::testing::DataFolder folder;
    const Database database = open_bare(folder.file(session::Store::tax));
    run_bare(database.get(), "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database.get(),
                       "INSERT INTO PrePaidTaxes (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, "
                       "DateOfPayment, ChallanSrNo, Amount) VALUES (17, '2014-2015', ?, ?, ?, ?, ?, ?)",
                       -1, &insert, nullptr);
    const std::array<const char*, 5> texts{"Bank of the Town", "Market Road", "0001234", "2014-07-15",
                                           "00012"};
    for (auto _ : state) {
        run_bare(database.get(), "BEGIN IMMEDIATE");
        run_bare(database.get(), "DELETE FROM PrePaidTaxes WHERE AssesseeNo = 17 AND FY = '2014-2015'");
        for (int row = 0; row < prepaid_rows; ++row) {
            for (int place = 0; place < 5; ++place)
                sqlite3_bind_text(insert, place + 1, texts.at(static_cast<std::size_t>(place)), -1,
                                  SQLITE_STATIC);
            sqlite3_bind_double(insert, 6, 1500);
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        run_bare(database.get(), "COMMIT");
    }
    sqlite3_finalize(insert);
}
BENCHMARK(bare_transaction_of_500_rows)->Unit(benchmark::kMillisecond);

} // namespace
