#include "return_fixture.h"

namespace levora::form_ba::testing {
namespace {

class FillTest : public ReturnTest {
protected:
    void add_assessee(const std::string& columns, const std::string& values) {
        run_assessee("INSERT INTO AssesseeInfo (AssesseeNo, " + columns + ") VALUES (1042, " + values + ")");
    }
    // One row of a table of the schedules for this assessee and year.
    void add(const std::string& table, const std::string& columns, const std::string& values) {
        run_tax("INSERT INTO [" + table + "] (AssesseeNo, FY, " + columns + ") VALUES (1042, '2014-2015', " +
                values + ")");
    }
};

TEST_F(FillTest, IndividualComesFromTheMaster) {
    add_assessee("PAN, FirstName, MiddleName, LastName, Address1, City, State, Status, Pin, Phone, STDCode, "
                 "MobileNo, eMail, Sex, Date_of_Birth, Ward, Residential_Status, Assessee_Name, Father_Name, "
                 "PRFather_Name",
                 "'AAAPL1234C', 'Asha', 'M', 'Rao', '12', 'Pune', 'Maharashtra', 0, '411001', '', '020', "
                 "'9800000001', 'a@b.example', 1, #05/31/1960#, 'W 1', 2, 'Asha M Rao', 'K Rao', 'P Rao'");
    run_assessee("INSERT INTO Bank (AssesseeNo, IFSCCode, Account_Type, Account_Number) VALUES (1042, "
                 "'ABCD0123456', 'Savings', '77')");
    sheet().mskDueDate.set_text("30/09/2014");
    frmFormBA& f = form();
    std::string text;
    std::istringstream names(
        "mskAY mskPAN txtFirstName txtMiddleName txtName txtAddress1 txtAddress2 txtTown mskPin mskPhone "
        "mskSTDCode mskMobileNo txtEmail mskDOB txtWard txtVerificationName txtVerificationFather "
        "mskVerificationPAN txtVerificationPlace mskVerificationDate mskValuationDate txtMICRCode "
        "txtBankAccountNo");
    for (std::string name; names >> name;)
        text += shown(f.find(name)) + "|";
    EXPECT_EQ(text,
              "2014-2015|AAAPL1234C|Asha|M|Rao|12||Pune|411001||020|9800000001|a@b.example|31/05/1960|W "
              "1|Asha M Rao|K Rao|AAAPL1234C|Pune|20/08/2014|31/03/2014|ABCD0123456|77|");
    EXPECT_EQ(f.cboState.text() + "|" + f.cboStatus.text() + "|" + f.cboSex.text() + "|" +
                  f.cboResStatus.text() + "|" + f.cboCountry.text() + "|" + f.cboReturnCode.text() + "|" +
                  f.cboReturnType.text() + "|" + f.cboCitizen.text() + "|" + f.cboAudited.text() + "|" +
                  f.cboAccountType.text(),
              "MAHARASHTRA|Individual|Female|R-NOR|INDIA|21- On or before due date u/s "
              "14(1)|Original|Yes|30th September|Saving");
    EXPECT_EQ(f.lblFillFrom.caption(), "Filled from Computation");
    EXPECT_EQ(f.lblFillFrom.forecolor(), 0x0000FFU);
}

struct StatusCase {
    const char *status, *shown, *name, *father;
};
constexpr StatusCase status_cases[] = {
    {"0", "Individual", "Office", "Father"},      {"1", "Hindu Undivided Family", "Father", "Grandfather"},
    {"10", "Companies", "Father", "Grandfather"}, {"13", "Companies", "Father", "Grandfather"},
    {"12", "", "Father", "Grandfather"},          {"Null", "", "Father", "Grandfather"},
};

TEST_F(FillTest, StatusDecidesWhoVerifies) {
    for (const StatusCase& each : status_cases) {
        SCOPED_TRACE(each.status);
        restart();
        run_assessee("DELETE * FROM AssesseeInfo");
        add_assessee("Status, Assessee_Name, Father_Name, PRFather_Name",
                     std::string(each.status) + ", 'Office', 'Father', 'Grandfather'");
        EXPECT_EQ(form().cboStatus.text(), each.shown);
        EXPECT_EQ(form().txtVerificationName.text(), each.name);
        EXPECT_EQ(form().txtVerificationFather.text(), each.father);
    }
}

TEST_F(FillTest, WithoutAMasterRowFieldsStayAndGridsAreReplaced) {
    add("AssetUnderExemption", "ExemptedAssetDesc", "'House'");
    frmFormBA& f = form();
    f.txtName.set_text("Typed");
    f.cboCitizen.set_index(1);
    f.mskVerificationDate.set_text("01/01/2014");
    f.txtAmtBTPTotal.set_text("7");
    f.sprAssetsClaimedExempt.type(exempt_column::description, 4, "Typed");
    f.sprScheduleOPR.type(opr_column::cost, 1, "5");
    f.cmdFillFromComputation.click();
    EXPECT_EQ(f.txtName.text() + " " + f.mskVerificationDate.text(), "Typed 01/01/2014");
    EXPECT_EQ(f.txtAmtBTPTotal.text(), "7") << "no prepaid tax, no new total";
    EXPECT_EQ(f.cboCitizen.text() + f.cboCountry.text() + f.cboAccountType.text(), "YesINDIA");
    EXPECT_EQ(cells(f.sprAssetsClaimedExempt), "House|0|0|\n");
    EXPECT_EQ(f.txtTotalValOtherProperty.text(), "5") << "other property stays";
}

TEST_F(FillTest, ABadMasterValueIsReportedAndEndsOnlyTheFirstHalf) {
    add_assessee("PAN, Status", "'NOT A PAN', 0");
    add("PrePaidTaxes", "Amount", "500");
    frmFormBA& f = form();
    EXPECT_EQ(message(), "Levora Wealth Tax - Error: 380 Invalid property value\n");
    EXPECT_EQ(f.cboStatus.text(), "");
    EXPECT_EQ(f.txtAmtBTPTotal.text(), "500");
}

TEST_F(FillTest, AMissingScheduleEndsTheOpeningNotTheScreen) {
    add("PrePaidTaxes", "Amount", "500");
    run_tax("DROP TABLE [Urban Land]");
    desk_.queue_answer(widgets::Answer::ok); // tried again, and reported again
    frmFormBA& f = form();
    EXPECT_EQ(desk_.take_messages().size(), 2U);
    EXPECT_NE(file_bytes(folder_.path() + "/program/ErrorLog.txt").find("\"frmFormBA - Form_Load\",1,"),
              std::string::npos);
    EXPECT_EQ(f.txtAmtBTPTotal.text() + f.lblFillFrom.caption(), "500");
}

TEST_F(FillTest, EverySchedule) {
    add("PrePaidTaxes", "BSRCode, DateOfPayment, ChallanSrNo, Amount",
        "'0123456', #07/15/2014#, '00123', 1000");
    add("PrePaidTaxes", "BSRCode", "'0000001'");
    const std::string place =
        ", Flat, Premises, Road, Area, City, State, Country, pincode, survey, DebtOwed, "
        "NameRegValuer, RegNoValuer, DateofReportByValuer, AssetType";
    const std::string there = ", '1', 'Tower', 'MG Road', 'Camp', 'Pune', 'Goa', 'INDIA', '411001', 'S1', "
                              "100, 'V', 'R9', '01/04/2014', ";
    add("Immovable Property Details", "TypeOfProperty, NetValueOfProperty, NetValue" + place,
        "'Guest House', 5000, 4900" + there + "1");
    add("Immovable Property Details", "TypeOfProperty, NetValueOfProperty, NetValue" + place,
        "'Deemed', 9, 9" + there + "2");
    add("Urban Land", "UrbanLandDescription, ValueOfUrbanLand, NetAmount" + place,
        "'Plot', 300, 200" + there + "1");
    add("Urban Land", "UrbanLandDescription, AssetType, State", "'Far', 0, 'Tamil Nadu'"); // not listed
    add("Movable Property Details", "AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount",
        "0, 3, 'cash-in-hand', 70, 0, 70");
    add("Movable Property Details", "AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount",
        "1, 1, Null, 40, 15, 25");
    add("DeemedAssetDetails",
        "NameofOtherPerson, Relationship, PANOther, DeemedAssetValue, DebtOwed, NetAmount",
        "'Minor', 'Son', 'AAAPL1234C', 80, 90, 0");
    add("InterestInFirmOrAOP",
        "AssetType, NameAddressofFirm, AddressofFirm, PANOfFirm, NameOfPartner, ProfitSharingRatio, "
        "ValueOfInterest, DebtOwed, NetAmount",
        "0, 'Firm', 'Nagpur', 'AAAFL1234C', 'B', 0.3333, 60, 10, 50");
    add("jewellery",
        "ItemDesc, Unit, GrossWeight, NetWeight, DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, "
        "TotalValOfJewellery, DebtOwned, NetAmt",
        "'Ring', 'Grams', 12.5, 11, '20', '20', 900, 100, 800");
    add("PreciousStones", "JwelleryDetailNo, Description, Weight, ValueOfStones", "2, 'Ruby', '3', 5");
    add("PreciousStones", "JwelleryDetailNo, Description, Weight, ValueOfStones", "1, 'Opal', '2', 15");
    add("AssetUnderExemption", "ExemptedAssetDesc, ExemptedAmount, DebtOwed, NetAmount, ResonsForClaim",
        "'House', 700, 50, 650, 'One house'");
    sheet().txtWealthTaxLiability.set_text("1500");
    sheet().txtInterest.set_text("30");

    frmFormBA& f = form();
    EXPECT_EQ(cells(f.sprScheduleBTP), "0123456|15/07/2014|00123|1000\n0000001|||0\n");
    EXPECT_EQ(
        cells(f.sprImmovableProperty),
        "Building|Guest House|1|Tower|MG Road|Camp|Pune|GOA|INDIA|411001|S1|5000|100|4900|V|R9|01/04/2014\n"
        "Urban Land|Plot|1|Tower|MG Road|Camp|Pune|GOA|INDIA|411001|S1|300|100|200|V|R9|01/04/2014\n"
        "Urban Land|Far||||||||||0|0|0|||\n");
    EXPECT_EQ(cells(f.sprMovableProperty), " |40|15|25\n|||0\nCash-in-Hand|70|0|70\n");
    EXPECT_EQ(cells(f.sprInducibleNetWealth, 1), "Minor|Son|AAAPL1234C|80|90|0\n");
    EXPECT_EQ(cells(f.sprAssetInterest), "Firm|Nagpur|AAAFL1234C|B|33.33|60|10|50\n");
    EXPECT_EQ(cells(f.sprJewellery), "Ring|Grams|12.5|11|20|20|900|100|800|||\n");
    EXPECT_EQ(cells(f.sprPreciousStone), "1|Opal|2|15\n2|Ruby|3|5\n");
    EXPECT_EQ(cells(f.sprAssetsClaimedExempt), "House|700|50|One house\n");
    // 4900 + 200, 25 + 70, 0 and 50; the jewellery waits for an edit
    EXPECT_EQ(f.txtNETWEALTHInFigure.text(), "5245");
    EXPECT_EQ(f.txtTotalTaxAndInterest.text() + " " + f.txtAmtPayable.text(), "1530 530");
    EXPECT_EQ(f.txtJewlNetAmtTotal.text(), "");
    f.sprJewellery.type(jewellery_column::valuer_name, 1, "V"); // wanted: now the total follows
    EXPECT_EQ(f.txtJewlNetAmtTotal.text(), "800");
}

TEST_F(FillTest, WantedThirteenthPersonIsWrittenOverTheTotalRow) {
    for (int i = 1; i <= 14; ++i)
        add("DeemedAssetDetails", "NameofOtherPerson, DeemedAssetValue, DebtOwed, NetAmount",
            "'P" + std::to_string(i) + "', 10, 0, 10");
    frmFormBA& f = form();
    EXPECT_EQ(f.sprInducibleNetWealth.rows(), 14);
    EXPECT_EQ(f.sprInducibleNetWealth.text(other_person_column::name, total_row), "P13");
    EXPECT_EQ(f.txtInducibleNetWealth.text(), "120"); // its sums go on over rows 1 to 12
    f.ClearFormBA(); // an import too gives the total row its name back, where an inserted row has moved it
    EXPECT_EQ(f.sprInducibleNetWealth.text(other_person_column::name, total_row), "Total");
    f.sprInducibleNetWealth.set_active(1, 1);
    f.sprInducibleNetWealth.press_key("Ctrl+Insert");
    run_tax("DELETE * FROM DeemedAssetDetails");
    f.cmdFillFromComputation.click();
    EXPECT_EQ(f.sprInducibleNetWealth.text(other_person_column::name, total_row), "");
    EXPECT_EQ(f.sprInducibleNetWealth.text(other_person_column::name, total_row + 1), "Total");
}

} // namespace
} // namespace levora::form_ba::testing
