#include "desktop/binding.h"

#include "desktop/acts.h"
#include "desktop/edit_history.h"
#include "desktop/field_bindings.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/overlays.h"
#include "desktop/qt_text.h"
#include "desktop/spin_pair.h"
#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

namespace levora::desktop {

using widgets::Aspect;
using widgets::ControlKind;

namespace {

constexpr double twips_per_pixel = 15;

class TickBinding final : public Binding {
public:
    TickBinding(widgets::TickBox& box, QCheckBox* widget, Acts& acts, EditHistory& history)
        : Binding(box, widget), box_(box), widget_(widget) {
        QObject::connect(widget, &QCheckBox::clicked, widget, [this, &acts, &history] {
            const std::string before = box_.ticked() ? "1" : "0";
            if (!acts.act([this] { box_.click(); })) return;
            history.add({box_.name(), 0, 0, before, box_.ticked() ? "1" : "0"});
            show_content();
        });
    }

private:
    void show_content() override {
        const QSignalBlocker quiet(widget_);
        widget_->setChecked(box_.ticked());
        if (widget_->text() != to_qt(box_.caption())) widget_->setText(to_qt(box_.caption()));
    }
    widgets::TickBox& box_;
    QCheckBox* widget_;
};

class OptionBinding final : public Binding {
public:
    OptionBinding(widgets::OptionButton& option, QRadioButton* widget, Acts& acts)
        : Binding(option, widget), option_(option), widget_(widget) {
        // The screen keeps the options of a group apart; the arrow keys need the same group here.
        widget->setAutoExclusive(true);
        QObject::connect(widget, &QRadioButton::clicked, widget, [this, &acts] {
            if (acts.act([this] { option_.click(); })) show_content();
        });
    }

private:
    void show_content() override {
        const QSignalBlocker quiet(widget_);
        if (widget_->isChecked() && !option_.value()) {
            // Nothing chosen is a state of the screen that exclusive buttons would refuse.
            widget_->setAutoExclusive(false);
            widget_->setChecked(false);
            widget_->setAutoExclusive(true);
        } else {
            widget_->setChecked(option_.value());
        }
        if (widget_->text() != to_qt(option_.caption())) widget_->setText(to_qt(option_.caption()));
    }
    widgets::OptionButton& option_;
    QRadioButton* widget_;
};

class ButtonBinding final : public Binding {
public:
    ButtonBinding(widgets::Button& button, QPushButton* widget, Acts& acts)
        : Binding(button, widget), button_(button), widget_(widget) {
        widget->setAutoDefault(false);
        QObject::connect(widget, &QPushButton::clicked, widget,
                         [this, &acts] { acts.act([this] { button_.click(); }); });
    }

private:
    void show_content() override {
        if (widget_->text() != to_qt(button_.caption())) widget_->setText(to_qt(button_.caption()));
    }
    widgets::Button& button_;
    QPushButton* widget_;
};

class LabelBinding final : public Binding {
public:
    LabelBinding(widgets::Label& label, QLabel* widget)
        : Binding(label, widget), label_(label), widget_(widget) {}

private:
    void show_content() override { widget_->setText(to_qt(label_.caption()).simplified()); }
    widgets::Label& label_;
    QLabel* widget_;
};

// The layout, or one inside it, that holds the widget itself.
QLayout* layout_of(QLayout* layout, const QWidget& widget) {
    for (int at = 0; layout && at < layout->count(); ++at) {
        QLayoutItem* item = layout->itemAt(at);
        if (item->widget() == &widget) return layout;
        if (QLayout* found = layout_of(item->layout(), widget)) return found;
    }
    return nullptr;
}

class FrameBinding final : public Binding {
public:
    FrameBinding(widgets::Frame& frame, QWidget* widget)
        : Binding(frame, widget), frame_(frame), full_width_(widget->maximumWidth()) {
        // A panel laid over others stands in their middle.
        if (widget->property("overlay").toBool() && widget->parentWidget())
            if (QLayout* layout = layout_of(widget->parentWidget()->layout(), *widget))
                layout->setAlignment(widget, Qt::AlignCenter);
    }

