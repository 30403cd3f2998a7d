-- An individual with assets of every kind: let-out and leasehold houses, land, cars, a firm, jewellery.
-- Filed in time, with a balance still to be paid.

-- The master
INSERT INTO AssesseeInfo
    (AssesseeNo, Assessee_Name, Office_Name, Father_Name, PRFather_Name, FirstName, MiddleName,
     LastName, Address1, Address2, Address3, Address4, City, District, State, Pin, Phone, STDCode,
     MobileNo, eMail, Sex, Status, Residential_Status, Ward, PAN, Date_of_Birth, ResAddress1,
     ResAddress2, ResAddress3, ResAddress4, ResCity, ResDistrict, ResState, ResPIN)
VALUES
    (101, 'Kavita Ramesh Deshpande', 'Deshpande Textiles', 'Ramesh Vishnu Deshpande', '', 'Kavita',
     'Ramesh', 'Deshpande', '12', 'Shanti Sadan', 'Prabhat Road', 'Erandwane', 'Pune', 'Pune',
     'MAHARASHTRA', '411004', '25437781', '020', '9822011223', 'kavita.deshpande@example.in', 1, 0, 0,
     'Ward 2(3), Pune', 'ABCPD1234K', '1964-08-21', '7', 'Nandanvan', 'Baner Road', 'Baner', 'Pune',
     'Pune', 'MAHARASHTRA', '411045');
INSERT INTO Bank
    (AssesseeNo, IFSCCode, Account_Type, Account_Number)
VALUES
    (101, 'SBIN0000454', 'Savings', '30211987654');

-- Immovable property: a let-out house with a deposit on a plot with unbuilt area, a house on a long
-- lease with unearned increase, a shop on a short one
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (101, '2014-2015', 0, 1, 'Residential House', '7', 'Pune', 'Baner Road', 'Baner', 'Pune',
     'Maharashtra', 'INDIA', '411045', 'S.No. 114/2', 580000, 520000, 40000,
     'Free hold land = (NMR X 12.5)', 5662500, 4200000, '30', 1698750, 0, 7361250, 1500000, 5861250,
     'S. P. Kulkarni', 'CAT-I/241/1998', '15/05/2014');
INSERT INTO [Annual Rent]
    (AssesseeNo, FY, AssetType, PropertyNo, RecievableRent, TaxesBorneByTenant, RepairByTenant,
     DepositAccepted, AmtDepositedformonths, RecievedAMTforLeaseProperty, BenefitFromTenantToOwner)
VALUES
    (101, '2014-2015', 0, 1, 450000, 20000, 1, 400000, 12, 0, 0);
INSERT INTO [Unbuilt Area]
    (AssesseeNo, FY, AssetType, PropertyNo, AggregateAreaOfPlot, BuiltUpAreaOfPlot,
     CalculatedPercentage)
VALUES
    (101, '2014-2015', 0, 1, 1000, 200, 15);
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (101, '2014-2015', 0, 2, 'Residential House', 'B-902', 'Sagar Darshan', 'Hill Road', 'Bandra West',
     'Mumbai', 'Maharashtra', 'INDIA', '400050', 'CTS 1187', 0, 360000, 36000,
     'Lease hold Land & Unexpired Lease period is 50 Yrs. or more = (NMR X 10)', 2700000, 3500000,
     'Details', 0, 400000, 3100000, 0, 3100000, 'S. P. Kulkarni', 'CAT-I/241/1998', '15/05/2014');
