#include "document/report.h"
#include "document/report_files.h"
#include "paper/output.h"
#include "paper/pages.h"
#include "program/program.h"
#include "reports/preview_screens.h"
#include "session/data_store.h"
#include "widgets/fields.h"
#include "widgets/headless_desk.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include <stdlib.h>

using namespace levora;

namespace {

std::string program_folder() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

document::Report report_of(const std::string& name, int schedule_rows) {
    document::Report report(document::open_layout(program_folder(), name));
    for (const document::Section& section : report.layout().sections) {
        for (const document::Block& block : section.blocks)
            for (const document::Element& element : block.elements)
                if (element.kind == document::ElementKind::object) report.set_text(element.name, "1234567");
        if (!section.table) continue;
        document::RowTable rows;
        for (int column = 1; column <= 13; ++column)
            rows.columns.push_back("Col" + std::to_string(column));
        for (int row = 0; row < schedule_rows; ++row)
            rows.rows.emplace_back(13, session::Value("Flat 12, 1234567"));
        report.set_rows(section.table->subreport, rows);
    }
    return report;
}

// From the filled report to the file's bytes, the first page of the run being made already.
void to_pdf(benchmark::State& state, const document::Report& report) {
    int pages = 0;
    benchmark::DoNotOptimize(paper::pdf_of(paper::Pages(report)));
    for (auto _ : state) {
        const paper::Pages laid_out(report);
        benchmark::DoNotOptimize(paper::pdf_of(laid_out));
        pages = laid_out.count();
    }
    state.counters["pages"] = pages;
}

void statement_to_pdf(benchmark::State& state) { // aim: 12 ms
    to_pdf(state, report_of("RepWealthTax", 0));
}
BENCHMARK(statement_to_pdf)->Unit(benchmark::kMillisecond);

void form_bb_of_four_pages(benchmark::State& state) { // aim: 25 ms
    to_pdf(state, report_of("FormBB", 5));
}
BENCHMARK(form_bb_of_four_pages)->Unit(benchmark::kMillisecond);

void form_bb_with_200_schedule_rows(benchmark::State& state) { // aim: 100 ms
    to_pdf(state, report_of("FormBB", 25));                    // in each of eight schedules
}
BENCHMARK(form_bb_with_200_schedule_rows)->Unit(benchmark::kMillisecond);

void first_page_of_the_preview(benchmark::State& state) { // aim: 50 ms
    const document::Report report = report_of("FormBB", 5);
    for (auto _ : state) {
        const paper::Pages pages(report);
        constexpr double scale = 96 / 25.4;
        QImage image(794, 1123, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        pages.paint(painter, 1, scale);
    }
}
BENCHMARK(first_page_of_the_preview)->Unit(benchmark::kMillisecond);

void statements_of_100_clients(benchmark::State& state) { // aim: 2 s
    std::string folder = (std::filesystem::temp_directory_path() / "levora-bench-XXXXXX").string();
    folder = mkdtemp(folder.data());
    for (const session::Store store : session::all_stores)
        session::create_store(folder, store);
    for (int client = 1; client <= 100; ++client)
        session::run_statement(folder, session::Store::assessee,
                               "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, Status) VALUES (" +
                                   std::to_string(client) + ", 'Client', 0)");
    session::Settings settings(folder + "/settings.toml");
    settings.hold(session::registry::shared, "LVDBPath", folder);
    widgets::HeadlessDesk desk;
    for (auto _ : state)
        for (int client = 1; client <= 100; ++client) {
            program::Program program(
                session::Surroundings{desk, settings, program_folder(),
                                      "2014-2015 " + std::to_string(client) + " Individual x 0", ""});
            program.start();
            widgets::Screens& screens = program.session().screens;
            dynamic_cast<widgets::Button*>(screens.load("frmWealthMain").find("cmdPreview"))->click();
            const auto& preview = screens.get<reports::frmRepPreview>("frmRepPreview");
            paper::save_pdf(paper::Pages(*preview.report()), folder + "/" + std::to_string(client) + ".pdf");
        }
    std::filesystem::remove_all(folder);
}
BENCHMARK(statements_of_100_clients)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
