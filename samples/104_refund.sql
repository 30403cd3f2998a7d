-- An individual whose prepaid tax exceeds the tax: a refund.

-- The master
INSERT INTO AssesseeInfo
    (AssesseeNo, Assessee_Name, Office_Name, Father_Name, PRFather_Name, FirstName, MiddleName,
     LastName, Address1, Address2, Address3, Address4, City, District, State, Pin, Phone, STDCode,
     MobileNo, eMail, Sex, Status, Residential_Status, Ward, PAN, Date_of_Birth, ResAddress1,
     ResAddress2, ResAddress3, ResAddress4, ResCity, ResDistrict, ResState, ResPIN)
VALUES
    (104, 'Farrokh Daruwalla', '', 'Sohrab Daruwalla', '', 'Farrokh', 'Sohrab', 'Daruwalla', '5',
     'Cusrow Baug', 'Colaba Causeway', 'Colaba', 'Mumbai', 'Mumbai', 'MAHARASHTRA', '400001',
     '22841166', '022', '9820055667', 'farrokh@example.in', 0, 0, 2, 'Ward 12(1)(2), Mumbai',
     'AFRPD3456N', '1957-02-03', '5', 'Cusrow Baug', 'Colaba Causeway', 'Colaba', 'Mumbai', 'Mumbai',
     'MAHARASHTRA', '400001');
INSERT INTO Bank
    (AssesseeNo, IFSCCode, Account_Type, Account_Number)
VALUES
    (104, 'SBIN0001821', 'Savings', '10988123456');

-- Assets
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (104, '2014-2015', 0, 1, 'Residential House', '21', 'Mumbai', 'Nepean Sea Road', 'Malabar Hill',
     'Mumbai', 'Maharashtra', 'INDIA', '400006', 'CTS 551', 0, 420000, 42000,
     'Free hold land = (NMR X 12.5)', 3937500, 3600000, '20', 787500, 0, 4725000, 0, 4725000, '', '',
     '');
INSERT INTO [Unbuilt Area]
    (AssesseeNo, FY, AssetType, PropertyNo, AggregateAreaOfPlot, BuiltUpAreaOfPlot,
     CalculatedPercentage)
VALUES
    (104, '2014-2015', 0, 1, 500, 150, 10);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (104, '2014-2015', 0, 1, 'Motor Cars', 450000, 50000, 400000);
INSERT INTO jewellery
    (AssesseeNo, FY, JwelleryNo, ItemDesc, Unit, GrossWeight, NetWeight,
     DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, TotalValOfJewellery, DebtOwned, NetAmt,
     NameRegValuer, RegNoValuer, DateofReportByValuer)
VALUES
    (104, '2014-2015', 1, 'Gold coins', 'Grams', 200, 200, 0, '', 560000, 0, '560000', 'M. K. Jhaveri',
     'CAT-VIII/39/1999', '11/04/2014');
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (104, '2014-2015', 0, 0, 4725000, 0, 400000, 0, 0, 5685000);

-- Prepaid, enclosure, the sheet
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (104, '2014-2015', 'State Bank of India', 'Fort', '0002345', '2014-03-14', '00077', 40000);
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (104, '2014-2015', 'State Bank of India', 'Fort', '0002345', '2014-07-25', '00193', 25000);
INSERT INTO Enclosure
    (AssesseeNo, FY, Description, Figure)
VALUES
    (104, '2014-2015', 'Rent agreement', '1');
INSERT INTO NetWealthComputation
    (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, ExemptedAssets,
     AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, TaxOnNetWealth,
     Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund)
VALUES
    (104, '2014-2015', 5685000, 0, 5685000, 0, 5685000, 0, 5685000, 5685000, 2685000, 26850, 0,
     '2014-07-31', '2014-07-28', 0, 65000, 0, 38150);

-- Challans
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (104, '2014-2015', 'ITNS282', '2014-03-14', 0, '100', 3, 0, 40000, 0, 0, 0, 0, 0, 40000, '55210',
     '2014-03-14', 'State Bank of India', '2014-03-14', 'State Bank of India', '0002345', '00077');
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (104, '2014-2015', 'ITNS282', '2014-07-25', 0, '300', NULL, 0, 25000, 0, 0, 0, 0, 0, 25000,
     '55266', '2014-07-25', 'State Bank of India', '2014-07-25', 'State Bank of India', '0002345',
     '00193');
