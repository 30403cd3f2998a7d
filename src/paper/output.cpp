#include "paper/output.h"

#include "paper/pdf_information.h"
#include "paper/report_paper.h"
#include "widgets/failure.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

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

QByteArray pdf_of(const Pages& pages) {
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
            if (page > 1) writer.newPage();
            pages.paint(painter, page, writer.logicalDpiX() / millimetres_per_inch);
        }
    }
    add_author(bytes, title, QString::fromStdString(pages.author()));
    return bytes;
}

void save_pdf(const Pages& pages, const std::string& path) {
    const QByteArray bytes = pdf_of(pages);
    QSaveFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return;
    throw Failure(error_number::path_access, "Can't write " + path + ": " + file.errorString().toStdString());
}

void print(const Pages& pages, QPrinter& printer, int copies) {
    printer.setFullPage(true);
    printer.setPageLayout(page_layout(pages));
    printer.setDocName(QString::fromStdString(pages.title()));
    printer.setCopyCount(1); // copies are painted, as not every printer makes them
    if (copies < 1) return;
    const QPageRanges chosen = printer.pageRanges();
    QPainter painter;
    if (!painter.begin(&printer)) {
        const std::string file = printer.outputFileName().toStdString();
        if (!file.empty()) throw Failure(error_number::path_access, "Can't write " + file);
        throw Failure(printer_error,
                      "The printer " + printer.printerName().toStdString() + " can't be used.");
    }
    bool first = true;
    for (int copy = 0; copy < copies; ++copy)
        for (int page = 1; page <= pages.count(); ++page) {
            if (!chosen.isEmpty() && !chosen.contains(page)) continue;
            if (!first) printer.newPage();
            first = false;
            pages.paint(painter, page, printer.logicalDpiX() / millimetres_per_inch);
        }
}

int page_count(const document::Report& report) {
    return Pages(report).count();
}

void save_pdf(const document::Report& report, const std::string& path) {
    save_pdf(Pages(report), path);
}

} // namespace levora::paper
