#include "widgets/screens.h"

#include <algorithm>
#include <new>
#include <utility>

namespace levora::widgets {

namespace {
constexpr int object_required = 424;
}

Screens::Screens() = default;

Screens::~Screens() {
    // Screens loaded last may refer to earlier ones.
    while (!forms_.empty())
        forms_.pop_back();
}

void Screens::define(std::string name, Maker maker) {
    makers_[std::move(name)] = std::move(maker);
}

bool Screens::defined(std::string_view name) const {
    return makers_.find(name) != makers_.end();
}

std::vector<std::string> Screens::names() const {
    std::vector<std::string> result;
    for (const auto& [name, maker] : makers_)
        result.push_back(name);
    return result;
}

Form* Screens::find(std::string_view name) const {
    for (const auto& form : forms_)
        if (form->name() == name) return form.get();
    return nullptr;
}

std::vector<Form*> Screens::loaded() const {
    std::vector<Form*> result;
    for (const auto& form : forms_)
        result.push_back(form.get());
    return result;
}

Form& Screens::load(std::string_view name) {
    if (Form* form = find(name)) return *form;
    const auto maker = makers_.find(name);
    if (maker == makers_.end()) throw Failure(object_required, "Object required: " + std::string(name));
    forms_.push_back(maker->second());
    Form& form = *forms_.back();
    if (on_loaded) on_loaded(form);
    form.run_event("Form_Load", [&form] { form.Form_Load(); });
    return form;
}

Form& Screens::show(std::string_view name, Showing showing) {
    Form& form = load(name);
    if (ended_) return form;
    form.set_modal(showing == Showing::modal);
    if (form.visible()) {
        form.bring_up();
        form.Form_Activate();
    } else {
        form.set_visible(true);
    }
    return form;
}

bool Screens::unload(std::string_view name) {
    Form* form = find(name);
    if (!form) return true;
    if (!form->Form_QueryUnload()) return false;
    if (ended_) return true; // the process went with it: no further form events
    form->Form_Unload();
    // The handlers above may have loaded or unloaded other screens: look again.
    const auto at =
        std::find_if(forms_.begin(), forms_.end(), [form](const auto& each) { return each.get() == form; });
    if (at == forms_.end()) return true;
    if (on_unloading) on_unloading(*form);
    form->view = nullptr;
    gone_.push_back(std::move(*at));
    forms_.erase(at);
    if (depth_ == 0) settle();
    return true;
}

bool Screens::close(std::string_view name) {
    bool gone = false;
    run_event(std::string(name) + " - Form_QueryUnload", [&] { gone = unload(name); });
    return gone;
}

void Screens::end_process() {
    ended_ = true;
}

void Screens::run_event(std::string_view name, const std::function<void()>& handler) {
    struct Depth {
        explicit Depth(int& count) : count_(count) { ++count_; }
        ~Depth() { --count_; }
        int& count_;
    };
    if (depth_ > 0) {
        const Depth depth(depth_);
        handler();
        return;
    }
    try {
        {
            const Depth depth(depth_);
            try {
                handler();
            } catch (const Failure& failure) {
                if (!on_unanswered) throw;
                on_unanswered(name, failure);
            } catch (const std::bad_alloc&) {
                if (!on_unanswered) throw;
                on_unanswered(name, memory_ran_out);
            }
        }
        settle();
    } catch (...) {
        if (on_broken_off) on_broken_off();
        throw;
    }
}

void Screens::settle() {
    if (on_settled) on_settled();
    gone_.clear();
}

} // namespace levora::widgets
