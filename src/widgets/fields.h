#pragma once

#include "widgets/control.h"
#include "widgets/value_text.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace levora::widgets {

// A field of text. Its change fires once, before set_text or type returns, and only if the text
// really became different: that is what ends every chain.
class TextField : public Control {
public:
    TextField(Form& form, std::string name, std::string label = {});

    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] double value() const { return val(text_); } // the leading number
    [[nodiscard]] bool locked() const { return locked_; }
    [[nodiscard]] int max_length() const { return max_length_; } // characters; 0 is no limit

    // Writes as code does; a lock binds typing only, so a locked field is written too.
    void set_text(std::string_view text);
    void set_value(double value) { set_text(number_text(value)); }
    void set_locked(bool locked);
    void set_max_length(int characters);
    // Characters that the keyboard can put in; null takes all. Assignments are not filtered.
    void set_key_filter(bool (*accepts)(char32_t));
    [[nodiscard]] bool accepts(char32_t character) const;

    // A person replaces the whole text, in one change. Refused characters and those past the limit
    // are dropped. False when the field is locked, disabled or hidden.
    bool type(std::string_view text);

    std::function<void()> on_change;

private:
    void change(std::string text);

    std::string text_;
    bool locked_ = false;
    int max_length_ = 0;
    bool (*accepts_)(char32_t) = nullptr;
};

// Digits, ".", "-" and backspace: the key filter of amount fields.
bool is_amount_key(char32_t character);

// A field with an entry mask: "#" takes a digit (or stays open), "?" a letter, ">" turns what follows
// to capitals, anything else stands for itself. An empty place shows "_". An empty mask takes any text.
class MaskedField : public Control {
public:
    MaskedField(Form& form, std::string name, std::string mask, std::string label = {});

    [[nodiscard]] const std::string& text() const { return text_; } // with placeholders
    [[nodiscard]] const std::string& mask() const { return mask_; }
    [[nodiscard]] bool locked() const { return locked_; }
    // The text of the mask with no entry: "__/__/____".
    [[nodiscard]] const std::string& empty_text() const { return empty_text_; }
    [[nodiscard]] bool is_empty() const { return text_ == empty_text_; }

    // Writes as code does: the text as it stands when it fits the mask; the empty text becomes the
    // empty mask; a text that does not fit the mask is a Failure 380.
    void set_text(std::string_view text);
    void set_locked(bool locked);

    // A person fills the mask from its first place: characters that do not fit are dropped, the
    // mask's own characters may be typed or left out. The empty text empties the field.
    bool type(std::string_view text);
    // What type() would leave in the field.
    [[nodiscard]] std::string filled(std::string_view typed) const;

    std::function<void()> on_change;

private:
    void change(std::string text);

    std::string mask_;
    std::string empty_text_;
    std::string text_;
    bool locked_ = false;
};

// How a list takes text: picked only (a drop-down list), or typed as well (a combo).
enum class ListStyle { pick, editable };

// A list or combo. on_click fires when an item is picked, by a person (also the one already picked)
// or by the program through an index that differs; on_change fires when the text of an editable list
// is typed or assigned and differs.
class ListField : public Control {
public:
    ListField(Form& form, std::string name, ListStyle style, std::string label = {},
              std::vector<std::string> items = {});

    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] double value() const { return val(text_); }
    [[nodiscard]] int index() const { return index_; } // from 0, -1 none
    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    [[nodiscard]] bool editable() const { return style_ == ListStyle::editable; }
    [[nodiscard]] bool locked() const { return locked_; }
    void set_locked(bool locked);

    // A pick list finds the text without regard to case and shows its own spelling; a text that it
    // does not hold leaves it without a selection. An editable list takes any text.
    void set_text(std::string_view text);
    // Selects by position, -1 for none; a Failure 380 past the end. Fires on_click if it differs.
    void set_index(int index);
    void add_item(std::string item);
    void clear_items(); // the text of an editable list goes too

    // A person picks an item, also the one already picked. False when disabled, hidden or not there.
    bool choose(int index);
    bool choose(std::string_view text);
    // A person types; false where the list can't be typed in.
    bool type(std::string_view text);

    std::function<void()> on_click;
    std::function<void()> on_change;

private:
    [[nodiscard]] int find(std::string_view text) const;
    void select(int index);

    ListStyle style_;
    std::vector<std::string> items_;
    std::string text_;
    int index_ = -1;
    bool locked_ = false;
};

// A drop-down list of rows with several columns; the text is that of column 0 of the selected row.
class ColumnList : public Control {
public:
    ColumnList(Form& form, std::string name, std::vector<std::string> headers, std::string label = {});

