#pragma once

#include "challan/challan282.h"
#include "session/fresh_start.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace levora::challan {

// Assessee 17 on empty stores, with two banks of the suite's list; today is 16/09/2014.
class ChallanTest : public testing::Test, protected session::testing::FreshStart {
protected:
    ChallanTest() {
        session.AssesseeNo = 17;
        session.CurrentFY = "2014-2015";
        session.AssesseeDb.open(folder.connect_string(session::Store::assessee));
        session.FormsDb.open(folder.connect_string(session::Store::forms));
        desk.set_today({2014, 9, 16});
        session.screens.define("frmChallan282", [this] { return std::make_unique<frmChallan282>(session); });
        run(session::Store::assessee,
            "INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1, SrNo) VALUES "
            "('Bank', 'Second Bank', '0220002', 2), ('Bank', 'First Bank', '0110001', 1)");
    }

    frmChallan282& screen() { return session.screens.get<frmChallan282>("frmChallan282"); }
    bool close() { return session.screens.close("frmChallan282"); }
    void stored(const std::string& year, const std::string& date, const std::string& type, int total,
                const std::string& instalment = "Null") {
        run(session::Store::forms,
            "INSERT INTO Challan (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, "
            "InstallmentNo, IncomeTax, Total) VALUES (17, '" +
                year + "', 'ITNS282', " + date + ", 7, '" + type + "', " + instalment + ", " +
                std::to_string(total) + ", " + std::to_string(total) + ")");
    }
    // The list as a person sees it, its row keys behind.
    std::string list() {
        std::string text;
        const widgets::ColumnList& rows = screen().cboChallanList;
        for (int row = 0; row < rows.count(); ++row) {
            for (int column = 0; column < rows.columns(); ++column)
                text += (column > 0 ? "|" : "") + rows.cell(row, column);
            text += "\n";
        }
        return text;
    }
    std::string amounts() {
        frmChallan282& on = screen();
        return on.txtIncomeTax.text() + " " + on.txtSurcharge.text() + " " + on.txtEducationCess.text() +
               " " + on.txtInterest.text() + " " + on.txtPenalty.text() + " " + on.txtOther.text() + " = " +
               on.txtTotal.text();
    }
    // Answers given to the boxes since the last look, and their texts in short.
    std::string boxes() {
        std::string text;
        for (const auto& shown : desk.take_messages())
            text += (text.empty() ? "" : "; ") + shown.box.title + ": " + shown.box.text.substr(0, 24);
        return text;
    }

    session::Session& session = new_session("");
};

} // namespace levora::challan
