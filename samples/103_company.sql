-- A private company: guest house, aircraft and cars, a plot.

-- The master
INSERT INTO AssesseeInfo
    (AssesseeNo, Assessee_Name, Office_Name, Father_Name, PRFather_Name, FirstName, MiddleName,
     LastName, Address1, Address2, Address3, Address4, City, District, State, Pin, Phone, STDCode,
     MobileNo, eMail, Sex, Status, Residential_Status, Ward, PAN, Date_of_Birth, ResAddress1,
     ResAddress2, ResAddress3, ResAddress4, ResCity, ResDistrict, ResState, ResPIN)
VALUES
    (103, 'Coromandel Leathers Private Limited', 'Coromandel Leathers Private Limited',
     'Sundar Rajagopalan', 'K. Rajagopalan', '', '', 'Coromandel Leathers Private Limited', '88',
     'Leather House', 'Sydenhams Road', 'Periamet', 'Chennai', 'Chennai', 'TAMILNADU', '600003',
     '25611874', '044', '9840077889', 'accounts@coromandel.example.in', NULL, 11, 0,
     'Company Circle I(4), Chennai', 'AABCC9012M', '1991-11-14', '', '', '', '', '', '', '', '');
INSERT INTO Bank
    (AssesseeNo, IFSCCode, Account_Type, Account_Number)
VALUES
    (103, 'CNRB0000911', 'Current', '0911201004417');

-- Immovable property and land
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (103, '2014-2015', 0, 1, 'Guest House', '3', 'Chennai', 'Cathedral Road', 'Gopalapuram', 'Chennai',
     'Tamil Nadu', 'INDIA', '600086', 'R.S. 1290', 0, 900000, 90000, 'Free hold land = (NMR X 12.5)',
     8437500, 9500000, '20', 1900000, 0, 11400000, 3000000, 8400000, 'R. Natarajan', 'CAT-I/77/1995',
     '20/04/2014');
INSERT INTO [Unbuilt Area]
    (AssesseeNo, FY, AssetType, PropertyNo, AggregateAreaOfPlot, BuiltUpAreaOfPlot,
     CalculatedPercentage)
VALUES
    (103, '2014-2015', 0, 1, 1200, 360, 10);
INSERT INTO [Urban Land]
    (AssesseeNo, FY, AssetType, UrbanLandDescription, Flat, Premises, Road, Area, City, State, Country,
     pincode, survey, ValueOfUrbanLand, DebtOwed, NetAmount, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (103, '2014-2015', 0, 'Plot at Sriperumbudur', '', '', '', 'Sriperumbudur', 'Chennai',
     'Tamil Nadu', 'INDIA', '602105', 'S.No. 31/4', 5200000, 1200000, 4000000, 'R. Natarajan',
     'CAT-I/77/1995', '20/04/2014');

-- Movables
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (103, '2014-2015', 0, 1, 'Motor Cars', 3600000, 1600000, 2000000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (103, '2014-2015', 0, 2, 'Yachts, AirCrafts and Boats etc.', 8400000, 2400000, 6000000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (103, '2014-2015', 0, 3, 'Cash-in-Hand', 85000, 0, 85000);
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (103, '2014-2015', 0, 0, 8400000, 4000000, 8085000, 0, 0, 20485000);

-- Prepaid, enclosure, the sheet
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (103, '2014-2015', 'Canara Bank', 'Periamet', '0240113', '2014-09-26', '00318', 150000);
INSERT INTO Enclosure
    (AssesseeNo, FY, Description, Figure)
VALUES
    (103, '2014-2015', 'Audit report', '1');
INSERT INTO NetWealthComputation
    (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, ExemptedAssets,
     AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, TaxOnNetWealth,
     Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund)
VALUES
    (103, '2014-2015', 20485000, 0, 20485000, 0, 20485000, 1000000, 19485000, 19485000, 16485000,
     164850, 1, '2014-09-30', '2014-09-29', 0, 150000, 14850, 0);

-- Challan
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (103, '2014-2015', 'ITNS282', '2014-09-26', 0, '300', NULL, 0, 150000, 0, 0, 0, 0, 0, 150000,
     '772310', '2014-09-26', 'Canara Bank', '2014-09-26', 'Canara Bank', '0240113', '00318');
