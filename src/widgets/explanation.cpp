#include "widgets/explanation.h"

#include "widgets/fields.h"
#include "widgets/form.h"
#include "widgets/screens.h"
#include "widgets/typed_control.h"

#include <cmath>

namespace levora::widgets {

namespace {

constexpr std::size_t most_told = 6; // cells of one run, one by one

std::string grouped(double figure) {
    return group_indian_text(number_text(figure));
}

std::string in_brackets(std::string_view words) {
    return words.empty() ? std::string() : " (" + std::string(words) + ")";
}

const std::string& text_of(const Control& control, int column, int row) {
    static const std::string none;
    if (const Grid* grid = as_if<Grid>(&control)) return grid->text(column, row);
    if (const auto* field = as_if<TextField>(&control)) return field->text();
    if (const auto* mask = as_if<MaskedField>(&control)) return mask->text();
    if (const auto* list = as_if<ListField>(&control)) return list->text();
    return none;
}

bool is_locked(const Control& control, int column, int row) {
    if (const Grid* grid = as_if<Grid>(&control)) return grid->cell_locked(column, row);
    const auto* field = as_if<TextField>(&control);
    return field && field->locked();
}

// What a rule reads there: a comma ends a typed figure.
std::string figure_read(const Control& control, int column, int row) {
    const std::string& text = text_of(control, column, row);
    const Grid* grid = as_if<Grid>(&control);
    if (grid && grid->cell_kind(column, row) == CellKind::percent) return text.empty() ? "0%" : text;
    if (grid) return grouped(grid->value(column, row));
    const double read = val(text);
    const std::optional<double> whole = strict_number(text);
    return grouped(read) + (whole && *whole != read ? " of \"" + text + "\"" : "");
}

// One explanation in the making.
class Telling {
public:
    Telling(const Control& control, int column, int row)
        : control_(control), column_(column), row_(row), form_(control.form()) {}

    Explanation tell() {
        if (const Grid* grid = as_if<Grid>(&control_))
            if (const std::optional<GridFormula> formula = grid->formula(column_, row_)) {
                by_formula(*grid, *formula);
                return std::move(told_);
            }
        std::vector<const Rule*> rules;
        for (const Rule& rule : form_.rules.all())
            if (rule.holds_for(control_, column_, row_)) rules.insert(rules.begin(), &rule); // the last first
        if (rules.empty()) return {};
        // A rule that has nothing to write just now stands back behind another.
        while (rules.size() > 1 && stands_back(*rules.front()))
            rules.erase(rules.begin());
        for (const Rule* rule : rules)
            if (gives_what_stands(*rule)) {
                told_.sentence =
                    (is_empty() ? title() + " is empty: " : titled_figure() + " = ") + made_of(*rule);
                return std::move(told_);
            }
        if (rules.front()->write == Write::nothing)
            by_words(*rules.front());
        else
            by_another(*rules.front());
        return std::move(told_);
    }

private:
    [[nodiscard]] const std::string& text() const { return text_of(control_, column_, row_); }
    [[nodiscard]] bool is_empty() const { return text().empty(); }
    [[nodiscard]] std::string title() const { return form_.rules.name_of(control_, column_, row_); }
    [[nodiscard]] std::string titled_figure() const { return title() + " " + shown(); }

    // Of a field that holds words, the words.
    [[nodiscard]] std::string titled_text() const {
        if (as_if<Grid>(&control_) || strict_number(text())) return titled_figure();
        return title() + (is_empty() ? "" : " " + text());
    }

    // As it stands on the screen.
    [[nodiscard]] std::string shown() const {
        const std::optional<double> whole = strict_number(text());
        return whole ? grouped(*whole) : figure_read(control_, column_, row_);
    }

    // As the place would show it.
    [[nodiscard]] std::string as_shown(double result) const {
        const Grid* grid = as_if<Grid>(&control_);
        if (!grid) return grouped(result);
        const CellDesign& design = grid->design(column_, row_);
        if (design.kind == CellKind::percent)
            return number_text(round_half_away(result * 100, std::max(design.decimals, 0))) + "%";
        const bool rounds = design.kind == CellKind::number && design.decimals >= 0;
        return grouped(rounds ? round_half_away(result, design.decimals) : result);
    }

