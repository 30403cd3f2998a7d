#pragma once

#include <QWidget>

namespace levora::desktop {

// Two small buttons, one above the other, that count the field beside them up and down.
class SpinPair final : public QWidget {
    Q_OBJECT

public:
    explicit SpinPair(QWidget* parent = nullptr);

signals:
    void up();
    void down();
};

} // namespace levora::desktop
