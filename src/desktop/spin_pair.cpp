#include "desktop/spin_pair.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace levora::desktop {

SpinPair::SpinPair(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto add = [&](Qt::ArrowType arrow, const QString& name, auto signal) {
        auto* button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setFixedSize(18, 12);
        button->setFocusPolicy(Qt::NoFocus); // the field's own keys serve the keyboard
        button->setAccessibleName(name);
        connect(button, &QToolButton::clicked, this, signal);
        layout->addWidget(button);
    };
    add(Qt::UpArrow, tr("One more"), &SpinPair::up);
    add(Qt::DownArrow, tr("One less"), &SpinPair::down);
}

} // namespace levora::desktop
