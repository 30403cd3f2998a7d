#include "desktop/field_bindings.h"

#include "desktop/acts.h"
#include "desktop/edit_history.h"
#include "desktop/qt_text.h"
#include "widgets/fields.h"
#include "widgets/typed_control.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyle>
#include <QTreeView>
#include <QTreeWidget>

namespace levora::desktop {

using widgets::ColumnList;
using widgets::ListField;
using widgets::MaskedField;
using widgets::TextField;

namespace {

// Puts a text where a person may be typing: the cursor stays where it was.
void put_text(QLineEdit& line, const QString& text) {
    if (line.text() == text) return;
    const QSignalBlocker quiet(line);
    const auto behind = line.text().size() - line.cursorPosition();
    line.setText(text);
    if (line.hasFocus())
        line.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, text.size() - behind)));
    else
        line.setCursorPosition(0);
}

class TextBinding final : public Binding {
public:
    TextBinding(TextField& field, QLineEdit* line, Acts& acts, EditHistory& history)
        : Binding(field, line), field_(field), line_(line) {
        QObject::connect(line, &QLineEdit::textEdited, line, [this, &acts, &history](const QString& typed) {
            const std::string before = field_.text();
            if (!acts.act([&] { field_.type(from_qt(typed)); })) return;
            history.add({field_.name(), 0, 0, before, field_.text()});
            put_text(*line_, to_qt(field_.text()));
        });
    }

private:
    void show_content() override { put_text(*line_, to_qt(field_.text())); }
    void show_state() override {
        Binding::show_state();
        if (line_->isReadOnly() != field_.locked()) line_->setReadOnly(field_.locked());
        const int longest = field_.max_length() > 0 ? field_.max_length() : 32767;
        if (line_->maxLength() != longest) line_->setMaxLength(longest);
    }

    // The application's style sheet makes what is locked grey; one of its own for each field costs time.
    [[nodiscard]] widgets::Color own_ground() const override {
        const widgets::Color told = field_.backcolor();
        return field_.locked() && told == widgets::grey_rgb ? widgets::Color() : told;
    }

    TextField& field_;
    QLineEdit* line_;
};

// The mask as a line edit knows it: every place may stay open.
QString input_mask(const std::string& mask) {
    QString result;
    for (const char c : mask) {
        switch (c) {
        case '#':
            result += QLatin1Char('9');
            break;
        case '?':
            result += QLatin1Char('A');
            break;
        case '>':
            result += QLatin1Char('>');
            break;
        default:
            result += QLatin1Char('\\') + QString(QLatin1Char(c));
        }
    }
    return result.isEmpty() ? result : result + QStringLiteral(";_");
}

class MaskBinding final : public Binding {
public:
    MaskBinding(MaskedField& field, QLineEdit* line, Acts& acts, EditHistory& history)
        : Binding(field, line), field_(field), line_(line) {
        line->setInputMask(input_mask(field.mask()));
        QObject::connect(line, &QLineEdit::textEdited, line, [this, &acts, &history] {
            const std::string before = field_.text();
            const std::string typed = from_qt(line_->displayText());
            if (!acts.act([&] { field_.type(typed); })) return;
            history.add({field_.name(), 0, 0, before, field_.text()});
            show();
        });
    }

private:
    void show() {
        if (line_->displayText() == to_qt(field_.text())) return;
        const QSignalBlocker quiet(line_);
        const int cursor = line_->cursorPosition();
        // An open place is a blank in what a masked line edit takes.
        QString text = to_qt(field_.text());
        if (!field_.mask().empty()) text.replace(QLatin1Char('_'), QLatin1Char(' '));
        line_->setText(text);
        line_->setCursorPosition(line_->hasFocus() ? cursor : 0);
    }
    void show_content() override { show(); }
    void show_state() override {
        Binding::show_state();
        if (line_->isReadOnly() != field_.locked()) line_->setReadOnly(field_.locked());
    }

    MaskedField& field_;
    QLineEdit* line_;
};

