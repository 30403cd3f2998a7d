#include "paper/output.h"

#include "paper/pdf_information.h"
#include "paper/report_paper.h"
#include "widgets/failure.h"

#include <QBuffer>
#include <QFile>
#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <filesystem>

namespace levora::paper {

namespace {

constexpr double millimetres_per_inch = 25.4;
constexpr int pdf_resolution = 2540; // dots an inch: a hundredth of a millimetre
constexpr int printer_error = 482;

QPageLayout page_layout(const Pages& pages) {
    const QSizeF size = pages.size();
    const bool lying = size.width() > size.height();
    const QPageSize paper(lying ? size.transposed() : size, QPageSize::Millimeter, QString(),
                          QPageSize::FuzzyOrientationMatch);
    return {paper, lying ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)};
}

} // namespace

QByteArray pdf_of(const Pages& pages, const PagesTold& told) {
    ensure_application();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const QString title = QString::fromStdString(pages.title());
    {
        QPdfWriter writer(&buffer);
        writer.setPageLayout(page_layout(pages));
        writer.setResolution(pdf_resolution);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Levora Wealth Tax"));
        QPainter painter(&writer);
        for (int page = 1; page <= pages.count(); ++page) {
            if (told && !told(page - 1, pages.count())) return {};
            if (page > 1) writer.newPage();
            pages.paint(painter, page, writer.logicalDpiX() / millimetres_per_inch);
        }
    }
    add_author(bytes, title, QString::fromStdString(pages.author()));
    return bytes;
}

void save_pdf(const Pages& pages, const std::string& path, const PagesTold& told) {
    const QByteArray bytes = pdf_of(pages, told);
    if (bytes.isEmpty()) return;
    QSaveFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return;
    throw Failure(error_number::path_access, "Can't write " + path + ": " + file.errorString().toStdString());
}

namespace {

// Paints into an open printer; false when it was given up.
bool print_pages(const Pages& pages, QPrinter& printer, int copies, const PagesTold& told) {
    const QPageRanges chosen = printer.pageRanges();
    QPainter painter;
    if (!painter.begin(&printer)) {
        const std::string file = printer.outputFileName().toStdString();
        if (!file.empty()) throw Failure(error_number::path_access, "Can't write " + file);
        throw Failure(printer_error,
                      "The printer " + printer.printerName().toStdString() + " can't be used.");
    }
    int done = 0;
    for (int copy = 0; copy < copies; ++copy)
        for (int page = 1; page <= pages.count(); ++page) {
            if (!chosen.isEmpty() && !chosen.contains(page)) continue;
            if (told && !told(done, copies * pages.count())) {
                printer.abort();
                return false;
            }
            if (done++ > 0) printer.newPage();
            pages.paint(painter, page, printer.logicalDpiX() / millimetres_per_inch);
        }
    return true;
}

} // namespace

void print(const Pages& pages, QPrinter& printer, int copies, const PagesTold& told) {
    printer.setFullPage(true);
    printer.setPageLayout(page_layout(pages));
    printer.setDocName(QString::fromStdString(pages.title()));
    printer.setCopyCount(1); // copies are painted, as not every printer makes them
    if (copies < 1) return;
    const QString file = printer.outputFileName();
    if (file.isEmpty()) {
        print_pages(pages, printer, copies, told);
        return;
    }
    // A file stands under its own name only when it is whole.
    const QString part = file + QStringLiteral(".part");
    const std::string reason = "Can't write " + file.toStdString();
    bool whole = false;
    printer.setOutputFileName(part);
    try {
        whole = print_pages(pages, printer, copies, told);
    } catch (const Failure&) {
        printer.setOutputFileName(file);
        throw Failure(error_number::path_access, reason);
    }
    printer.setOutputFileName(file);
    std::error_code error;
    if (whole) std::filesystem::rename(part.toStdString(), file.toStdString(), error);
    if (!whole || error) QFile::remove(part);
    if (error) throw Failure(error_number::path_access, reason + ": " + error.message());
}

int page_count(const document::Report& report) {
    return Pages(report).count();
}

void save_pdf(const document::Report& report, const std::string& path) {
    save_pdf(Pages(report), path);
}

} // namespace levora::paper
