#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace levora::desktop {

// A quiet bar chart: amounts in rupees, one bar each, the longest for the largest. It draws what it is
// given and works nothing out.
class CompositionChart final : public QWidget {
    Q_OBJECT

public:
    struct Bar {
        QString name;
        double amount = 0;
        QString figure; // the amount as a person reads it
        bool total = false;
    };

    explicit CompositionChart(QWidget* parent = nullptr);
    void show_bars(std::vector<Bar> bars);
    [[nodiscard]] const std::vector<Bar>& bars() const { return bars_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Bar> bars_;
};

} // namespace levora::desktop
