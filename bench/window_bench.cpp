#include "desktop/desktop_run.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/screen_window.h"
#include "session/data_folder.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/headless_desk.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <cstdlib>
#include <memory>
#include <string>

// Windows: first paint beside that of an empty window with as many widgets, a key beside the edit alone.
// Each line is told beside the one that it is measured against; the program's own share is the difference.
//     build/release/bin/levora_window_bench 2>/dev/null
namespace levora::desktop {

namespace {

struct Client {
    Client() {
        folder.run(session::Store::assessee,
                   "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name) VALUES (17, 'A. Client')");
        run = std::make_unique<DesktopRun>(RunOptions{folder.path() + "/settings.toml", folder.path(),
                                                      folder.path(), "2014-2015 17 Individual x 0"},
                                           desk);
    }
    session::testing::DataFolder folder;
    widgets::HeadlessDesk desk;
    std::unique_ptr<DesktopRun> run;
};

template <class Kind> int count(const QWidget& window) {
    return static_cast<int>(window.findChildren<Kind*>().size());
}

// From the start of the program to the painted sheet.
void first_paint_of_the_sheet(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto client = std::make_unique<Client>();
        state.ResumeTiming();
        client->run->start();
        client->run->windows().find("frmWealthMain")->grab();
        QApplication::processEvents();
        state.PauseTiming();
        client.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(first_paint_of_the_sheet)->Unit(benchmark::kMillisecond);

// What a window of these widgets costs before it holds anything.
class EmptyWindow {
public:
    explicit EmptyWindow(const ScreenWindow& like)
        : lines_(count<QLineEdit>(like)), labels_(count<QLabel>(like)), buttons_(count<QPushButton>(like)),
          lists_(count<QComboBox>(like)), tables_(count<QTableView>(like)), size_(like.size()) {}

    [[nodiscard]] int widgets() const { return lines_ + labels_ + buttons_ + lists_ + tables_; }
    void paint() const {
        QWidget window;
        auto* layout = new QGridLayout(&window);
        int row = 0;
        const auto add = [&](int wanted, auto make) {
            for (int each = 0; each < wanted; ++each, ++row)
                layout->addWidget(make(), row / 4, row % 4);
        };
        add(lines_, [&] { return new QLineEdit(&window); });
        add(labels_, [&] { return new QLabel(QStringLiteral("Net Wealth"), &window); });
        add(buttons_, [&] { return new QPushButton(QStringLiteral("Assets"), &window); });
        add(lists_, [&] { return new QComboBox(&window); });
        add(tables_, [&] { return new QTableView(&window); });
        window.resize(size_);
        window.show();
        window.grab();
        QApplication::processEvents();
    }

private:
    int lines_, labels_, buttons_, lists_, tables_;
    QSize size_;
};

void first_paint_of_an_empty_window(benchmark::State& state) {
    Client client;
    client.run->start();
    const EmptyWindow empty(*client.run->windows().find("frmWealthMain"));
    for (auto _ : state)
        empty.paint();
    state.counters["widgets"] = empty.widgets();
}
BENCHMARK(first_paint_of_an_empty_window)->Unit(benchmark::kMillisecond);

// Every window that the sheet opens, from the click to the painted window, beside an empty one.
struct Opening {
    const char* button; // of the sheet
    const char* screen;
};
constexpr Opening openings[] = {
    {"cmdAssets", "frmImmovable"},          {"cmdDeemedAssets", "frmDeemedAsset"},
    {"cmdExemptedAsset", "frmAssetExempt"}, {"cmdformBA", "frmFormBA"},
    {"cmdChallan", "frmChallan282"},        {"cmdPreview", "frmRepPreview"},
};

void click_and_paint(Client& client, const Opening& opening) {
    widgets::Form& sheet = *client.run->program().session().screens.find("frmWealthMain");
    static_cast<widgets::Button&>(*sheet.find(opening.button)).click();
    client.run->windows().find(opening.screen)->window()->grab();
    QApplication::processEvents();
}
// A program of its own each time: a screen that is only hidden comes back for less.
void opening_of_a_window(benchmark::State& state) {
    const Opening& opening = openings[state.range(0)];
    for (auto _ : state) {
        state.PauseTiming();
        auto client = std::make_unique<Client>();
        client->run->start();
        state.ResumeTiming();
        click_and_paint(*client, opening);
        state.PauseTiming();
        client.reset();
        state.ResumeTiming();
    }
    state.SetLabel(opening.screen);
}
void empty_window_beside_it(benchmark::State& state) {
    const Opening& opening = openings[state.range(0)];
    Client client;
    client.run->start();
    click_and_paint(client, opening);
    const EmptyWindow empty(*client.run->windows().find(opening.screen));
    for (auto _ : state)
        empty.paint();
    state.SetLabel(opening.screen);
    state.counters["widgets"] = empty.widgets();
}
BENCHMARK(opening_of_a_window)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(empty_window_beside_it)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

// One figure into a property among 1,000, to the painted cells.
void key_to_painted_cells(benchmark::State& state) {
    Client client;
    client.run->start();
    client.run->program().session().screens.show("frmImmovable");
    ScreenWindow& window = *client.run->windows().find("frmImmovable");
    auto& grid = static_cast<widgets::Grid&>(*window.form()->find("sprImmovable"));
    static_cast<widgets::ListField&>(*window.form()->find("cboNumberOfProperty"))
        .type(std::to_string(state.range(0)));
    auto& view = *window.findChild<GridView*>(QStringLiteral("sprImmovable"));
    QApplication::processEvents();
    int figure = 100000;
    for (auto _ : state) {
        view.commit(2, 12, std::to_string(++figure));
        QApplication::processEvents();
    }
    benchmark::DoNotOptimize(grid.text(2, 29));
}
BENCHMARK(key_to_painted_cells)->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace levora::desktop

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    levora::desktop::apply_look(application, levora::desktop::Shade::light);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