    [[nodiscard]] bool stands_back(const Rule& rule) const {
        return rule.write == Write::figure && std::isnan(rule.figure(column_, row_));
    }
    [[nodiscard]] bool gives_what_stands(const Rule& rule) const {
        if (rule.write == Write::nothing) return false;
        if (rule.write == Write::text) return text() == text_of(*rule.sources.front().control, 0, 0);
        const double result = rule.figure(column_, row_);
        if (std::isnan(result)) return rule.write == Write::figure_or_empty && is_empty();
        if (is_empty()) return result == 0 || !std::isfinite(result);
        return as_shown(result) == shown();
    }

    void by_formula(const Grid& grid, const GridFormula& formula) {
        std::vector<Source> sources;
        for (const CellRange& in : formula.inputs)
            sources.emplace_back(grid, in);
        told_.sentence = (is_empty() ? title() + " is empty: " : titled_figure() + " = ") +
                         filled(formula.how.words, sources) + in_brackets(formula.how.remark);
    }

    void by_words(const Rule& rule) {
        told_.sentence = (rule.handed_over ? titled_figure() : titled_text()) + ": " +
                         filled(rule.how.words, rule.sources);
        if (!rule.handed_over) return;
        const HandOver& given = *rule.handed_over;
        told_.ways.push_back({std::string(given.words) + in_brackets(given.caution),
                              std::string(given.from_screen),
                              std::string(given.from_control),
                              given.from_column,
                              given.from_row,
                              {given.opener_screen.empty() ? form_.name() : std::string(given.opener_screen),
                               std::string(given.opener)}});
        const Form* from = form_.screens().find(given.from_screen);
        const Control* source = from ? from->find(given.from_control) : nullptr;
        if (!source || (as_if<Grid>(source) && given.from_row == 0)) return;
        const std::string there = figure_read(*source, given.from_column, given.from_row);
        if (there != shown()) told_.sentence += ", which is " + there + " now and has not been handed over";
    }

    void by_another(const Rule& rule) {
        const std::string_view usual =
            is_locked(control_, column_, row_) ? "was stored so" : "was typed or stored";
        if (is_empty())
            told_.sentence =
                title() + " is empty" + (rule.otherwise.empty() ? "" : " and ") + std::string(rule.otherwise);
        else
            told_.sentence =
                titled_figure() + " " + std::string(rule.otherwise.empty() ? usual : rule.otherwise);
        const double result = rule.write == Write::text ? val(text_of(*rule.sources.front().control, 0, 0))
                                                        : rule.figure(column_, row_);
        told_.sentence +=
            "; " + made_of(rule) + " gives " + (std::isnan(result) ? "nothing" : as_shown(result));
    }

    std::string made_of(const Rule& rule) {
        return filled(rule.how.words, rule.sources) + in_brackets(rule.how.remark);
    }

    // The words with each "$n" replaced by the n-th source.
    std::string filled(std::string_view words, const std::vector<Source>& sources) {
        std::string sentence;
        if (words.empty()) {
            for (const Source& source : sources)
                sentence += (sentence.empty() ? "" : " plus ") + told(source);
            return sentence;
        }
        for (std::size_t at = 0; at < words.size(); ++at) {
            if (words[at] == '$')
                sentence += told(sources.at(static_cast<std::size_t>(words[++at] - '1')));
            else
                sentence += words[at];
        }
        return sentence;
    }

