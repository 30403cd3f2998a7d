#pragma once

#include "desktop/acts.h"
#include "desktop/binding.h"
#include "desktop/edit_history.h"
#include "widgets/form.h"

#include <QHash>
#include <QMainWindow>

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class QLabel;

namespace levora::desktop {

// The window of one screen. It draws the screen, hands on what a person does, and decides nothing.
class ScreenWindow final : public QMainWindow, public widgets::View, public Acts {
    Q_OBJECT

public:
    // Makes the window from the screen's layout file and ties every widget to its control.
    // Inside another screen's window when told: as its child from the start, since a window that is put
    // there when it is whole has all its widgets styled anew.
    explicit ScreenWindow(widgets::Form& form, ScreenWindow* around = nullptr);
    ~ScreenWindow() override;

    // The screen goes away: nothing of it is touched from here on, the window closes.
    void detach();
    [[nodiscard]] bool attached() const { return form_ != nullptr; }
    [[nodiscard]] widgets::Form* form() const { return form_; }
    // What of controls and layout did not find the other; empty when all did.
    [[nodiscard]] const QStringList& faults() const { return faults_; }
    [[nodiscard]] Binding* binding_of(const widgets::Control& control) const;

    // Comes up as the screen says: shown or hidden, modal or not.
    void follow_visibility();

    void undo();
    void redo();
    [[nodiscard]] const EditHistory& history() const { return history_; }
    void forget_edits() { history_.clear(); }
    // Types figures again that were kept from another run.
    void replay(const std::vector<Edit>& edits);

    // --- View ---
    void control_changed(const widgets::Control& control, widgets::Aspect aspect) override;
    void cell_changed(const widgets::Grid& grid, int column, int row) override;
    void active_cell_changed(const widgets::Grid& grid) override;
    void form_changed(const widgets::Form& form) override;
    void form_raised(const widgets::Form& form) override;
    void popup_wanted(const widgets::Form& form, const widgets::Menu& menu) override;

    // --- Acts ---
    bool act(const std::function<void()>& what) override;
    void tell(const QString& words) override;
    bool edit_cell(widgets::Grid& grid, int column, int row, const std::string& text) override;
    void keep_edit(const widgets::Grid& grid, int column, int row, const std::string& before) override;
    void begin_step() override { history_.begin_step(); }
    void end_step() override { history_.end_step(); }
    void give_up_step() override;

signals:
    // A person asks for the end of the screen by its close box.
    void close_asked();
    // The program has put another text into a field.
    void figure_changed();
    // After each act of a person, when the figures stand.
    void settled();
    // The screen goes away in an orderly manner; it can still be read.
    void detaching();
    // The window has come up, or again.
    void came_up();
    // F1: where the figure under the focus comes from.
    void explanation_wanted(const widgets::Control* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void tie_controls();
    void tie(widgets::Control& control);
    // The caption of the frame around a widget, else of the screen.
    std::string frame_words(const QWidget& widget) const;
    void name_for_readers(const widgets::Control& control, QWidget& widget) const;
    void tie_commands();
    void press_button(std::initializer_list<const char*> names);
    widgets::Control* control_of(const QObject* widget) const;
    bool key_pressed(const QKeyEvent& event, QObject* watched);
    void focus_came(widgets::Control& control, QObject* widget, Qt::FocusReason reason);
    bool focus_goes(widgets::Control& control);
    void share_access_keys();
    void cell_entered(const widgets::Grid& grid, int column, int row);
    void restore_place();
    void keep_place() const;

    widgets::Form* form_;
    EditHistory history_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    std::unordered_map<const widgets::Control*, Binding*> by_control_;
    std::unordered_map<const QObject*, Binding*> by_widget_;
    QHash<QString, QWidget*> by_name_; // widgets of the layout; filled while they are tied
    QStringList faults_;
    QLabel* foot_ = nullptr;
    bool select_on_release_ = false;
    bool inside_ = false; // another screen's window
};

} // namespace levora::desktop