class ListBinding final : public Binding {
public:
    ListBinding(ListField& list, QComboBox* box, Acts& acts, EditHistory& history)
        : Binding(list, box), list_(list), box_(box) {
        box->setEditable(list.editable());
        box->setInsertPolicy(QComboBox::NoInsert);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        if (box->minimumContentsLength() == 0) box->setMinimumContentsLength(6);
        QObject::connect(box, &QComboBox::activated, box, [this, &acts, &history](int index) {
            const std::string before = list_.text();
            if (!acts.act([&] { list_.choose(index); })) return;
            history.add({list_.name(), 0, 0, before, list_.text()});
            show_content();
        });
        if (!list.editable()) return;
        box->setCompleter(nullptr);
        QObject::connect(box, &QComboBox::editTextChanged, box,
                         [this, &acts, &history](const QString& typed) {
                             if (showing_ || from_qt(typed) == list_.text()) return;
                             const std::string before = list_.text();
                             if (!acts.act([&] { list_.type(from_qt(typed)); })) return;
                             history.add({list_.name(), 0, 0, before, list_.text()});
                             show_content();
                         });
    }

private:
    void show_content() override {
        const bool was_showing = std::exchange(showing_, true);
        const QSignalBlocker quiet(box_);
        if (box_->currentIndex() != list_.index()) box_->setCurrentIndex(list_.index());
        if (box_->isEditable()) {
            put_text(*box_->lineEdit(), to_qt(list_.text()));
        }
        box_->update();
        showing_ = was_showing;
    }
    void show_items() override {
        const bool was_showing = std::exchange(showing_, true);
        {
            const QSignalBlocker quiet(box_);
            box_->clear();
            QStringList items;
            for (const std::string& item : list_.items())
                items += to_qt(item);
            box_->addItems(items);
            show_arrow(!items.empty());
        }
        showing_ = was_showing;
        show_content();
    }
    // What is only typed into shows no arrow, as no list would open.
    void show_arrow(bool opens) {
        if (box_->property("listless").toBool() == !opens) return;
        box_->setProperty("listless", !opens);
        box_->style()->unpolish(box_);
        box_->style()->polish(box_);
    }
    void show_state() override {
        Binding::show_state();
        // A locked list shows its text but opens no more.
        const bool usable = list_.enabled() && !list_.locked();
        if (box_->isEnabled() != usable) box_->setEnabled(usable);
    }

    ListField& list_;
    QComboBox* box_;
    bool showing_ = false;
};

// An amount stands at the right of its column.
QStandardItem* cell_of(const QString& text) {
    auto* item = new QStandardItem(text);
    static const QRegularExpression amount(QStringLiteral("^-?[0-9]+(,[0-9]+)*$"));
    if (amount.match(text).hasMatch()) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

class ColumnListBinding final : public Binding, private QObject {
public:
    ColumnListBinding(ColumnList& list, QComboBox* box, Acts& acts)
        : Binding(list, box), list_(list), box_(box), rows_(new QStandardItemModel(box)),
          view_(new QTreeView(box)) {
        view_->setRootIsDecorated(false);
        view_->setAllColumnsShowFocus(true);
        view_->setSelectionBehavior(QAbstractItemView::SelectRows);
        box->setModel(rows_);
        box->setView(view_);
        view_->installEventFilter(this);
        QObject::connect(box, &QComboBox::activated, box, [this, &acts](int row) {
            if (acts.act([&] { list_.choose(row); })) show_content();
        });
    }

    // However it opens and closes, by a key of the screen or by the mouse, the list knows it.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) list_.set_dropped_down(true);
        if (event->type() == QEvent::Hide) list_.set_dropped_down(false);
        return QObject::eventFilter(watched, event);
    }
    void detach() override { view_->removeEventFilter(this); }

private:
    void show_items() override {
        const QSignalBlocker quiet(box_);
        rows_->clear();
        QStringList headers;
        for (const std::string& header : list_.headers())
            headers += to_qt(header);
        rows_->setHorizontalHeaderLabels(headers);
        for (int row = 0; row < list_.count(); ++row)
            for (int column = 0; column < list_.columns(); ++column)
                rows_->setItem(row, column, cell_of(to_qt(list_.cell(row, column))));
        int width = 0;
        for (int column = 0; column < list_.columns(); ++column) {
            const auto at = static_cast<std::size_t>(column);
            const bool hidden = at < list_.hidden_columns.size() && list_.hidden_columns[at];
            view_->setColumnHidden(column, hidden);
            if (hidden) continue;
            view_->resizeColumnToContents(column);
            view_->setColumnWidth(column, view_->columnWidth(column) + 16);
            width += view_->columnWidth(column);
        }
        view_->setMinimumWidth(width + 24);
        show_content();
    }
    void show_content() override {
        const QSignalBlocker quiet(box_);
        box_->setCurrentIndex(list_.index());
        if (list_.index() < 0) box_->setPlaceholderText(to_qt(list_.text()));
        box_->update();
    }
    void show_state() override {
        Binding::show_state();
        if (list_.dropped_down() == view_->isVisible() || !box_->isVisible()) return;
        if (list_.dropped_down())
            box_->showPopup();
        else
            box_->hidePopup();
        list_.set_dropped_down(view_->isVisible()); // an empty list does not open
    }

    ColumnList& list_;
    QComboBox* box_;
    QStandardItemModel* rows_;
    QTreeView* view_;
};

