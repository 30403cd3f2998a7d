#pragma once

#include "widgets/explanation.h"

#include <QFrame>

namespace levora::desktop {

class ScreenWindow;
class Windows;

// Why a figure is what it is: a small panel below it with the sentence, and a button for each source that
// leads there. Tab and the arrows move between the sources, Enter goes to one, Esc closes. As a pop-up it
// takes the focus from no field: nothing is left or entered until a person goes.
class WhyPanel final : public QFrame {
    Q_OBJECT

public:
    WhyPanel(const widgets::Explanation& why, QWidget& figure);

signals:
    void chosen(int way);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// F1 on a field or cell of the window opens the panel; the pointer resting on a computed one shows the
// sentence as its tool tip.
void add_why(ScreenWindow& window, Windows& windows);

// Brings a source into view and gives it the focus: its screen, opened by its own button where it is not
// there, its tab, its panel, its cell. False, and told at the foot of `from`, when it can't be reached.
bool go_to(const widgets::Explanation::Way& way, ScreenWindow& from, Windows& windows);

} // namespace levora::desktop
