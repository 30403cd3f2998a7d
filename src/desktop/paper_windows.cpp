#include "desktop/paper_windows.h"

#include "desktop/desktop_desk.h"
#include "desktop/long_work.h"
#include "desktop/page_view.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "paper/output.h"
#include "paper/pages.h"
#include "paper/sheet_paper.h"
#include "reports/preview_screens.h"
#include "widgets/failure.h"

#include <QApplication>
#include <QFileDialog>
#include <QPointer>
#include <QPrinter>

#include <algorithm>

namespace levora::desktop {

namespace {

PageSource source_of(const std::shared_ptr<const paper::Pages>& pages) {
    PageSource source;
    source.count = pages->count();
    source.size = pages->size();
    source.paint = [pages](QPainter& painter, int page, double scale) { pages->paint(painter, page, scale); };
    source.find = [pages](const QString& text) {
        std::vector<PageSource::Place> places;
        for (const paper::Pages::Found& found : pages->find(text))
            places.push_back({found.page, found.area});
        return places;
    };
    return source;
}

// The person has cancelled the laying out of pages.
class Cancelled {};

std::shared_ptr<const paper::Pages> pages_of(const document::Report& report, QWidget* over) {
    constexpr int parts = 1000;
    LongWork work(over, QObject::tr("Laying out the pages"), parts);
    return std::make_shared<const paper::Pages>(report, [&work](int done, int of) {
        if (!work.go_on(static_cast<int>(qint64{parts} * done / of))) throw Cancelled();
    });
}

// A font is missing for some of the words: whoever sees gaps or boxes should know what helps.
void tell_missing(ScreenWindow& window, const paper::Pages& pages) {
    const int missing = pages.characters_without_font();
    if (missing == 0) return;
    window.tell(
        QObject::tr("No font here has %1 of the characters, which can't be shown or printed: install a "
                    "font for them, as fonts-lohit-deva for Devanagari.")
            .arg(missing));
}

void tell_failure(widgets::Desk& desk, const Failure& failure) {
    desk.show_message(
        {failure.what(), "Levora Wealth Tax", widgets::Icon::exclamation, {widgets::Answer::ok}});
}

void print_all(const paper::Pages& pages, DesktopDesk& desk, int copies) {
    LongWork work(QApplication::activeWindow(), QObject::tr("Printing"), std::max(copies, 1) * pages.count());
    paper::print(pages, *desk.printer(), copies, [&work](int done, int) { return work.go_on(done); });
}

// Pages and copies as the printer's dialog has them.
void print_as_chosen(const paper::Pages& pages, DesktopDesk& desk) {
    try {
        if (desk.choose_printer()) print_all(pages, desk, desk.printer()->copyCount());
    } catch (const Failure& failure) {
        tell_failure(desk, failure);
    }
}

void export_pages(const paper::Pages& pages, QWidget& parent, DesktopDesk& desk) {
    const QString path = QFileDialog::getSaveFileName(&parent, QObject::tr("Export as PDF"),
                                                      to_qt(pages.title()) + QStringLiteral(".pdf"),
                                                      QObject::tr("PDF files (*.pdf)"));
    if (path.isEmpty()) return;
    try {
        LongWork work(&parent, QObject::tr("Writing the PDF"), pages.count());
        paper::save_pdf(pages, from_qt(path), [&work](int done, int) { return work.go_on(done); });
    } catch (const Failure& failure) {
        tell_failure(desk, failure);
    }
}

void show_in(PageView& view, const std::shared_ptr<const paper::Pages>& pages, DesktopDesk* desk) {
    view.show_pages(source_of(pages));
    view.disconnect(SIGNAL(print_asked()));
    view.disconnect(SIGNAL(export_asked()));
    if (!desk) return;
    QObject::connect(&view, &PageView::print_asked, &view, [pages, desk] { print_as_chosen(*pages, *desk); });
    QObject::connect(&view, &PageView::export_asked, &view,
                     [pages, desk, &view] { export_pages(*pages, view, *desk); });
}

} // namespace

void add_report_pages(ScreenWindow& window, DesktopDesk* desk) {
    auto* view = window.findChild<PageView*>();
    if (!view) return;
    QObject::connect(&window, &ScreenWindow::came_up, view, [&window, view, desk] {
        if (!window.attached()) return;
        const auto report = static_cast<const reports::frmRepPreview*>(window.form())->report();
        const QPointer<QWidget> there(&window);
        try {
            if (!report) return;
            const auto pages = pages_of(*report, &window);
            show_in(*view, pages, desk);
            tell_missing(window, *pages);
        } catch (const Cancelled&) {
            // Nothing to show. The window may have gone by itself meanwhile.
            if (there) QMetaObject::invokeMethod(there, &QWidget::close, Qt::QueuedConnection);
        } catch (const Failure& failure) {
            if (desk) tell_failure(*desk, failure); // a font is missing: the window stays, empty
        }
    });
}

void add_sheet_pages(ScreenWindow& window, const std::shared_ptr<const paper::Pages>& pages,
                     DesktopDesk* desk) {
    auto* view = window.findChild<PageView*>();
    if (!view || !pages) return;
    show_in(*view, pages, desk);
    tell_missing(window, *pages);
}

void print_report(const document::Report& report, DesktopDesk& desk) {
    if (!desk.printer() && !desk.choose_printer()) return;
    try {
        print_all(*pages_of(report, QApplication::activeWindow()), desk, report.copies);
    } catch (const Cancelled&) {
        return; // nothing was printed
    }
}

void print_grid_sheet(const widgets::Grid& grid, DesktopDesk& desk) {
    // At once on the printer chosen last; a file chosen last holds another paper, which would be lost.
    const bool at_once = desk.printer() && desk.printer()->outputFileName().isEmpty();
    if (!at_once && !desk.choose_printer()) return;
    if (at_once) desk.printer()->setPageRanges({}); // those of another paper
    print_all(paper::pages_of_sheet(grid), desk, 1);
}

} // namespace levora::desktop
