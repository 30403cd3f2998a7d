#pragma once

#include <QObject>
#include <QPointer>

#include <map>
#include <string>

namespace levora::widgets {
class Form;
class Screens;
} // namespace levora::widgets

namespace levora::desktop {

class ScreenWindow;

// The windows of one run: they come and go with the screens.
class Windows final : public QObject {
    Q_OBJECT

public:
    explicit Windows(widgets::Screens& screens);
    ~Windows() override;

    // The window of a loaded screen; null when it has none.
    [[nodiscard]] ScreenWindow* find(const std::string& screen) const;

signals:
    void made(ScreenWindow* window);
    // The process has ended by the program's own rules.
    void ended();

private:
    void loaded(widgets::Form& form);
    void unloading(widgets::Form& form);
    void check_end();

    widgets::Screens& screens_;
    std::map<std::string, QPointer<ScreenWindow>> windows_;
    bool ended_ = false;
};

} // namespace levora::desktop
