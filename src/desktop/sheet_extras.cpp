#include "desktop/sheet_extras.h"

#include "desktop/composition_chart.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "schedules/asset_composition.h"
#include "session/session_state.h"
#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/typed_control.h"

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
    // The dates of the interest take the room of the second chart.
    const widgets::Control* dates = form.find("frInterest");
    for (const char* second : {"schedules_title", "schedules"})
        if (auto* widget = window.findChild<QWidget*>(QLatin1String(second)))
            widget->setVisible(!(dates && dates->visible()));
    const std::span<const ChartLine> chart_lines =
        form.name() == "frmWealthMain" ? std::span<const ChartLine>(sheet_lines) : asset_lines;
    std::vector<CompositionChart::Bar> bars;
    for (const ChartLine& line : chart_lines) {
        const auto* field = widgets::as_if<widgets::TextField>(form.find(line.control));
        if (!field) continue;
        bars.push_back(bar(to_qt(form.rules.name_of(*field)), field->value(), line.total));
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

} // namespace

void add_sheet_extras(ScreenWindow& window, session::Session& session) {
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
