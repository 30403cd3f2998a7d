#include "return/return_check.h"

#include "return/sheet_fields.h"
#include "widgets/date_text.h"
#include "widgets/typed_control.h"
#include "widgets/value_text.h"

#include <cmath>

namespace levora::form_ba {

using widgets::Grid;
using widgets::TextField;

namespace {

constexpr double half_a_paisa = 0.005;

bool differ(double left, double right) {
    return std::abs(left - right) > half_a_paisa;
}

// Collects what is wrong with one return.
class PlainCheck {
public:
    PlainCheck(const frmFormBA& form, const session::Session& session) : form_(form), session_(session) {}

    std::vector<Finding> run() {
        choices();
        special_cases();
        amounts();
        totals();
        sheet();
        dates();
        rows();
        texts();
        return std::move(findings_);
    }

private:
    void add(Finding finding) { findings_.push_back(std::move(finding)); }
    void add(const widgets::Control& field, std::string what) { add(on_field(field, std::move(what))); }

    void choices() {
        for (const widgets::ListField* list : {&form_.cboState, &form_.cboStatus, &form_.cboResStatus,
                                               &form_.cboReturnCode, &form_.cboAudited})
            if (list->index() < 0) add(*list, "nothing is chosen");
        const auto pair = [this](const widgets::TickBox& yes, const widgets::TickBox& no) {
            if (!yes.ticked() && !no.ticked()) add(yes, "neither Yes nor No is ticked");
        };
        pair(form_.chkFirstReturnYes, form_.chkFirstReturnNo);
        pair(form_.chkAssessedToITYes, form_.chkAssessedToITNo);
        pair(form_.ChkCapacityReprYes, form_.ChkCapacityReprNo);
    }

    void special_cases() {
        if (form_.cboStatus.text() == "Individual" && form_.cboSex.index() < 0)
            add(form_.cboSex, "nothing is chosen, and the assessee is an individual");
        const bool refund = form_.txtRefundAmount.value() > 0;
        if (refund && form_.txtBankAccountNo.text().empty())
            add(form_.txtBankAccountNo, "is missing, and a refund is due");
        if (refund && form_.txtMICRCode.text().empty())
            add(form_.txtMICRCode, "is missing, and a refund is due");
        if (form_.cboReturnCode.index() == 2 && form_.cboReturnType.text() != "Revised")
            add(form_.cboReturnType, "the filing code is that of a revised return, this says original");
    }

    // What is no number is filed as 0 or by its leading digits.
    void amounts() {
        for (const TextField* field : {&form_.txtAggImmovableProperty,
                                       &form_.txtAggMovableProperty,
                                       &form_.txtAggrValOfJewellery,
                                       &form_.txtInducibleNetWealth,
                                       &form_.txtAggValueOfInterest,
                                       &form_.txtNETWEALTHInFigure,
                                       &form_.txtNetWealthTax,
                                       &form_.txtLateFilingInterest,
                                       &form_.txtTotalTaxAndInterest,
                                       &form_.txtTaxInterestPaid,
                                       &form_.txtAmtPayable,
                                       &form_.txtRefundAmount,
                                       &form_.txtAmtBTPTotal,
                                       &form_.TotalValMovableProp,
                                       &form_.txtJewlNetAmtTotal,
                                       &form_.txtMovTotalDeposit,
                                       &form_.txtMovAmtBondInvestment,
                                       &form_.txtMovAmtPostal,
                                       &form_.txtMovAmtFirm,
                                       &form_.txtMovAmtOther,
                                       &form_.txtTotalValOtherProperty,
                                       &form_.txtTotalLiabilityOtherProp,
                                       &form_.txtNetAmtOthProperty}) {
            const std::optional<double> number = strict_number(field->text());
            if (field->text().empty() || (number && *number == field->value())) continue;
            add(*field, "\"" + field->text() + "\" is no plain number; the file would have " +
                            number_text(field->value()));
        }
    }

    void total(const TextField& field, double sum) {
        if (differ(field.value(), sum))
            add(field, "the total " + number_text(field.value()) +
                           " differs from its grid, which adds up to " + number_text(sum));
    }

    static double sum_of(const Grid& grid, int column) {
        double sum = 0;
        for (int row = 1; row <= grid.data_rows(); ++row)
            sum += grid.value(column, row);
        return sum;
    }

    // Entries wherever they stand: an inserted row moves the total row on.
    [[nodiscard]] double other_persons() const {
        const Grid& grid = form_.sprInducibleNetWealth;
        double net = 0;
        for (int row = 1; row <= grid.rows(); ++row)
            if (grid.text(other_person_column::name, row) != "Total")
                net +=
                    grid.value(other_person_column::value, row) - grid.value(other_person_column::debt, row);
        return net < 0 ? 0 : net;
    }