    std::string told(const Source& source) {
        const Control& control = *source.control;
        if (source.measure) {
            const double measured = source.measure(control.form());
            std::string words = grouped(measured);
            if (!source.unit.empty()) words += " " + std::string(source.unit) + (measured == 1 ? "" : "s");
            (void)linked(control, 0, 0, source.unit.empty() ? name_of_whole(control) : words);
            return words;
        }
        if (const Grid* grid = as_if<Grid>(&control)) return told_run(*grid, source);
        if (control.kind() == ControlKind::masked_field) return linked(control, 0, 0, text_of(control, 0, 0));
        if (source.reading == Reading::shown) return linked(control, 0, 0, name_of(control, 0, 0));
        return linked(control, 0, 0, name_of(control, 0, 0) + " " + figure_read(control, 0, 0));
    }

    std::string told_run(const Grid& grid, const Source& source) {
        const CellRange run = run_now(source, column_, row_);
        if (source.cells.first_column == source.cells.last_column &&
            source.cells.first_row == source.cells.last_row)
            return told_cell(grid, run.first_column, run.first_row, source.reading);
        std::vector<std::pair<int, int>> used;
        for (int row = run.first_row; row <= run.last_row; ++row)
            for (int column = run.first_column; column <= run.last_column; ++column)
                if (grid.value(column, row) != 0) used.emplace_back(column, row);
        const bool across = source.cells.first_column != source.cells.last_column;
        // Each row has a name of its own only where the rows are what the figures are called by.
        const bool own_names = form_of(grid).rules.called_by_rows(grid) && !across;
        const std::string name = name_of(grid, run.first_column, run.first_row);
        if (used.empty()) {
            if (run.last_row >= run.first_row && run.last_column >= run.first_column)
                (void)linked(grid, run.first_column, run.first_row, name);
            return own_names ? std::string("nothing") : name + ", which is empty";
        }
        if (used.size() > most_told) {
            const auto [column, row] = used.front();
            return linked(grid, column, row,
                          name + " of " + number_text(static_cast<double>(used.size())) +
                              (across ? " columns" : " rows"));
        }
        std::string words;
        for (const auto& [column, row] : used) {
            std::string one = grouped(grid.value(column, row));
            if (own_names)
                one.insert(0, name_of(grid, column, row) + " ");
            else
                one += " (" + (across ? grid.header(column) : "row " + number_text(row)) + ")";
            words += words.empty() ? (own_names ? "" : name + " ") : " plus ";
            words += one;
            (void)linked(grid, column, row, own_names ? one : name + " " + one);
        }
        return words;
    }

    std::string told_cell(const Grid& grid, int column, int row, Reading reading) {
        const std::string name = name_of(grid, column, row);
        if (grid.cell_kind(column, row) == CellKind::check)
            return linked(grid, column, row,
                          name + (grid.text(column, row) == "1" ? " ticked" : " not ticked"));
        if (reading == Reading::position || reading == Reading::shown)
            return linked(grid, column, row,
                          name + (reading == Reading::shown ? "" : " \"" + grid.text(column, row) + "\""));
        return linked(grid, column, row, name + " " + figure_read(grid, column, row));
    }

    static std::string name_of_whole(const Control& control) {
        return short_words(control.label.empty() ? control.tag : control.label);
    }
    static const Form& form_of(const Control& control) { return control.form(); }
    static std::string name_of(const Control& control, int column, int row) {
        return form_of(control).rules.name_of(control, column, row);
    }

    std::string linked(const Control& control, int column, int row, const std::string& words) {
        for (const Explanation::Way& known : told_.ways)
            if (known.control == control.name() && known.column == column && known.row == row) return words;
        Explanation::Way way{words, form_.name(), control.name(), column, row};
        if (const Rules::Opener opener = form_.rules.opener_of(control); opener.control)
            way.opener = {form_.name(), opener.control->name(), column_, opener.row};
        told_.ways.push_back(std::move(way));
        return words;
    }

    const Control& control_;
    int column_;
    int row_;
    const Form& form_;
    Explanation told_;
};

} // namespace

Explanation explain(const Control& control, int column, int row) {
    try {
        return Telling(control, column, row).tell();
    } catch (const Failure& overflow) {
        return {overflow.what(), {}}; // a typed figure beyond what can be reckoned with
    }
}

} // namespace levora::widgets