    void slide(Sliding sliding) override {
        if (frame_.width_twips <= 0) return;
        const auto told = static_cast<int>(frame_.width_twips / twips_per_pixel);
        const int width = sliding == Sliding::yes ? std::min(told, full_width_) : full_width_;
        if (widget()->maximumWidth() != width) widget()->setMaximumWidth(width);
    }

private:
    void show_state() override {
        const bool was_open = !widget()->isHidden();
        Binding::show_state();
        const bool open = !widget()->isHidden();
        if (open == was_open || !widget()->property("overlay").toBool() || !widget()->window()->isVisible())
            return;
        if (open)
            overlay_opened(*widget());
        else
            overlay_closed(*widget());
    }
    void show_content() override {
        if (auto* box = qobject_cast<QGroupBox*>(widget()))
            box->setTitle(to_qt(frame_.caption()).simplified());
    }
    widgets::Frame& frame_;
    int full_width_;
};

class TabsBinding final : public Binding {
public:
    TabsBinding(widgets::Tabs& tabs, QTabWidget* widget, Acts& acts)
        : Binding(tabs, widget), tabs_(tabs), widget_(widget) {
        QObject::connect(widget, &QTabWidget::currentChanged, widget, [this, &acts](int tab) {
            if (tab == tabs_.tab()) return;
            if (acts.act([this, tab] { tabs_.choose(tab); })) show_content();
        });
    }

private:
    void show_content() override {
        for (int tab = 0; tab < std::min(tabs_.count(), widget_->count()); ++tab) {
            if (widget_->tabText(tab) != to_qt(tabs_.caption(tab)))
                widget_->setTabText(tab, to_qt(tabs_.caption(tab)));
            widget_->setTabEnabled(tab, tabs_.tab_enabled(tab));
            widget_->setTabVisible(tab, tabs_.tab_visible(tab));
        }
        const QSignalBlocker quiet(widget_);
        if (widget_->currentIndex() != tabs_.tab()) widget_->setCurrentIndex(tabs_.tab());
    }
    void show_state() override {
        Binding::show_state();
        show_content();
    }
    void show_items() override { show_content(); }
    widgets::Tabs& tabs_;
    QTabWidget* widget_;
};

class SpinBinding final : public Binding {
public:
    SpinBinding(widgets::SpinButtons& buttons, SpinPair* widget, Acts& acts) : Binding(buttons, widget) {
        QObject::connect(widget, &SpinPair::up, widget, [&] { acts.act([&buttons] { buttons.up(); }); });
        QObject::connect(widget, &SpinPair::down, widget, [&] { acts.act([&buttons] { buttons.down(); }); });
    }
};

class TimerBinding final : public Binding {
public:
    TimerBinding(widgets::Timer& timer, Acts& acts) : Binding(timer, nullptr), timer_(timer) {
        clock_.setInterval(timer.interval_milliseconds());
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this, &acts] {
            // A box that waits for a person lets no time pass.
            if (QApplication::activeModalWidget()) return;
            acts.act([this] { timer_.tick(); });
        });
    }
    void detach() override { clock_.stop(); }

private:
    void run() {
        if (timer_.running() == clock_.isActive()) return;
        if (timer_.running())
            clock_.start();
        else
            clock_.stop();
    }
    void show_content() override { run(); }
    void show_state() override { run(); }
    widgets::Timer& timer_;
    QTimer clock_;
};

class GridBinding final : public Binding {
public:
    GridBinding(widgets::Grid& grid, GridView* view, Acts& acts) : Binding(grid, view), view_(view) {
        view->attach(grid, acts);
    }
    void detach() override { view_->detach(); }

private:
    void show_structure() override { view_->structure_changed(); }
    void show_content() override { view_->cell_changed(-1, -1); }
    GridView* view_;
};

template <class Tied, class WidgetKind, class Kind, class... More>
std::unique_ptr<Binding> tie(Kind& control, QWidget* widget, More&... more) {
    auto* right = qobject_cast<WidgetKind*>(widget);
    if (!right) return nullptr;
    return std::make_unique<Tied>(control, right, more...);
}

} // namespace

