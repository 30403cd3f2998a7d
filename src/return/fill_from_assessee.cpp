#include "return/return_screen.h"
#include "return/sheet_fields.h"
#include "session/common_services.h"

#include <functional>

namespace levora::form_ba {

using session::RowSet;
using session::Value;

namespace {

// The position in cboStatus of the master's status: individual, Hindu undivided family, the three
// kinds of company.
int status_position(int status) {
    switch (status) {
    case 0:
    case 1:
        return status;
    case 10:
    case 11:
    case 13:
        return 2;
    default:
        return -1;
    }
}

int whole_or_none(const Value& value) {
    return value.is_null() ? -1 : static_cast<int>(to_long(value.number()));
}

// The position in cboAudited of the month of the due date.
int due_date_position(std::string_view due_date) {
    switch (static_cast<int>(val(due_date.substr(0, 5).substr(3)))) {
    case 7:
        return 0;
    case 9:
        return 1;
    case 11:
        return 2;
    default:
        return -1;
    }
}

} // namespace

void frmFormBA::FillFromAssessee() {
    session::procedure(session_, "frmFormBA - Form_Load", [this](const auto& attempt) {
        // Wanted: a subscript error is passed over and the next statement runs.
        const auto step = [&attempt](const std::function<void()>& statement) {
            attempt([&statement] {
                try {
                    statement();
                } catch (const Failure& error) {
                    if (error.number != error_number::subscript) throw;
                }
            });
        };
        fill_from_master(step);
        fill_for_every_assessee(step);
        fill_from_bank(step);
    });
}

void frmFormBA::fill_from_master(const Step& step) {
    RowSet row;
    step([&] {
        session_.SqlText = "SELECT * FROM AssesseeInfo WHERE AssesseeNo = " + session_.assessee_text() + " ;";
        row = session_.AssesseeDb.open_rows(session_.SqlText);
    });
    if (!row.is_open() || row.eof()) return;

    const auto text = [&](const char* column, auto& field) {
        step([&row, &field, column] { field.set_text(row[column].text()); });
    };
    const auto text_unless_null = [&](const char* column, auto& field) {
        step([&row, &field, column] {
            if (!row[column].is_null()) field.set_text(row[column].text());
        });
    };
    const auto text_if_any = [&](const char* column, auto& field) {
        step([&row, &field, column] {
            if (!row[column].text().empty()) field.set_text(row[column].text());
        });
    };

    text_unless_null("PAN", mskPAN);
    text("FirstName", txtFirstName);
    text("MiddleName", txtMiddleName);
    text("LastName", txtName);
    text("Address1", txtAddress1);
    text("Address2", txtAddress2);
    text("Address3", txtAddress3);
    text("Address4", txtAddress4);
    text("City", txtTown);
    text_unless_null("State", cboState);
    int status = -1;
    step([&] {
        status = whole_or_none(row["Status"]);
        cboStatus.set_index(status_position(status));
    });
    text_if_any("Pin", mskPin);
    text_if_any("Phone", mskPhone);
    text("STDCode", mskSTDCode);
    text("MobileNo", mskMobileNo);
    text("eMail", txtEmail);
    step([&] { cboSex.set_index(whole_or_none(row["Sex"])); });
    step([&] {
        const std::optional<Date> born = row["Date_of_Birth"].date();
        mskDOB.set_text(born ? day_month_year(*born) : "__/__/____");
    });
    text("Ward", txtWard);
    step([&] {
        const int first_year = to_long(session_.AYStartYear);
        mskAY.set_text(session_.AYStartYear + "-" + number_text(first_year + 1));
    });
    step([&] { cboResStatus.set_index(whole_or_none(row["Residential_Status"])); });

    if (status == 0) {
        text("Assessee_Name", txtVerificationName);
        text("Father_Name", txtVerificationFather);
        text("PAN", mskVerificationPAN);
    } else { // the master keeps the person who signs for others under the father's names
        text("Father_Name", txtVerificationName);
        text("PRFather_Name", txtVerificationFather);
    }
    text("City", txtVerificationPlace);
}

void frmFormBA::fill_for_every_assessee(const Step& step) {
    step([this] { cboCountry.set_text("India"); });
    step([this] { cboReturnCode.set_index(0); });
    step([this] { cboReturnType.set_index(0); });
    step([this] { cboCitizen.set_index(0); });
    step([this] {
        if (mskVerificationDate.is_empty())
            mskVerificationDate.set_text(day_month_year(session_.desk.today()));
    });
    step([this] { mskValuationDate.set_text(sheet_mask(session_, "mskValuationDate").text()); });
    step([this] {
        const int position = due_date_position(sheet_mask(session_, "mskDueDate").text());
        if (position >= 0) cboAudited.set_index(position);
    });
}

void frmFormBA::fill_from_bank(const Step& step) {
    RowSet bank;
    step([&] {
        session_.SqlText = "Select * from Bank where AssesseeNo = " + session_.assessee_text();
        bank = session_.AssesseeDb.open_rows(session_.SqlText);
    });
    if (!bank.is_open() || bank.eof()) return;
    step([&] { txtMICRCode.set_text(bank["IFSCCode"].text()); });
    step([&] { cboAccountType.set_text(bank["Account_Type"].text() == "Savings" ? "Saving" : "Current"); });
    step([&] { txtBankAccountNo.set_text(bank["Account_Number"].text()); });
}

} // namespace levora::form_ba
