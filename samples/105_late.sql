-- An individual who files ten weeks late: interest for three months, paid with the tax.

-- The master
INSERT INTO AssesseeInfo
    (AssesseeNo, Assessee_Name, Office_Name, Father_Name, PRFather_Name, FirstName, MiddleName,
     LastName, Address1, Address2, Address3, Address4, City, District, State, Pin, Phone, STDCode,
     MobileNo, eMail, Sex, Status, Residential_Status, Ward, PAN, Date_of_Birth, ResAddress1,
     ResAddress2, ResAddress3, ResAddress4, ResCity, ResDistrict, ResState, ResPIN)
VALUES
    (105, 'Gurpreet Singh Ahluwalia', 'Ahluwalia Motors', 'Harbans Singh Ahluwalia', '', 'Gurpreet',
     'Singh', 'Ahluwalia', 'C-18', 'Main Market', 'Rajouri Garden', '', 'Delhi', 'West Delhi', 'DELHI',
     '110027', '25418833', '011', '9811033445', 'gurpreet@example.in', 0, 0, 0,
     'Ward 24(4), New Delhi', 'ACGPA7890Q', '1971-12-29', 'C-18', 'Main Market', 'Rajouri Garden', '',
     'Delhi', 'West Delhi', 'DELHI', '110027');
INSERT INTO Bank
    (AssesseeNo, IFSCCode, Account_Type, Account_Number)
VALUES
    (105, 'PUNB0158200', 'Current', '1582002100034455');

-- Assets
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (105, '2014-2015', 0, 1, 'Residential House', 'C-18', 'Delhi', 'Main Market', 'Rajouri Garden',
     'Delhi', 'Delhi', 'INDIA', '110027', '', 759000, 500000, 51000, 'Free hold land = (NMR X 12.5)',
     7426875, 5000000, 'Details', 0, 0, 7426875, 900000, 6526875, '', '', '');
INSERT INTO [Annual Rent]
    (AssesseeNo, FY, AssetType, PropertyNo, RecievableRent, TaxesBorneByTenant, RepairByTenant,
     DepositAccepted, AmtDepositedformonths, RecievedAMTforLeaseProperty, BenefitFromTenantToOwner)
VALUES
    (105, '2014-2015', 0, 1, 720000, 0, 0, 360000, 6, 0, 12000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (105, '2014-2015', 0, 1, 'Motor Cars', 1900000, 400000, 1500000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (105, '2014-2015', 0, 3, 'Cash-in-Hand', 75000, 0, 75000);
INSERT INTO InterestInFirmOrAOP
    (AssesseeNo, FY, AssetType, NameAddressofFirm, AddressofFirm, PANOfFirm, NameOfPartner,
     ProfitSharingRatio, ValueOfInterest, DebtOwed, NetAmount)
VALUES
    (105, '2014-2015', 0, 'Ahluwalia Motors', 'C-18 Rajouri Garden, New Delhi 110027', 'AALFA2210P',
     'Manjit Singh Ahluwalia', 0.5, 2400000, 0, 2400000);
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (105, '2014-2015', 0, 0, 6526875, 0, 1575000, 2400000, 0, 10501875);

-- Prepaid, enclosure, the sheet
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (105, '2014-2015', 'Punjab National Bank', 'Rajouri Garden', '0304418', '2014-12-12', '00521',
     77270);
INSERT INTO Enclosure
    (AssesseeNo, FY, Description, Figure)
VALUES
    (105, '2014-2015', 'Tax challan', '1');
INSERT INTO NetWealthComputation
    (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, ExemptedAssets,
     AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, TaxOnNetWealth,
     Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund)
VALUES
    (105, '2014-2015', 10501875, 0, 10501875, 0, 10501875, 0, 10501875, 10501900, 7501900, 75019, 1,
     '2014-09-30', '2014-12-15', 2251, 77270, 0, 0);

-- Challan
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (105, '2014-2015', 'ITNS282', '2014-12-12', 0, '300', NULL, 0, 75019, 0, 0, 2251, 0, 0, 77270,
     '903345', '2014-12-12', 'Punjab National Bank', '2014-12-12', 'Punjab National Bank', '0304418',
     '00521');