void Binding::refresh(Aspect aspect) {
    switch (aspect) {
    case Aspect::content:
        show_content();
        break;
    case Aspect::items:
        show_items();
        break;
    case Aspect::state:
        show_state();
        break;
    case Aspect::structure:
        show_structure();
        break;
    case Aspect::focus:
        if (widget_) widget_->setFocus(Qt::OtherFocusReason);
        break;
    case Aspect::front:
        if (widget_) widget_->raise();
        break;
    }
}

void Binding::refresh_all() {
    show_state();
    show_items();
    show_content();
}

void Binding::show_state() {
    if (!widget_) return;
    if (widget_->isEnabled() != control_.enabled() || !control_.enabled())
        widget_->setEnabled(control_.enabled());
    const bool hidden = !control_.visible();
    // The page of a tab is shown and hidden by its tabs.
    const bool is_page = qobject_cast<QStackedWidget*>(widget_->parentWidget()) != nullptr;
    if (!is_page && widget_->isHidden() != hidden) widget_->setHidden(hidden);
    if (label_ && label_->isHidden() != hidden) label_->setHidden(hidden);
    if (widget_->toolTip() != to_qt(control_.tooltip())) widget_->setToolTip(to_qt(control_.tooltip()));
    const widgets::Color ground = own_ground();
    if (ground_ == ground && ink_ == control_.forecolor()) return;
    ground_ = ground;
    ink_ = control_.forecolor();
    const QPalette palette = QApplication::palette();
    QString sheet;
    if (ground_) sheet += QStringLiteral("background:%1;").arg(ground_of(*ground_, palette).name());
    if (ink_) sheet += QStringLiteral("color:%1;").arg(ink_of(*ink_, palette).name());
    widget_->setStyleSheet(sheet);
}

const char* widget_class_of(ControlKind kind) {
    switch (kind) {
    case ControlKind::text_field:
    case ControlKind::masked_field:
        return "QLineEdit";
    case ControlKind::list_field:
    case ControlKind::column_list:
        return "QComboBox";
    case ControlKind::tick_box:
        return "QCheckBox";
    case ControlKind::option:
        return "QRadioButton";
    case ControlKind::button:
        return "QPushButton";
    case ControlKind::label:
        return "QLabel";
    case ControlKind::frame:
        return "QWidget";
    case ControlKind::tabs:
        return "QTabWidget";
    case ControlKind::grid:
        return "GridView";
    case ControlKind::spin_buttons:
        return "SpinPair";
    case ControlKind::menu:
    case ControlKind::menu_item:
    case ControlKind::timer:
        return ""; // no widget of the layout
    }
    return "";
}

std::unique_ptr<Binding> bind(widgets::Control& control, QWidget* widget, Acts& acts, EditHistory& history) {
    switch (control.kind()) {
    case ControlKind::text_field:
        return bind_text(control, widget, acts, history);
    case ControlKind::masked_field:
        return bind_mask(control, widget, acts, history);
    case ControlKind::list_field:
        return bind_list(control, widget, acts, history);
    case ControlKind::column_list:
        return bind_column_list(control, widget, acts);
    case ControlKind::tick_box:
        return tie<TickBinding, QCheckBox>(as<widgets::TickBox>(control), widget, acts, history);
    case ControlKind::option:
        return tie<OptionBinding, QRadioButton>(as<widgets::OptionButton>(control), widget, acts);
    case ControlKind::button:
        return tie<ButtonBinding, QPushButton>(as<widgets::Button>(control), widget, acts);
    case ControlKind::label:
        return tie<LabelBinding, QLabel>(as<widgets::Label>(control), widget);
    case ControlKind::frame:
        return tie<FrameBinding, QWidget>(as<widgets::Frame>(control), widget);
    case ControlKind::tabs:
        return tie<TabsBinding, QTabWidget>(as<widgets::Tabs>(control), widget, acts);
    case ControlKind::spin_buttons:
        return tie<SpinBinding, SpinPair>(as<widgets::SpinButtons>(control), widget, acts);
    case ControlKind::grid:
        return tie<GridBinding, GridView>(as<widgets::Grid>(control), widget, acts);
    case ControlKind::timer:
        return std::make_unique<TimerBinding>(as<widgets::Timer>(control), acts);
    case ControlKind::menu:
    case ControlKind::menu_item:
        return nullptr; // made when it pops up
    }
    return nullptr;
}

} // namespace levora::desktop
