#include "computation/wealth_sheet.h"
#include "return/ereturn.h"
#include "return/form_ba_reader.h"
#include "return/form_ba_writer.h"
#include "return/return_check.h"
#include "return/return_screen.h"
#include "return/windows_1252.h"
#include "return/xml_document.h"
#include "widgets/headless_desk.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

using namespace levora;
using namespace levora::form_ba;

namespace {

constexpr int ordinary = 3; // rows a grid
constexpr int large = 1000;

// A started program with one assessee on a folder of its own.
class Returns {
public:
    Returns() {
        for (const session::Store store : session::all_stores)
            session::create_store(folder(), store);
        settings_.hold(session::registry::shared, "LVDBPath", folder());
        auto& screens = session_.screens;
        screens.define("frmWealthMain",
                       [this] { return std::make_unique<computation::frmWealthMain>(session_); });
        screens.define("frmFormBA", [this] { return std::make_unique<frmFormBA>(session_); });
        screens.show("frmWealthMain");
    }
    ~Returns() { std::filesystem::remove_all(path_); }

    frmFormBA& form() { return session_.screens.get<frmFormBA>("frmFormBA"); }
    session::Session& session() { return session_; }

    // So many rows in every schedule table.
    void own(int rows) {
        const auto add = [&](const std::string& table, const std::string& columns,
                             const std::string& values) {
            for (int row = 1; row <= rows; ++row)
                session_.TaxDb.execute("INSERT INTO [" + table + "] (AssesseeNo, FY, " + columns +
                                       ") VALUES (17, '2014-2015', " + values + ")");
        };
        const std::string place =
            "Flat, Premises, Road, Area, City, State, Country, pincode, survey, AssetType";
        const std::string there =
            "'1', 'Tower', 'MG Road', 'Camp', 'Pune', 'Goa', 'INDIA', '411001', 'S1', 0";
        add("PrePaidTaxes", "BSRCode, DateOfPayment, ChallanSrNo, Amount",
            "'0123456', #07/15/2014#, '7', 1000");
        add("Immovable Property Details", "NetValueOfProperty, DebtOwed, NetValue, " + place,
            "5, 1, 4, " + there);
        add("Urban Land", "ValueOfUrbanLand, DebtOwed, NetAmount, " + place, "5, 1, 4, " + there);
        add("InterestInFirmOrAOP", "AssetType, NameAddressofFirm, ProfitSharingRatio, ValueOfInterest",
            "0, 'Firm', 0.5, 60");
        add("jewellery", "ItemDesc, Unit, TotalValOfJewellery, NetAmt", "'Ring', 'Grams', 900, 900");
        add("PreciousStones", "JwelleryDetailNo, Description, Weight, ValueOfStones", "1, 'Opal', '2', 15");
        add("AssetUnderExemption", "ExemptedAssetDesc, ExemptedAmount, ResonsForClaim",
            "'House', 700, 'One'");
        session_.commit_all();
    }

    // A return with so many rows in every grid that can grow.
    void enter(int rows) {
        frmFormBA& f = form();
        const auto fill = [rows](widgets::Grid& grid, std::initializer_list<const char*> texts) {
            grid.set_rows(std::max(grid.rows(), rows));
            for (int row = 1; row <= rows; ++row)
                for (int column = 1; const char* text : texts)
                    grid.set_text(column++, row, text);
        };
        fill(f.sprScheduleBTP, {"0123456", "15/07/2014", "7", "1000"});
        fill(f.sprImmovableProperty, {"Building", "House", "1", "Tower", "MG Road", "Camp", "Pune", "GOA",
                                      "INDIA", "411001", "S1", "5000", "100"});
        fill(f.sprMovableProperty, {"Motor Cars", "40", "15"});
        fill(f.sprJewellery, {"Ring", "Grams", "12.5", "11", "Details", "20", "900", "100"});
        fill(f.sprPreciousStone, {"1", "Opal", "2", "15"});
        for (int row = 1; row <= f.sprPreciousStone.rows(); ++row)
            f.sprPreciousStone.set_value(stone_column::item, row, row);
        fill(f.sprAssetInterest, {"Firm", "Nagpur", "AAAFL1234C", "B", "33.33", "60", "10"});
        fill(f.sprAssetsClaimedExempt, {"House", "700", "50", "One house"});
        fill(f.sprScheduleOPR, {"AgriculturalLand", "10", "Farm", "3C", "", "", "", "Karad", "Goa"});
    }

    std::string document() {
        session_.XmlIndent = 0;
        session_.XmlTagTop = 0;
        eReturn xml(session_);
        write_document(xml, form(), session_);
        return to_windows_1252(xml.text());
    }

private:
    std::string folder() { return path_.string() + "/"; }

    std::filesystem::path path_ = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "levora-bench-XXXXXX").string();
        return std::filesystem::path(mkdtemp(pattern.data()));
    }();
    widgets::HeadlessDesk desk_;
    session::Settings settings_{folder() + "settings.toml"};
    session::Session session_{{desk_, settings_, folder(), "2014-2015 17 Individual x 0", "DESK"}};
};

// The button "Fill From Computation" of a client with so many rows in every schedule: below 30 ms.
void fill_of_the_return(benchmark::State& state) {
    Returns returns;
    frmFormBA& form = returns.form();
    returns.own(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        form.FillFromAssessee();
        form.FillFromSchedules();
    }
    if (form.sprAssetsClaimedExempt.data_rows() != state.range(0))
        state.SkipWithError("the fill is not whole");
}
BENCHMARK(fill_of_the_return)->Arg(ordinary)->Arg(large)->Unit(benchmark::kMicrosecond);

// The document of the return, without the disk: below 0.2 ms, and 20 ms with 1,000 rows a grid.
void write_of_the_document(benchmark::State& state) {
    Returns returns;
    returns.enter(static_cast<int>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes += returns.document().size();
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(write_of_the_document)->Arg(ordinary)->Arg(large)->Unit(benchmark::kMicrosecond);

// The same document, parsed and put into the screen: with the check below 0.5 ms, below 60 ms with
// 1,000 rows a grid.
void read_of_the_document(benchmark::State& state) {
    Returns returns;
    returns.enter(static_cast<int>(state.range(0)));
    const std::string bytes = returns.document();
    for (auto _ : state) {
        const std::optional<XmlDocument> document = XmlDocument::parse(bytes);
        ReadFormBAXml(returns.form(), *document);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(read_of_the_document)->Arg(ordinary)->Arg(large)->Unit(benchmark::kMicrosecond);

// The whole check: document, schema, and what no schema sees.
void check_of_the_return(benchmark::State& state) {
    Returns returns;
    returns.enter(static_cast<int>(state.range(0)));
    const Schema schema(returns.session().program_folder);
    for (auto _ : state)
        benchmark::DoNotOptimize(check_return(returns.form(), returns.session(), schema));
}
BENCHMARK(check_of_the_return)->Arg(ordinary)->Arg(large)->Unit(benchmark::kMicrosecond);

} // namespace