// The same list laid open, one row below the other.
class OpenColumnListBinding final : public Binding {
public:
    OpenColumnListBinding(ColumnList& list, QTreeWidget* rows, Acts& acts)
        : Binding(list, rows), list_(list), rows_(rows) {
        QObject::connect(rows, &QTreeWidget::currentItemChanged, rows, [this, &acts](QTreeWidgetItem* item) {
            const int row = rows_->indexOfTopLevelItem(item);
            if (row >= 0 && acts.act([&] { list_.choose(row); })) show_content();
        });
    }

private:
    void show_items() override {
        const QSignalBlocker quiet(rows_);
        rows_->clear();
        QStringList headers;
        for (const std::string& header : list_.headers())
            headers += to_qt(header);
        rows_->setHeaderLabels(headers);
        for (int row = 0; row < list_.count(); ++row) {
            QStringList cells;
            for (int column = 0; column < list_.columns(); ++column)
                cells += to_qt(list_.cell(row, column));
            auto* item = new QTreeWidgetItem(cells);
            for (int column = 0; column < list_.columns(); ++column)
                item->setToolTip(column, tip_text(cells[column])); // a column may be narrower
            rows_->addTopLevelItem(item);
        }
        for (int column = 0; column < list_.columns(); ++column) {
            const auto at = static_cast<std::size_t>(column);
            rows_->setColumnHidden(column, at < list_.hidden_columns.size() && list_.hidden_columns[at]);
            rows_->resizeColumnToContents(column);
        }
        show_content();
    }
    void show_content() override {
        const QSignalBlocker quiet(rows_);
        rows_->setCurrentItem(rows_->topLevelItem(list_.index()));
    }

    ColumnList& list_;
    QTreeWidget* rows_;
};

template <class Kind, class Tied, class WidgetKind, class... More>
std::unique_ptr<Binding> tie(widgets::Control& control, QWidget* widget, More&... more) {
    auto* right = qobject_cast<WidgetKind*>(widget);
    if (!right) return nullptr;
    return std::make_unique<Tied>(as<Kind>(control), right, more...);
}

} // namespace

std::unique_ptr<Binding> bind_text(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history) {
    return tie<TextField, TextBinding, QLineEdit>(control, widget, acts, history);
}
std::unique_ptr<Binding> bind_mask(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history) {
    return tie<MaskedField, MaskBinding, QLineEdit>(control, widget, acts, history);
}
std::unique_ptr<Binding> bind_list(widgets::Control& control, QWidget* widget, Acts& acts,
                                   EditHistory& history) {
    return tie<ListField, ListBinding, QComboBox>(control, widget, acts, history);
}
std::unique_ptr<Binding> bind_column_list(widgets::Control& control, QWidget* widget, Acts& acts) {
    if (std::unique_ptr<Binding> open =
            tie<ColumnList, OpenColumnListBinding, QTreeWidget>(control, widget, acts))
        return open;
    return tie<ColumnList, ColumnListBinding, QComboBox>(control, widget, acts);
}

} // namespace levora::desktop
