#pragma once

#include "return/return_screen.h"

#include <initializer_list>
#include <utility>

namespace levora::form_ba::testing {

inline void type_row(widgets::Grid& grid, int row, std::initializer_list<const char*> texts) {
    for (int column = 1; const char* text : texts) {
        if (*text && !grid.choose(column, row, text)) grid.type(column, row, text);
        ++column;
    }
}

// Each field by its name: a list is chosen from, everything else typed.
inline void type_fields(frmFormBA& f, std::initializer_list<std::pair<const char*, const char*>> texts) {
    for (const auto& [name, text] : texts) {
        widgets::Control* const field = f.find(name);
        if (auto* list = dynamic_cast<widgets::ListField*>(field)) list->choose(text);
        if (auto* mask = dynamic_cast<widgets::MaskedField*>(field)) mask->type(text);
        if (auto* line = dynamic_cast<widgets::TextField*>(field)) line->type(text);
    }
}

// A return that uses every field and every schedule, as a person would type it, and that can be filed.
inline void type_complete_return(frmFormBA& f) {
    // clang-format off
    type_fields(f, {
        {"mskPAN", "AAAPL1234C"}, {"txtFirstName", "Asha"}, {"txtMiddleName", "M"},
        {"txtName", "Rao & Sons"}, {"txtAddress1", "12"}, {"txtAddress2", "Caf\u00E9 Tower"},
        {"txtAddress3", "MG Road"}, {"txtAddress4", "Camp"}, {"txtTown", "Pune"},
        {"cboState", "MAHARASHTRA"}, {"cboCountry", "INDIA"}, {"mskPin", "411001"}, {"mskSTDCode", "020"},
        {"mskPhone", "26100000"}, {"mskMobileNo", "9800000001"}, {"txtEmail", "asha@rao.example"},
        {"mskDOB", "31/05/1960"}, {"cboSex", "Female"}, {"cboStatus", "Individual"},
        {"cboResStatus", "R-NOR"}, {"txtWard", "W 1"}, {"mskValuationDate", "31/03/2014"},
        {"cboCitizen", "Yes"}, {"cboReturnType", "Revised"}, {"txtReceiptNo", "R/77"},
        {"mskOriFillDate", "15/07/2014"}, {"txtReprName", "K Rao"}, {"txtReprAddress", "Nagpur"},
        {"mskReprPAN", "AAAPK1234D"}, {"cboApplicableSec", "21AA(1)"}});
    // clang-format on
    f.cboReturnCode.choose(2);
    f.chkFirstReturnNo.click();
    f.chkAssessedToITYes.click();
    f.ChkCapacityReprYes.click();
    type_row(f.sprScheduleBTP, 1, {"0123456", "15/07/2014", "00123", "1000.5"});
    type_row(f.sprScheduleBTP, 2, {"6543210", "16/07/2014", "7", "200"});
    type_row(f.sprImmovableProperty, 1,
             {"Building", "House", "1", "Tower", "MG Road", "Camp", "Pune", "GOA", "", "411001", "S1", "5000",
              "100", "", "V", "R9", "01/04/2014"});
    type_row(f.sprImmovableProperty, 2,
             {"Urban Land", "Plot", "2", "", "", "", "Agra", "UTTAR PRADESH", "", "", "", "300", ""});
    type_row(f.sprMovableProperty, 1, {"Motor Cars", "40", "15"});
    type_row(f.sprMovableProperty, 2, {"Cash-in-Hand", "70"});
    type_row(f.sprJewellery, 1,
             {"Ring", "Grams", "12.50", "11", "", "20", "900", "100", "", "V2", "R2", "02/04/2014"});
    type_row(f.sprJewellery, 2, {"Chain", "Carat", "3", "2", "", "6", "50"});
    type_row(f.sprPreciousStone, 1, {"1", "Opal", "2.0", "15"});
    type_row(f.sprPreciousStone, 2, {"2", "Ruby", "1", "6"});
    type_row(f.sprPreciousStone, 3, {"1", "Pearl", "1", "5"});
    type_row(f.sprInducibleNetWealth, 2, {"Minor", "Son", "AAAPM1234C", "80", "30"});
    type_row(f.sprAssetInterest, 1, {"Firm", "Nagpur", "AAAFL1234C", "B", "33.33", "60", "10"});
    type_row(f.sprAssetsClaimedExempt, 1, {"House", "700", "50", "One house"});
    type_row(f.sprScheduleOPR, 1,
             {"CommercialBuilding", "90", "Shop", "12A", "Mall", "Ring Road", "Camp", "Pune", "Maharashtra",
              "", "411002", "9B"});
    type_row(
        f.sprScheduleOPR, 2,
        {"AgriculturalLand", "10", "Farm", "3C", "", "", "", "Karad", "Telangana", "", "415110", "44/2"});
    // clang-format off
    type_fields(f, {
        {"txtMovTotalDeposit", "11"}, {"txtMovAmtBondInvestment", "12"}, {"txtMovAmtPostal", "13"},
        {"txtMovAmtFirm", "14"}, {"txtMovAmtOther", "15"}, {"txtTotalLiabilityOtherProp", "5"},
        {"txtNetWealthTax", "1500"}, {"txtLateFilingInterest", "30"}, {"txtBankAccountNo", "77"},
        {"txtMICRCode", "ABCD0123456"}, {"cboAccountType", "Saving"}, {"cboAudited", "30th September"},
        {"txtVerificationName", "Asha Rao"}, {"txtVerificationFather", "K Rao"},
        {"mskVerificationPAN", "AAAPL1234C"}, {"txtVerificationCapacity", "Self"},
        {"txtVerificationPlace", "Pune"}, {"mskVerificationDate", "20/08/2014"}});
    // clang-format on
}

} // namespace levora::form_ba::testing
