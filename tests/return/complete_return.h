#pragma once

#include "return/return_screen.h"

#include <initializer_list>

namespace levora::form_ba::testing {

inline void type_row(widgets::Grid& grid, int row, std::initializer_list<const char*> texts) {
    for (int column = 1; const char* text : texts) {
        if (*text && !grid.choose(column, row, text)) grid.type(column, row, text);
        ++column;
    }
}

// A return that uses every field and every schedule, as a person would type it, and that can be filed.
inline void type_complete_return(frmFormBA& f) {
    f.mskPAN.type("AAAPL1234C");
    f.txtFirstName.type("Asha");
    f.txtMiddleName.type("M");
    f.txtName.type("Rao & Sons");
    f.txtAddress1.type("12");
    f.txtAddress2.type("Caf\u00E9 Tower");
    f.txtAddress3.type("MG Road");
    f.txtAddress4.type("Camp");
    f.txtTown.type("Pune");
    f.cboState.choose("MAHARASHTRA");
    f.cboCountry.choose("INDIA");
    f.mskPin.type("411001");
    f.mskSTDCode.type("020");
    f.mskPhone.type("26100000");
    f.mskMobileNo.type("9800000001");
    f.txtEmail.type("asha@rao.example");
    f.mskDOB.type("31/05/1960");
    f.cboSex.choose("Female");
    f.cboStatus.choose("Individual");
    f.cboResStatus.choose("R-NOR");
    f.txtWard.type("W 1");
    f.mskValuationDate.type("31/03/2014");
    f.cboCitizen.choose("Yes");
    f.cboReturnType.choose("Revised");
    f.cboReturnCode.choose(2);
    f.txtReceiptNo.type("R/77");
    f.mskOriFillDate.type("15/07/2014");
    f.chkFirstReturnNo.click();
    f.chkAssessedToITYes.click();
    f.ChkCapacityReprYes.click();
    f.txtReprName.type("K Rao");
    f.txtReprAddress.type("Nagpur");
    f.mskReprPAN.type("AAAPK1234D");
    f.cboApplicableSec.choose("21AA(1)");
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
    f.txtMovTotalDeposit.type("11");
    f.txtMovAmtBondInvestment.type("12");
    f.txtMovAmtPostal.type("13");
    f.txtMovAmtFirm.type("14");
    f.txtMovAmtOther.type("15");
    f.txtTotalLiabilityOtherProp.type("5");
    f.txtNetWealthTax.type("1500");
    f.txtLateFilingInterest.type("30");
    f.txtBankAccountNo.type("77");
    f.txtMICRCode.type("ABCD0123456");
    f.cboAccountType.choose("Saving");
    f.cboAudited.choose("30th September");
    f.txtVerificationName.type("Asha Rao");
    f.txtVerificationFather.type("K Rao");
    f.mskVerificationPAN.type("AAAPL1234C");
    f.txtVerificationCapacity.type("Self");
    f.txtVerificationPlace.type("Pune");
    f.mskVerificationDate.type("20/08/2014");
}

} // namespace levora::form_ba::testing