INSERT INTO [Immovable Property Details]
    (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty, Flat, Premises, Road, Area, City, State,
     Country, pincode, survey, AnnualRent, AnnualValueByLocalAuthority, TaxesPaid,
     PropertyConstructedOn, CapitalisedValue, CostOfAcquition, PremiumAddedRate, PremiumAmountAdded,
     UnearnIncreasePayable, NetValueOfProperty, DebtOwed, NetValue, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (101, '2014-2015', 0, 3, 'Commercial House', 'Shop 4', 'Gokul Arcade', 'S. V. Road',
     'Andheri West', 'Mumbai', 'Maharashtra', 'INDIA', '400058', 'CTS 402', 0, 240000, 20000,
     'Lease hold Land & Unexpired Lease period is less than 50 Yrs.= (NMR X 8)', 1472000, 0, 'Details',
     0, 1000000, 736000, 100000, 636000, '', '', '');

-- Land, movables, firm, jewellery
INSERT INTO [Urban Land]
    (AssesseeNo, FY, AssetType, UrbanLandDescription, Flat, Premises, Road, Area, City, State, Country,
     pincode, survey, ValueOfUrbanLand, DebtOwed, NetAmount, NameRegValuer, RegNoValuer,
     DateofReportByValuer)
VALUES
    (101, '2014-2015', 0, 'Vacant plot near the ring road', '', '', 'Ring Road', 'Wagholi', 'Pune',
     'Maharashtra', 'INDIA', '412207', 'Gat 88', 2500000, 400000, 2100000, 'S. P. Kulkarni',
     'CAT-I/241/1998', '15/05/2014');
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (101, '2014-2015', 0, 1, 'Motor Cars', 850000, 250000, 600000);
INSERT INTO [Movable Property Details]
    (AssesseeNo, FY, AssetType, SrNo, MovableDesc, MovableValue, DebtOwed, NetAmount)
VALUES
    (101, '2014-2015', 0, 3, 'Cash-in-Hand', 120000, 0, 120000);
INSERT INTO InterestInFirmOrAOP
    (AssesseeNo, FY, AssetType, NameAddressofFirm, AddressofFirm, PANOfFirm, NameOfPartner,
     ProfitSharingRatio, ValueOfInterest, DebtOwed, NetAmount)
VALUES
    (101, '2014-2015', 0, 'Deshpande Textiles', '12 Prabhat Road, Pune 411004', 'AAFFD4471M',
     'Ramesh Vishnu Deshpande, Nilesh R. Deshpande', 0.4, 1850000, 150000, 1700000);
INSERT INTO jewellery
    (AssesseeNo, FY, JwelleryNo, ItemDesc, Unit, GrossWeight, NetWeight,
     DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, TotalValOfJewellery, DebtOwned, NetAmt,
     NameRegValuer, RegNoValuer, DateofReportByValuer)
VALUES
    (101, '2014-2015', 1, 'Gold necklace with stones', 'Grams', 450, 430.5, 0, '420000', 1850000, 0,
     '1850000', 'S. P. Kulkarni', 'CAT-I/241/1998', '15/05/2014');
INSERT INTO PreciousStones
    (AssesseeNo, FY, JwelleryDetailNo, Description, Weight, ValueOfStones)
VALUES
    (101, '2014-2015', 1, 'Ruby', 6.5, 240000);
INSERT INTO PreciousStones
    (AssesseeNo, FY, JwelleryDetailNo, Description, Weight, ValueOfStones)
VALUES
    (101, '2014-2015', 1, 'Emerald', 4, 180000);
INSERT INTO jewellery
    (AssesseeNo, FY, JwelleryNo, ItemDesc, Unit, GrossWeight, NetWeight,
     DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, TotalValOfJewellery, DebtOwned, NetAmt,
     NameRegValuer, RegNoValuer, DateofReportByValuer)
VALUES
    (101, '2014-2015', 2, 'Diamond set', 'Grams', 85.25, 60, 0, '', 950000, 50000, '900000',
     'S. P. Kulkarni', 'CAT-I/241/1998', '15/05/2014');
INSERT INTO [Asset Details]
    (AssesseeNo, FY, AssetType, ImmovablePropertyDebtOwed, NetImmovableProperty, NetUrbanLand,
     NetMovableProperty, NetInterestInFirm, NetBusinessAssets, TotalNetAsset)
VALUES
    (101, '2014-2015', 0, 0, 9597250, 2100000, 720000, 1700000, 0, 16867250);

-- Deemed and exempted assets
INSERT INTO DeemedAssetDetails
    (AssesseeNo, FY, DeemedAssetDetails, TypeOfAsset, NameofOtherPerson, Relationship, PANOther,
     DeemedAssetValue, DebtOwed, NetAmount)
VALUES
    (101, '2014-2015', 'Transfered by one spouse to another', 'Car', 'Nilesh R. Deshpande', 'Husband',
     'AKDPD8812R', 300000, 0, 300000);
INSERT INTO AssetUnderExemption
    (AssesseeNo, FY, ExemptedAssetDesc, ExemptedAmount, DebtOwed, NetAmount, ResonsForClaim)
VALUES
    (101, '2014-2015', 'One house or a part of house', 2500000, 0, 2500000,
     'Own residence, section 5(vi)');

-- Prepaid tax, enclosure, the sheet
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (101, '2014-2015', 'State Bank of India', 'Deccan Gymkhana', '0002345', '2014-09-12', '00112',
     60000);
INSERT INTO PrePaidTaxes
    (AssesseeNo, FY, BankBranchName, BankBranch, BSRCode, DateOfPayment, ChallanSrNo, Amount)
VALUES
    (101, '2014-2015', 'Bank of Baroda', 'Laxmi Road', '0210876', '2014-09-22', '00045', 40000);
INSERT INTO Enclosure
    (AssesseeNo, FY, Description, Figure)
VALUES
    (101, '2014-2015', 'Valuer''s reports', '3');
INSERT INTO NetWealthComputation
    (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, ExemptedAssets,
     AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, TaxOnNetWealth,
     Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund)
VALUES
    (101, '2014-2015', 16867250, 300000, 17167250, 2500000, 17167250, 450000, 16717250, 16717300,
     13717300, 137173, 1, '2014-09-30', '2014-09-25', 0, 100000, 37173, 0);

-- Challans
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (101, '2014-2015', 'ITNS282', '2014-09-12', 0, '300', NULL, 0, 60000, 0, 0, 0, 0, 0, 60000,
     '118842', '2014-09-12', 'State Bank of India', '2014-09-12', 'State Bank of India', '0002345',
     '00112');
INSERT INTO Challan
    (AssesseeNo, AY, ChallanNo, ChallanDate, TaxApplicable, TypeOfPayment, InstallmentNo, TypeOfTDS,
     IncomeTax, Surcharge, EducationCess, Interest, Penalty, Other, Total, ChqNo, ChqDate, DrawnOnBank,
     DateOfPayment, BankBranchName, BSRCode, ChallanSrNo)
VALUES
    (101, '2014-2015', 'ITNS282', '2014-09-22', 0, '300', NULL, 0, 40000, 0, 0, 0, 0, 0, 40000,
     '118851', '2014-09-22', 'State Bank of India', '2014-09-22', 'Bank of Baroda', '0210876', '00045');
