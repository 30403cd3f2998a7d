#pragma once

#include "widgets/failure.h"
#include "widgets/form.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace levora::widgets {

enum class Showing { modeless, modal };

// All screens of one start, one instance of each, found by name. A screen is made and loaded on its
// first use; screens that open one another do it here, by name.
class Screens {
public:
    Screens();
    ~Screens();
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    using Maker = std::function<std::unique_ptr<Form>()>;
    // Tells how a screen is made; the name is the screen's own.
    void define(std::string name, Maker maker);
    [[nodiscard]] bool defined(std::string_view name) const;
    [[nodiscard]] std::vector<std::string> names() const;

    // The loaded screen; null when it is not. Loads nothing.
    [[nodiscard]] Form* find(std::string_view name) const;
    [[nodiscard]] std::vector<Form*> loaded() const; // in the order of loading

    // The screen, made and loaded if need be (its Form_Load runs, it stays hidden). A Failure 424
    // for a name that no screen has.
    Form& load(std::string_view name);
    // The same two as the screen's own class; of a screen of another class get is a std::bad_cast, and
    // find_as null.
    template <class T> T& get(std::string_view name) { return dynamic_cast<T&>(load(name)); }
    template <class T> T* find_as(std::string_view name) const { return dynamic_cast<T*>(find(name)); }

    // Loads if need be and shows. Nothing waits for a modal screen to close: the call returns.
    Form& show(std::string_view name, Showing showing = Showing::modeless);
    // As the program unloads: Form_QueryUnload may refuse (false). The object is kept until no event
    // runs any more, so that a screen may unload itself.
    bool unload(std::string_view name);
    // As the close box does: the same, as an outermost event.
    bool close(std::string_view name);

    // The end of the process: no further form events; running() is false from here on.
    void end_process();
    [[nodiscard]] bool ended() const { return ended_; }

    // Events that run now, one within the other.
    [[nodiscard]] int event_depth() const { return depth_; }
    // Runs something as an event: see Form::run_event. Used where no form stands behind it.
    void run_event(std::string_view name, const std::function<void()>& handler);

    // What an outermost event's unanswered Failure is reported through.
    std::function<void(std::string_view procedure, const Failure&)> on_unanswered;
    // Runs at the end of every outermost event: pending rows go down to the stores.
    std::function<void()> on_settled;

    // Runs, and may not fail, when an outermost event ends without having settled: with an exception that
    // is no Failure, or without the memory for a report.
    std::function<void()> on_broken_off;

    // Windows listen here for screens that come and go.
    std::function<void(Form&)> on_loaded;
    std::function<void(Form&)> on_shown;
    std::function<void(Form&)> on_unloading;

private:
    void settle();

    std::map<std::string, Maker, std::less<>> makers_;
    std::vector<std::unique_ptr<Form>> forms_;
    std::vector<std::unique_ptr<Form>> gone_;
    int depth_ = 0;
    bool ended_ = false;
};

} // namespace levora::widgets
