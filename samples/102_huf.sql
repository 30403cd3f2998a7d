-- A Hindu undivided family with a business: business assets beside two plots and silver.

-- The master
INSERT INTO AssesseeInfo
    (AssesseeNo, Assessee_Name, Office_Name, Father_Name, PRFather_Name, FirstName, MiddleName,
     LastName, Address1, Address2, Address3, Address4, City, District, State, Pin, Phone, STDCode,
     MobileNo, eMail, Sex, Status, Residential_Status, Ward, PAN, Date_of_Birth, ResAddress1,
     ResAddress2, ResAddress3, ResAddress4, ResCity, ResDistrict, ResState, ResPIN)
VALUES
    (102, 'Jayantilal Mehta (HUF)', 'Mehta Steel Traders', 'Jayantilal Chhaganlal Mehta',
     'Chhaganlal Mehta', '', '', 'Jayantilal Mehta (HUF)', '41', 'Ratnadeep', 'Ashram Road',
     'Navrangpura', 'Ahmedabad', 'Ahmedabad', 'GUJARAT', '380009', '26581290', '079', '9825044556',
     'mehta.huf@example.in', NULL, 1, 0, 'Ward 5(1), Ahmedabad', 'AAHHJ5678L', '1988-04-01', '41',
     'Ratnadeep', 'Ashram Road', 'Navrangpura', 'Ahmedabad', 'Ahmedabad', 'GUJARAT', '380009');
INSERT INTO Bank
    (AssesseeNo, IFSCCode, Account_Type, Account_Number)
VALUES
    (102, 'BARB0NAVRAN', 'Current', '05230200001187');

-- Immovable property and land
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (102, '2014-2015', 0, 1, 'Residential House', '41', 'Ahmedabad', 'Ashram Road', 'Navrangpura',
     'Ahmedabad', 'Gujarat', 'INDIA', '380009', 'FP 212', 0, 600000, 60000,
     'Free hold land = (NMR X 12.5)', 5625000, 7000000, '0', 0, 0, 7000000, 2000000, 5000000, '', '',
     '');
INSERT INTO [Unbuilt Area]
    (AssesseeNo, FY, AssetType, PropertyNo, AggregateAreaOfPlot, BuiltUpAreaOfPlot,
     CalculatedPercentage)
VALUES
    (102, '2014-2015', 0, 1, 800, 260, 2.5);
INSERT INTO [Urban Land]
    (AssesseeNo, FY, AssetType, UrbanLandDescription, Flat, Premises, Road, Area, City, State, Country,
     pincode, survey, ValueOfUrbanLand, DebtOwed, NetAmount, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (102, '2014-2015', 0, 'Plot at Bopal', '', '', '', 'Bopal', 'Ahmedabad', 'Gujarat', 'INDIA',
     '380058', 'Block 77', 3800000, 0, 3800000, '', '', '');
INSERT INTO [Urban Land]
    (AssesseeNo, FY, AssetType, UrbanLandDescription, Flat, Premises, Road, Area, City, State, Country,
     pincode, survey, ValueOfUrbanLand, DebtOwed, NetAmount, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (102, '2014-2015', 0, 'Plot at Sanand', '', '', '', 'Sanand', 'Other', 'Gujarat', 'INDIA',
     '382110', 'Block 140/B', 1450000, 350000, 1100000, '', '', '');

-- Business assets, the last one worked out on the assets screen
INSERT INTO BusinessAsset
    (AssesseeNo, FY, AssetType, AssetName, BalanceSheetAmount, IndividualAssetValuaton, ValueTobeTaken)
VALUES
    (102, '2014-2015', 1, 'Building', 4000000, 4800000, 4000000);
INSERT INTO BusinessAsset
    (AssesseeNo, FY, AssetType, AssetName, BalanceSheetAmount, IndividualAssetValuaton, ValueTobeTaken)
VALUES
    (102, '2014-2015', 1, 'Silver', 600000, 0, 600000);
INSERT INTO BusinessAsset
    (AssesseeNo, FY, AssetType, AssetName, BalanceSheetAmount, IndividualAssetValuaton, ValueTobeTaken)
VALUES
    (102, '2014-2015', 1, 'Car', 900000, 1150000, 1150000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (102, '2014-2015', 1, 1, 'Motor Cars', 1150000, 0, 1150000);

-- Movables and jewellery
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (102, '2014-2015', 0, 1, 'Motor Cars', 640000, 140000, 500000);
INSERT INTO jewellery
    (AssesseeNo, FY, JwelleryNo, ItemDesc, Unit, GrossWeight, NetWeight,
     DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, TotalValOfJewellery, DebtOwned, NetAmt,
     NameRegValuer, RegNoValuer, DateofReportByValuer)
VALUES
    (102, '2014-2015', 1, 'Gold ornaments of the family', 'Grams', 620, 598, 0, '', 1680000, 0,
     '1680000', 'H. M. Shah', 'CAT-VIII/112/2001', '02/06/2014');
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (102, '2014-2015', 1, 0, 0, 0, 0, 0, 0, 1680000);
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (102, '2014-2015', 0, 0, 5000000, 4900000, 500000, 0, 5750000, 17830000);

-- Exempted, prepaid, enclosure, the sheet
INSERT INTO AssetUnderExemption
    (AssesseeNo, FY, ExemptedAssetDesc, ExemptedAmount, DebtOwed, NetAmount, ResonsForClaim)
VALUES
    (102, '2014-2015', 'Former Ruler''s Jwellery', 350000, 0, 350000, 'Heirloom');
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (102, '2014-2015', 'Bank of Baroda', 'Navrangpura', '0210876', '2014-07-18', '00231', 148300);
INSERT INTO Enclosure
    (AssesseeNo, FY, Description, Figure)
VALUES
    (102, '2014-2015', 'Balance sheet', '1');
INSERT INTO NetWealthComputation
    (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, ExemptedAssets,
     AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, TaxOnNetWealth,
     Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund)
VALUES
    (102, '2014-2015', 17830000, 0, 17830000, 350000, 17830000, 0, 17830000, 17830000, 14830000,
     148300, 1, '2014-09-30', '2014-09-30', 0, 148300, 0, 0);

-- Challan
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (102, '2014-2015', 'ITNS282', '2014-07-18', 0, '300', NULL, 0, 148300, 0, 0, 0, 0, 0, 148300,
     '400127', '2014-07-18', 'Bank of Baroda', '2014-07-18', 'Bank of Baroda', '0210876', '00231');
