#include "desktop/sheet_extras.h"

#include "desktop/composition_chart.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "schedules/asset_composition.h"
#include "session/session_state.h"
#include "widgets/explanation.h"
#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/grid.h"

#include <QTimer>

#include <array>
#include <span>

namespace levora::desktop {

namespace {

struct ChartLine {
    const char* control;
    bool total;
};

// From what is owned to what is owed; the words are those of the fields.
constexpr std::array sheet_lines{
    ChartLine{"txtAssetsSec2ea", false},
    ChartLine{"txtDeemedAssets", false},
    ChartLine{"txtAssetsChargeableToWTax", true},
    ChartLine{"txtLessDebt", false},
    ChartLine{"txtNetWealth", true},
    ChartLine{"txtTaxableWealth", true},
    ChartLine{"txtWealthTaxLiability", false},
};
// What the assets are made of.
constexpr std::array asset_lines{
    ChartLine{"txtNetImmovableProperty", false}, ChartLine{"txtNetMovableProperty", false},
    ChartLine{"txtNetUrbanLand", false},         ChartLine{"txtNetInterestInFirm", false},
    ChartLine{"txtNetBusinessAssets", false},    ChartLine{"txtNetJewellery", false},
};

// The part of a field's words that fits a chart: without number and brackets.
QString short_words(const std::string& label) {
    QString words = plain_words(label);
    const auto bracket = words.indexOf(QLatin1Char('['));
    if (bracket > 0) words.truncate(bracket);
    const auto relation = words.indexOf(QStringLiteral(" in relation"));
    if (relation > 0) words.truncate(relation);
    const auto number = words.indexOf(QStringLiteral(". "));
    if (number == 1) words = words.mid(3);
    if (words.startsWith(QStringLiteral("Add: "))) words = words.mid(5);
    return words.trimmed();
}

CompositionChart::Bar bar(const QString& words, double amount, bool total) {
    return {words, amount, to_qt(group_indian_text(number_text(amount))), total};
}

void show_composition(const ScreenWindow& window, CompositionChart& chart) {
    const widgets::Form& form = *window.form();
    // The panels of challans and enclosures take its place.
    const widgets::Control* challans = form.find("frSATax");
    const widgets::Control* enclosures = form.find("frEnclosure");
    const bool covered = (challans && challans->visible()) || (enclosures && enclosures->visible());
    if (QWidget* card = chart.parentWidget(); challans && card->isHidden() != covered)
        card->setVisible(!covered);
    if (covered) return;
    const std::span<const ChartLine> chart_lines =
        form.name() == "frmWealthMain" ? std::span<const ChartLine>(sheet_lines) : asset_lines;
    std::vector<CompositionChart::Bar> bars;
    for (const ChartLine& line : chart_lines) {
        const auto* field = static_cast<const widgets::TextField*>(form.find(line.control));
        if (!field) continue;
        bars.push_back(bar(short_words(field->label), field->value(), line.total));
    }
    chart.show_bars(std::move(bars));
}

// The schedules behind the sheet, as they are stored.
void show_schedules(session::Session& session, CompositionChart& chart) {
    std::vector<CompositionChart::Bar> bars;
    for (const schedules::CompositionPart& part : schedules::asset_composition(session))
        bars.push_back(bar(to_qt(part.schedule), part.amount, false));
    chart.show_bars(std::move(bars));
}

void tell_why(ScreenWindow& window, const widgets::Control* control) {
    if (!control) return;
    const auto* grid = dynamic_cast<const widgets::Grid*>(control);
    const widgets::Explanation why =
        grid ? explain(*grid, grid->active_column(), grid->active_row()) : explain(*control);
    window.tell(to_qt(why.sentence));
}

} // namespace

void add_sheet_extras(ScreenWindow& window, session::Session& session) {
    QObject::connect(&window, &ScreenWindow::explanation_wanted, &window,
                     [&window](const widgets::Control* control) { tell_why(window, control); });
    auto* chart = window.findChild<CompositionChart*>(QStringLiteral("composition"));
    if (!chart) return;
    // A chain of figures is drawn once, when it stands.
    auto* soon = new QTimer(chart);
    soon->setSingleShot(true);
    const auto draw_soon = [soon] { soon->start(0); };
    QObject::connect(&window, &ScreenWindow::figure_changed, soon, draw_soon);
    QObject::connect(&window, &ScreenWindow::settled, soon, draw_soon);
    QObject::connect(soon, &QTimer::timeout, chart, [&window, chart] {
        if (window.attached()) show_composition(window, *chart);
    });
    QObject::connect(&window, &ScreenWindow::came_up, chart, [&window, chart] {
        if (window.attached()) show_composition(window, *chart);
    });
    auto* stored = window.findChild<CompositionChart*>(QStringLiteral("schedules"));
    if (!stored) return;
    // They change while another screen is up, or with the year.
    QObject::connect(&window, &ScreenWindow::came_up, stored,
                     [&session, stored] { show_schedules(session, *stored); });
    QObject::connect(&window, &ScreenWindow::settled, stored,
                     [&window, &session, stored, year = session.CurrentFY]() mutable {
                         if (!window.attached() || year == session.CurrentFY) return;
                         year = session.CurrentFY;
                         show_schedules(session, *stored);
                     });
}

} // namespace levora::desktop
