#include "desktop/windows.h"

#include "desktop/screen_window.h"
#include "widgets/form.h"
#include "widgets/screens.h"

namespace levora::desktop {

Windows::Windows(widgets::Screens& screens) : screens_(screens) {
    screens.on_loaded = [this](widgets::Form& form) { loaded(form); };
    screens.on_shown = [this](widgets::Form& form) {
        if (ScreenWindow* window = find(form.name())) window->follow_visibility();
    };
    screens.on_unloading = [this](widgets::Form& form) { unloading(form); };
    screens.on_settled = [this, before = screens.on_settled] {
        if (before) before();
        check_end();
    };
}

Windows::~Windows() {
    screens_.on_loaded = screens_.on_shown = screens_.on_unloading = nullptr;
    screens_.on_settled = nullptr;
    for (const auto& [name, window] : windows_) {
        if (!window) continue;
        window->detach();
        delete window.data();
    }
}

ScreenWindow* Windows::find(const std::string& screen) const {
    const auto found = windows_.find(screen);
    return found == windows_.end() ? nullptr : found->second.data();
}

void Windows::loaded(widgets::Form& form) {
    // The return stands inside its parent window.
    auto* window = new ScreenWindow(form, form.name() == "frmFormBA" ? find("frmITMDIParent") : nullptr);
    windows_[form.name()] = window;
    connect(window, &ScreenWindow::close_asked, this, [this, window] {
        if (!window->attached()) return;
        const std::string name = window->form()->name();
        screens_.close(name);
        check_end();
    });
    connect(window, &ScreenWindow::settled, this, &Windows::check_end);
    emit made(window);
}

void Windows::unloading(widgets::Form& form) {
    ScreenWindow* window = find(form.name());
    if (!window) return;
    windows_.erase(form.name());
    window->detach();
    // It may stand in the middle of an act of its own.
    window->deleteLater();
}

void Windows::check_end() {
    if (!screens_.ended() || ended_) return;
    ended_ = true;
    // An orderly end, though no screen is unloaded any more.
    for (const auto& [name, window] : windows_)
        if (window) emit window->detaching();
    emit ended();
}

} // namespace levora::desktop
