#include "challan/challan282.h"

#include "session/unread_rows.h"
#include "widgets/value_text.h"

#include <array>

namespace levora::challan {

using namespace session;
using namespace widgets;

namespace {

// "dd/MM/yyyy" of a field that holds a date, else the empty text.
std::string date_shown(const MaskedField& field) {
    return is_date(field.text()) ? field.text() : std::string();
}

// The cell "Type" of the list.
std::string payment_text(double type_of_payment, const std::string& instalment) {
    if (type_of_payment == 100) return "Adv. Tax" + (instalment.empty() ? "" : " (" + instalment + ")");
    if (type_of_payment == 300) return "SA Tax";
    if (type_of_payment == 400) return "On Assessment";
    return {};
}

// A whole number without grouping; a Null is the empty text.
std::string whole_text(const Value& value) {
    return value.is_null() ? std::string() : number_text(round_half_even(value.number()));
}

constexpr int key_column = 4; // of cboChallanList

// The address columns of the assessee: at home, or else in the office.
struct AddressColumns {
    const char *first, *second, *third, *city, *pin, *state;
};
constexpr AddressColumns residence{"ResAddress1", "ResAddress2", "ResAddress3",
                                   "ResCity",     "ResPIN",      "ResState"};
constexpr AddressColumns office{"Address1", "Address2", "Address3", "City", "Pin", "State"};

} // namespace

void frmChallan282::LoadMasterData() {
    procedure(session_, "frmChallan282 - LoadMasterData", [&](const Attempt& attempt) {
        session_.SqlText = "SELECT * FROM AssesseeInfo WHERE AssesseeNo = " + session_.assessee_text() + " ;";
        const RowSet row = attempt([&] { return session_.AssesseeDb.open_rows(session_.SqlText); });
        if (row.eof()) return;
        attempt([&] { txtPan.set_text(row["PAN"].text()); });
        attempt([&] { txtName.set_text(row["Assessee_Name"].text()); });
        const AddressColumns& from = session_.UseResidentialAddress ? residence : office;
        // The separators stay where their neighbours are empty.
        attempt([&] { txtAddress1.set_text(row[from.first].text() + ", " + row[from.second].text()); });
        attempt([&] {
            txtAddress2.set_text(row[from.third].text() + ", " + row[from.city].text() + " - " +
                                 row[from.pin].text() + ", " + row[from.state].text());
        });
    });
}

void frmChallan282::LoadAllChallansForAssessee() {
    procedure(session_, "frmChallan282 - LoadAllChallansForAssessee", [&](const Attempt& attempt) {
        session_.SqlText =
            "SELECT ChallanID, AY, ChallanDate, TaxApplicable, TypeOfPayment, Total, InstallmentNo "
            "FROM Challan WHERE AssesseeNo = " +
            session_.assessee_text() + " And ChallanNo = '" + ChallanNo + "' ORDER BY AY DESC, ChallanDate;";
        RowSet rows = attempt([&] { return session_.FormsDb.open_rows(session_.SqlText); });
        for (; !rows.eof(); rows.move_next()) {
            attempt([&] {
                const Value& instalment = rows["InstallmentNo"];
                cboChallanList.add_row(
                    {rows["AY"].text(), rows["ChallanDate"].day_month_year_or_empty(),
                     payment_text(rows["TypeOfPayment"].number(),
                                  instalment.number() > 0 ? instalment.text() : std::string()),
                     group_indian(rows["Total"].number()), rows["ChallanID"].text()});
            });
        }
    });
}

void frmChallan282::ClearChallan() {
    mskChallanDate.set_text(day_month_year(session_.desk.today()));
    optSATax.set_value(true);
    for (TextField* field : {&txtIncomeTax, &txtSurcharge, &txtEducationCess, &txtInterest, &txtPenalty,
                             &txtOther, &txtTotal, &txtChequeNo})
        field->set_text("");
    mskChqDate.set_text("__/__/____");
    cboDrawnOn.set_text("");
}

void frmChallan282::LoadChallan() {
    challan_read_ = procedure(session_, "frmChallan282 - LoadChallan", [&](const Attempt& attempt) {
        attempt([&] { ClearChallan(); });
        session_.SqlText = "SELECT * From Challan Where ChallanID = " + number_text(ChallanID) + " ;";
        const RowSet row = attempt([&] { return session_.FormsDb.open_rows(session_.SqlText); });
        if (!row.eof()) attempt([&] { show_row(row); });
    });
}

void frmChallan282::show_row(const RowSet& row) {
    // The text alone: the logic of the year, and so mskFinancialYear, waits for a person's choice.
    cboAssessmentYear.set_text(row["AY"].text());
    mskChallanDate.set_text(row["ChallanDate"].day_month_year_or_empty());
    show_options(row);
    // The stored cess comes after the two amounts whose changes work one out, and so it wins.
    txtIncomeTax.set_text(whole_text(row["IncomeTax"]));
    txtSurcharge.set_text(whole_text(row["Surcharge"]));
    txtEducationCess.set_text(whole_text(row["EducationCess"]));
    txtInterest.set_text(whole_text(row["Interest"]));
    txtPenalty.set_text(whole_text(row["Penalty"]));
    txtOther.set_text(whole_text(row["Other"]));
    txtChequeNo.set_text(row["ChqNo"].text());
    if (row["ChqDate"].date()) mskChqDate.set_text(row["ChqDate"].day_month_year_or_empty());
    cboDrawnOn.set_text(row["DrawnOnBank"].text());
    if (row["DateOfPayment"].date())
        mskDateOfPayment.set_text(row["DateOfPayment"].day_month_year_or_empty());
    cboPaymentBank.set_text(row["BankBranchName"].text());
    txtBSRCode.set_text(row["BSRCode"].text());
    txtChallanSrNo.set_text(row["ChallanSrNo"].text());
}

void frmChallan282::show_options(const RowSet& row) {
    struct CodedOption {
        double code;
        OptionButton& option;
    };
    const std::array taxes{
        CodedOption{3, optHotelTax},   CodedOption{4, optInterestTax}, CodedOption{5, optExpenditureTax},
        CodedOption{6, optEstateDuty}, CodedOption{7, optGiftTax},     CodedOption{0, optSecTranTax},
    };
    const std::array payments{CodedOption{100, optAdvTax}, CodedOption{300, optSATax},
                              CodedOption{400, optRegularAssmtTax}};
    const auto choose = [&row](std::string_view column, const auto& options) {
        if (row[column].is_null()) return;
        for (const CodedOption& each : options)
            if (row[column].number() == each.code) each.option.set_value(true);
    };
    choose("TaxApplicable", taxes);
    choose("TypeOfPayment", payments);
}

bool frmChallan282::SaveChallan() {
    bool kept = false;
    const bool saved = procedure(session_, "frmChallan282 - SaveChallan", [&](const Attempt& attempt) {
        const auto open = [&](const std::string& select) {
            session_.SqlText = select;
            return attempt([&] { return session_.FormsDb.open_rows(session_.SqlText, RowSetUse::update); });
        };
        IsNewChallan = false;
        RowSet row;
        if (const std::optional<Date> date = parse_date(mskChallanDate.text())) {
            row = open("SELECT * from Challan Where AssesseeNo = " + session_.assessee_text() +
                       " AND ChallanDate = #" + month_day_year(*date) + "# ;");
            // Wanted: what is overwritten is the challan on the screen, not the one of the same date,
            // which may be another, or this one itself.
            if (!row.eof() && may_overwrite()) {
                row.close();
                row = open("SELECT * from Challan Where ChallanID = " + number_text(ChallanID) + " ;");
                IsNewChallan = row.eof();
                kept = !IsNewChallan && !challan_read_ &&
                       ask_over_unread(session_, "Parts of the stored challan") != OverUnread::save;
                if (kept) return;
            } else {
                IsNewChallan = true;
            }
        } else {
            row = open("Challan");
            IsNewChallan = true;
        }
        if (IsNewChallan) attempt([&] { row.add_new(); });
        attempt([&] { ChallanID = to_long(row["ChallanID"].number()); });
        attempt([&] { write_columns(row); });
        attempt([&] { row.update(); });
        row.close();
        list_saved_challan();
        challan_read_ = true;
        ChallanDirty = false;
    });
    return saved && !kept;
}

bool frmChallan282::may_overwrite() {
    return says_yes(session_.desk, {.text = "Overwrite the changes to existing challan of the same date ?\n"
                                            "Yes - To overwrite in same challan \n"
                                            " No - To create new challan entry",
                                    .title = {},
                                    .icon = Icon::question,
                                    .buttons = {Answer::yes, Answer::no}});
}

void frmChallan282::write_columns(RowSet& row) const {
    const auto write_date = [&row](std::string_view column, const MaskedField& field) {
        if (const std::optional<Date> date = parse_date(field.text())) row.set(column, iso_date(*date));
    };
    row.set("AssesseeNo", session_.AssesseeNo);
    row.set("AY", cboAssessmentYear.text());
    row.set("ChallanNo", ChallanNo);
    write_date("ChallanDate", mskChallanDate);
    row.set("TaxApplicable", TaxApplicable);
    row.set("TypeOfPayment", TypeOfPayment);
    if (TypeOfPayment == "100") row.set("InstallmentNo", txtInstallmentNo.value());
    row.set("TypeOfTDS", 0);
    row.set("IncomeTax", IncomeTaxAmount);
    row.set("Surcharge", SurchargeAmount);
    row.set("EducationCess", EducationCessAmount);
    row.set("Interest", InterestAmount);
    row.set("Penalty", PenaltyAmount);
    row.set("Other", OtherAmount);
    row.set("Total", TotalAmount);
    row.set("ChqNo", txtChequeNo.text());
    write_date("ChqDate", mskChqDate);
    row.set("DrawnOnBank", cboDrawnOn.text());
    write_date("DateOfPayment", mskDateOfPayment);
    row.set("BankBranchName", cboPaymentBank.text());
    row.set("BSRCode", txtBSRCode.text());
    row.set("ChallanSrNo", txtChallanSrNo.text());
}

void frmChallan282::list_saved_challan() {
    std::string type = payment_text(val(TypeOfPayment), {});
    if (TypeOfPayment == "100" && txtInstallmentNo.text() != "0")
        type += " (" + txtInstallmentNo.text() + ")";
    std::vector<std::string> cells{cboAssessmentYear.text(), date_shown(mskChallanDate), std::move(type),
                                   group_indian(TotalAmount), number_text(ChallanID)};
    if (IsNewChallan) {
        cboChallanList.add_row(std::move(cells));
        return;
    }
    const int row = listed_row();
    for (int column = 0; row >= 0 && column < cboChallanList.columns(); ++column)
        cboChallanList.set_cell(row, column, std::move(cells[static_cast<std::size_t>(column)]));
}

int frmChallan282::listed_row() const {
    if (ListRow >= 0 && ListRow < cboChallanList.count()) return ListRow;
    // After New no row is shown, yet the challan last loaded may have been overwritten.
    for (int row = 0; row < cboChallanList.count(); ++row)
        if (cboChallanList.cell(row, key_column) == number_text(ChallanID)) return row;
    return -1;
}

Answer frmChallan282::ask_to_save(const char* title) {
    ChallanDirty = false;
    bring_up();
    return session_.desk
        .show_message({.text = "Save Changes made to New / Edited challan ?",
                       .title = title,
                       .icon = Icon::question,
                       .buttons = {Answer::yes, Answer::no, Answer::cancel}})
        .value_or(Answer::cancel);
}

void frmChallan282::cboChallanList_Click() {
    if (cboChallanList.index() != ListRow && ChallanDirty) {
        const Answer answer = ask_to_save("Levora Forms - Challan");
        if (answer == Answer::cancel || (answer == Answer::yes && !cmdSave_Click())) {
            // A row that a delete has taken away can't be gone back to.
            cboChallanList.set_index(ListRow < cboChallanList.count() ? ListRow : -1);
            ChallanDirty = true;
            SaveCancelled = true;
            return;
        }
    }
    // Saving may have moved the selection, and with it ListRow.
    const int row = cboChallanList.index();
    if (row == ListRow) return;
    if (row != -1) {
        ChallanID = to_long(cboChallanList.cell(row, key_column));
        LoadChallan();
        ChallanDirty = false;
    }
    ListRow = row;
}

bool frmChallan282::cmdSave_Click() {
    if (!SaveChallan()) {
        // What could not be stored stays on the screen, and is asked for again.
        ChallanDirty = true;
        return false;
    }
    if (IsNewChallan) {
        cboChallanList.set_index(cboChallanList.count() - 1);
    } else {
        const int row = cboChallanList.index();
        cboChallanList.set_index(-1);
        cboChallanList.set_index(row);
    }
    return true;
}

void frmChallan282::cmdNew_Click() {
    SaveCancelled = false;
    // Also where nothing is selected: a new challan may wait to be saved.
    if (cboChallanList.index() == -1)
        cboChallanList_Click();
    else
        cboChallanList.set_index(-1);
    if (SaveCancelled) return;
    ClearChallan();
    ChallanDirty = false;
}

void frmChallan282::cmdDelete1_Click() {
    if (!says_yes(session_.desk, {.text = "Delete Selected challan?",
                                  .title = {},
                                  .icon = Icon::question,
                                  .buttons = {Answer::yes, Answer::no}}))
        return;
    // Wanted: no look whether a challan is selected; after New this deletes the one last loaded.
    session_.SqlText = "DELETE FROM CHALLAN Where ChallanID = " + number_text(ChallanID) + " ;";
    session_.FormsDb.execute(session_.SqlText);
    if (cboChallanList.index() != -1) cboChallanList.remove_row(cboChallanList.index());
    cboChallanList.set_text("");
    ClearChallan();
    ChallanDirty = false;
}

} // namespace levora::challan