    [[nodiscard]] const std::vector<std::string>& headers() const { return headers_; }
    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int columns() const { return static_cast<int>(headers_.size()); }
    [[nodiscard]] const std::string& cell(int row, int column) const; // from 0; a Failure 9 outside
    [[nodiscard]] int index() const { return index_; }
    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] bool dropped_down() const { return dropped_down_; }

    void add_row(std::vector<std::string> cells);
    void set_cell(int row, int column, std::string text);
    void remove_row(int row); // runs no selection logic; a selection at or behind it is adjusted
    void clear();
    // Fires on_click if the index differs.
    void set_index(int index);
    void set_text(std::string_view text); // the text alone, no selection logic
    void set_dropped_down(bool dropped_down);

    // A person picks a row, also the one already picked.
    bool choose(int row);
    bool choose(std::string_view text); // the first row whose column 0 is this

    std::function<void()> on_click;
    std::vector<bool> hidden_columns; // of the design

private:
    void select(int index);

    std::vector<std::string> headers_;
    std::vector<std::vector<std::string>> rows_;
    std::string text_;
    int index_ = -1;
    bool dropped_down_ = false;
};

// A tick box, value 0 or 1. Its click fires when the value changes, by a person or by the program.
class TickBox : public Control {
public:
    TickBox(Form& form, std::string name, std::string caption);

    [[nodiscard]] int value() const { return value_; }
    [[nodiscard]] bool ticked() const { return value_ == 1; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void set_value(int value); // anything but 0 ticks
    bool click();

    std::function<void()> on_click;

private:
    std::string caption_;
    int value_ = 0;
};

// An option of a group: setting one clears the others of the same group on the form. Its click fires
// when it becomes set, by a person or by the program; a person's click fires also when it is set
// already.
class OptionButton : public Control {
public:
    OptionButton(Form& form, std::string name, std::string caption, std::string group);

    [[nodiscard]] bool value() const { return value_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    [[nodiscard]] const std::string& group() const { return group_; }
    void set_value(bool value);
    bool click();

    std::function<void()> on_click;

private:
    void clear_others();

    std::string caption_;
    std::string group_;
    bool value_ = false;
};

// A button or menu item. An access key stands behind "&" in the caption.
class Button : public Control {
public:
    Button(Form& form, std::string name, std::string caption, ControlKind kind = ControlKind::button);

    [[nodiscard]] const std::string& caption() const { return caption_; }
    void set_caption(std::string caption);
    // False when it is disabled or hidden by its own flag.
    virtual bool click();

    std::function<void()> on_click;

private:
    std::string caption_;
};

// A menu that pops up over grids; its items can be clicked whether it shows or not.
class Menu : public Control {
public:
    Menu(Form& form, std::string name, std::string caption);
    [[nodiscard]] const std::string& caption() const { return caption_; }

private:
    std::string caption_;
};

class MenuItem : public Button {
public:
    MenuItem(Form& form, std::string name, std::string caption, const Menu& menu);
    [[nodiscard]] const Menu& menu() const { return menu_; }
    bool click() override;

private:
    const Menu& menu_;
};

class Label : public Control {
public:
    Label(Form& form, std::string name, std::string caption);
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void set_caption(std::string caption);

private:
    std::string caption_;
};

// A frame around other controls. Left edge and width (twips) only matter to panels that slide.
class Frame : public Control {
public:
    Frame(Form& form, std::string name, std::string caption = {});
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void set_caption(std::string caption);

    double left_twips = 0;
    double width_twips = 0;

private:
    std::string caption_;
};

class Tabs : public Control {
public:
    Tabs(Form& form, std::string name, std::vector<std::string> captions);

    [[nodiscard]] int count() const { return static_cast<int>(pages_.size()); }
    [[nodiscard]] int tab() const { return tab_; } // from 0
    [[nodiscard]] const std::string& caption(int tab) const;
    [[nodiscard]] bool tab_enabled(int tab) const;
    [[nodiscard]] bool tab_visible(int tab) const;
    void set_tab(int tab);
    void set_caption(int tab, std::string caption);
    void set_tab_enabled(int tab, bool enabled);
    void set_tab_visible(int tab, bool visible);
    // A person chooses; false when that tab is disabled, hidden or not there.
    bool choose(int tab);

    std::function<void()> on_change;

private:
    struct Page {
        std::string caption;
        bool enabled = true;
        bool visible = true;
    };
    [[nodiscard]] const Page& page(int tab) const; // a Failure 5 outside

    std::vector<Page> pages_;
    int tab_ = 0;
};

// A pair of small buttons beside a field of text, which count its number up and down by one. It never
// counts below 0.
class SpinButtons : public Control {
public:
    SpinButtons(Form& form, std::string name, TextField& field);

    bool up(); // false when the buttons or the field can't be used
    bool down();

private:
    bool count(double by);

    TextField& field_;
};

// Fires on_tick each time its interval passes while it runs. The window lets time pass, or a script.
class Timer : public Control {
public:
    Timer(Form& form, std::string name, int interval_milliseconds);

    [[nodiscard]] bool running() const { return running_; }
    [[nodiscard]] int interval_milliseconds() const { return interval_milliseconds_; }
    void set_running(bool running);
    // Lets the interval pass once; false when it does not run.
    bool tick();

    std::function<void()> on_tick;

private:
    int interval_milliseconds_;
    bool running_ = false;
};

} // namespace levora::widgets