    void totals() {
        total(form_.txtAmtBTPTotal, sum_of(form_.sprScheduleBTP, btp_column::amount));
        total(form_.txtAggregateImmovableProperty, sum_of(form_.sprImmovableProperty, immovable_column::net));
        total(form_.TotalValMovableProp, sum_of(form_.sprMovableProperty, movable_column::net));
        total(form_.txtJewlNetAmtTotal, sum_of(form_.sprJewellery, jewellery_column::net));
        total(form_.txtInducibleNetWealth, other_persons());
        total(form_.txtTotalInterestAmount, sum_of(form_.sprAssetInterest, firm_column::net));
        total(form_.txtTotalValOtherProperty,
              sum_of(form_.sprScheduleOPR, opr_column::cost) + form_.txtMovTotalDeposit.value() +
                  form_.txtMovAmtBondInvestment.value() + form_.txtMovAmtPostal.value() +
                  form_.txtMovAmtFirm.value() + form_.txtMovAmtOther.value());
    }

    void sheet_figure(const TextField& field, std::string_view name, const std::string& label) {
        const double computed = sheet_text(session_, name).value();
        if (differ(field.value(), computed))
            add(field, number_text(field.value()) + " differs from the " + label + " of the computation, " +
                           number_text(computed));
    }

    void sheet() {
        if (!session_.screens.find("frmWealthMain")) return;
        sheet_figure(form_.txtNETWEALTHInFigure, "txtNetWealth", "net wealth");
        sheet_figure(form_.txtNetWealthTax, "txtWealthTaxLiability", "tax");
        sheet_figure(form_.txtLateFilingInterest, "txtInterest", "interest");
    }

    void dates() {
        const std::optional<Date> valued = parse_date(form_.mskValuationDate.text());
        const auto not_before = [&](const widgets::MaskedField& field) {
            const std::optional<Date> date = parse_date(field.text());
            if (valued && date && *date < *valued)
                add(field, field.text() + " lies before the valuation date " + form_.mskValuationDate.text());
        };
        if (form_.cboReturnType.text() == "Revised") not_before(form_.mskOriFillDate);
        not_before(form_.mskVerificationDate);
    }

    void rows() {
        const Grid& other = form_.sprScheduleOPR;
        for (int row = 1; row <= other.data_rows(); ++row) {
            if (other.text(opr_column::head, row).empty())
                add(on_cell(other, opr_column::head, row,
                            "nothing is chosen; the file would be broken here"));
            state_chosen(other, opr_column::state, row);
        }
        const Grid& property = form_.sprImmovableProperty;
        for (int row = 1; row <= property.data_rows(); ++row) {
            if (property.text(immovable_column::asset_type, row).empty())
                add(on_cell(property, immovable_column::asset_type, row, "nothing is chosen"));
            state_chosen(property, immovable_column::state, row);
        }
        const Grid& movable = form_.sprMovableProperty;
        for (int row = 1; row <= movable.data_rows(); ++row) {
            if (movable.index(movable_column::description, row) >= 0) continue;
            add(on_cell(movable, movable_column::description, row,
                        movable.row_has_data(row) ? "this is no kind of the list"
                                                  : "this row is empty, and the file would have it"));
        }
        stones();
    }

    void state_chosen(const Grid& grid, int column, int row) {
        if (grid.index(column, row) >= 0) return;
        const std::string& text = grid.text(column, row);
        add(on_cell(grid, column, row,
                    text.empty() ? "no state is chosen"
                                 : "\"" + text + "\" is none of the states of the list"));
    }

    void stones() {
        const Grid& stone = form_.sprPreciousStone;
        for (int row = 1; row <= stone.data_rows(); ++row) {
            const double item = stone.value(stone_column::item, row);
            const bool known =
                item >= 1 && item <= form_.sprJewellery.data_rows() && item == std::floor(item);
            if (!known)
                add(on_cell(stone, stone_column::item, row,
                            "no jewellery has this number; the stone would not be in the file"));
        }
    }

    // The one character that the file can't hold.
    void texts() {
        constexpr std::string_view words = "holds \"<\", with which the file can't be read";
        for (const widgets::Control* each : form_.controls()) {
            if (const auto* field = widgets::as_if<TextField>(each)) {
                if (field->text().find('<') != std::string::npos) add(*field, std::string(words));
            } else if (const auto* mask = widgets::as_if<widgets::MaskedField>(each)) {
                if (mask->text().find('<') != std::string::npos) add(*mask, std::string(words));
            } else if (const auto* grid = widgets::as_if<Grid>(each)) {
                for (int row = 1; row <= grid->data_rows(); ++row)
                    for (int column = 1; column <= grid->columns(); ++column)
                        if (grid->text(column, row).find('<') != std::string::npos)
                            add(on_cell(*grid, column, row, std::string(words)));
            }
        }
    }

    const frmFormBA& form_;
    const session::Session& session_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> plain_findings(const frmFormBA& form, const session::Session& session) {
    return PlainCheck(form, session).run();
}

} // namespace levora::form_ba
