dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17, {
    Assessee_Name = "Anand Rao", FirstName = "Anand", LastName = "Rao", Father_Name = "Krishna Rao",
    Address1 = "12", Address2 = "Sea View", City = "Mumbai", State = "MAHARASHTRA", Pin = "400001",
    PAN = "AAAPR1234C", Date_of_Birth = "1960-02-29", Sex = 0, Status = 0, Residential_Status = 1, Ward = "W 1",
})
store("Assessee", "INSERT INTO Bank (AssesseeNo, IFSCCode, Account_Type, Account_Number)"
    .. " VALUES (17, 'SBIN0000001', 'Savings', '0012')")
store("LVWTax", "INSERT INTO [Immovable Property Details] (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty,"
    .. " State, NetValueOfProperty, DebtOwed, NetValue) VALUES (17, '2014-2015', 0, 1, 'Guest House',"
    .. " 'Maharashtra', 5000000, 1000000, 4000000), (17, '2014-2015', 2, 1, 'Deemed', '', 7, 0, 7)")
store("LVWTax", "INSERT INTO [Urban Land] (AssesseeNo, FY, AssetType, UrbanLandDescription, ValueOfUrbanLand,"
    .. " DebtOwed, NetAmount) VALUES (17, '2014-2015', 1, 'Plot', 300, 100, 200)")
store("LVWTax", "INSERT INTO [Movable Property Details] (AssesseeNo, FY, AssetType, SrNo, MovableDesc,"
    .. " MovableValue, DebtOwed, NetAmount) VALUES (17, '2014-2015', 0, 3, 'Cash-in-Hand', 60000, 0, 60000)")
store("LVWTax", "INSERT INTO DeemedAssetDetails (AssesseeNo, FY, NameofOtherPerson, Relationship, PANOther,"
    .. " DeemedAssetValue, DebtOwed, NetAmount) VALUES (17, '2014-2015', 'Sita', 'Wife', '', 100, 30, 70),"
    .. " (17, '2014-2015', 'Ravi', 'Son', '', 50, 90, 0)")
store("LVWTax", "INSERT INTO [InterestInFirmOrAOP] (AssesseeNo, FY, AssetType, NameAddressofFirm, AddressofFirm,"
    .. " PANOfFirm, ProfitSharingRatio, ValueOfInterest, DebtOwed, NetAmount)"
    .. " VALUES (17, '2014-2015', 0, 'Rao & Co', 'Fort', 'AAAFR1234C', 0.25, 900, 100, 800)")
store("LVWTax", "INSERT INTO [jewellery] (AssesseeNo, FY, JwelleryNo, ItemDesc, Unit,"
    .. " DescAndWeiOfPreAndSemiPreStones, ValOfPreAndSemiPreStones, TotalValOfJewellery, DebtOwned, NetAmt)"
    .. " VALUES (17, '2014-2015', 1, 'Ring', 'Grams', 0, '500', 2000, 0, '2000')")
store("LVWTax", "INSERT INTO [PreciousStones] (AssesseeNo, FY, JwelleryDetailNo, Description, Weight, ValueOfStones)"
    .. " VALUES (17, '2014-2015', 1, 'Ruby', '2', 500)")
store("LVWTax", "INSERT INTO AssetUnderExemption (AssesseeNo, FY, ExemptedAssetDesc, ExemptedAmount, DebtOwed,"
    .. " NetAmount, ResonsForClaim) VALUES (17, '2014-2015', 'One house or a part of house', 10, 4, 6, 'Sec 5(vi)')")
store("LVWTax", "INSERT INTO PrePaidTaxes (AssesseeNo, FY, BSRCode, DateOfPayment, ChallanSrNo, Amount)"
    .. " VALUES (17, '2014-2015', '0001234', '2014-07-15', '00123', 1500)")

local sheet = open_sheet(17)
sheet.txtAssetsSec2ea.text = "4000000"
sheet.cmdformBA:click()
same(frmITMDIParent.caption, "Anand Rao - A.Y. - 2014-2015")
same(sheet.visible, true)
local form = frmFormBA
same(form.lblFillFrom.caption .. form.lblFillFrom.forecolor, "Filled from Computation0000FF")
same(form.mskAY.text, "2014-2015")
same(form.txtName.text .. "|" .. form.txtFirstName.text .. "|" .. form.mskPAN.text, "Rao|Anand|AAAPR1234C")
same(form.cboStatus.text .. "|" .. form.cboSex.text .. "|" .. form.cboResStatus.text, "Individual|Male|Non-Resident")
same(form.cboCountry.text .. "|" .. form.cboState.text, "INDIA|MAHARASHTRA")
same(form.mskDOB.text .. "|" .. form.mskValuationDate.text, "29/02/1960|31/03/2014")
same(form.txtVerificationName.text .. "|" .. form.txtVerificationFather.text, "Anand Rao|Krishna Rao")
same(form.mskVerificationDate.text, "15/09/2014")
same(form.cboAccountType.text .. "|" .. form.txtMICRCode.text, "Saving|SBIN0000001")
same(form.cboAudited.text, "30th September")
same(texts(form.sprScheduleBTP, 1, 1, 4), "0001234|15/07/2014|00123|1500")
local ip = form.sprImmovableProperty
same(ip:text(1, 1) .. "|" .. ip:text(2, 1) .. "|" .. texts(ip, 1, 12, 14), "Building|Guest House|5000000|1000000|4000000")
same(ip:text(1, 2) .. "|" .. ip:text(2, 2) .. "|" .. texts(ip, 2, 12, 14), "Urban Land|Plot|300|100|200")
same(ip.datarows, 2, "deemed rows stay out")
same(texts(form.sprMovableProperty, 3, 1, 4), "Cash-in-Hand|60000|0|60000")
same(texts(form.sprInducibleNetWealth, 2, 1, 6), "Ravi|Son||50|90|0")
same(texts(form.sprInducibleNetWealth, 13, 4, 6), "150|120|30")
same(texts(form.sprAssetInterest, 1, 1, 3) .. "|" .. texts(form.sprAssetInterest, 1, 5, 8),
    "Rao & Co|Fort|AAAFR1234C|25|900|100|800")
same(texts(form.sprJewellery, 1, 5, 9), "Details|500|2000|0|2000")
same(texts(form.sprPreciousStone, 1, 1, 4), "1|Ruby|2|500")
same(texts(form.sprAssetsClaimedExempt, 1, 1, 4), "One house or a part of house|10|4|Sec 5(vi)")
same(form.txtNetWealthTax.text, sheet.txtWealthTaxLiability.text)
same(form.txtTaxInterestPaid.text .. "|" .. form.txtAmtPayable.text, "1500|8500")
same(form.txtAggImmovableProperty.text, "4000200")
same(form.txtJewlNetAmtTotal.text, "", "a fill runs no change of the jewellery grid")
same(form.txtNETWEALTHInFigure.text, tostring(4000200 + 60000 + 30 + 800))

-- Entry rules.
form.chkFirstReturnYes:click()
form.chkFirstReturnNo:click()
same(form.chkFirstReturnYes.value .. "|" .. form.chkFirstReturnNo.value, "0|1")
form.mskPAN:enter()
form.mskPAN:type("AAAP")
same(form.mskPAN:leave(), false, "an unfinished number keeps the focus")
form.mskPAN:type("")
same(form.mskPAN:leave(), true)
form.mskPAN:type("aaapr1234c")
same(form.mskPAN.text, "AAAPR1234C")
form.cboReturnType:choose("Original")
same(form.txtReceiptNo.locked, true)
same(form.mskOriFillDate.enabled, false)
form.cboReturnType:choose("Revised")
same(form.txtReceiptNo.locked, false)
form.mskOriFillDate:enter()
form.mskOriFillDate:type("01/01/2014")
form.mskOriFillDate:leave()
same(session("OriFillMonthsLate") .. "|" .. session("OriFillInterestRate"), "0|1")
form.cboReturnType:choose("Original")
form.txtNetWealthTax:type("1a,2x5")
same(form.txtNetWealthTax.text, "125")
form.txtNetWealthTax:type("10000")

-- A stone's row, an amount with a blank box, "&" in a name.
form.txtName:type("Rao & Sons")
form.sprJewellery:type(7, 1, "2500")
same(form.txtJewlNetAmtTotal.text, "2500")
choose_file(data_folder() .. "/out.xml")
form.btnGenerate:click()
local dialog = dialogs()[1]
same(dialog.kind .. "|" .. dialog.name .. "|" .. dialog.extension .. "|" .. dialog.filter,
    "save|AAAPR1234CWT|.xml|e-Return File (*.xml)|*.xml")
local box = messages()[1]
same(box.title .. "|" .. box.text, "Levora Wealth Tax|XML File Genarated Successfully in  " .. data_folder() .. "/out.xml")
local function read(path)
    local file = assert(io.open(path, "rb"))
    local all = file:read("a")
    file:close()
    return all
end
local xml = read(data_folder() .. "/out.xml")
local lines = {}
for line in xml:gmatch("[^\n]*") do lines[#lines + 1] = line end
same(lines[1], '<?xml version="1.0"?>')
same(lines[2], "<!--This file generated using Levora WT utility-->")
same(lines[3]:sub(1, 12), "<FORMP2:Form")
same(lines[4], "  <FormBA:FormBA>")
same(lines[5], "    <Form:CreationInfo>")
local function has(text, why) same(xml:find(text, 1, true) ~= nil, true, why or text) end
has("<FBAMain:SurName>Rao And Sons</FBAMain:SurName>")
has("<FBAMain:DateOfBirth>1960-02-29</FBAMain:DateOfBirth>")
has("<FormCommon:State>19</FormCommon:State>")
has("<FormCommon:country>91</FormCommon:country>")
has("<FBAMain:ChallanNo>123</FBAMain:ChallanNo>", "an amount, leading noughts gone")
has("<FBAMain:MovablePropDescType>3</FBAMain:MovablePropDescType>")
has("<FBAMain:PreciousStoneDescription>Ruby</FBAMain:PreciousStoneDescription>")
has("<FBAMain:TotalValJewellery>2500</FBAMain:TotalValJewellery>")
has("<FBAMain:TotalValOtherPerson>30</FBAMain:TotalValOtherPerson>")
has("<FBAMain:ResStatus>NRI</FBAMain:ResStatus>")
has("<FBAMain:AgriFlag>N</FBAMain:AgriFlag>")
same(xml:find("FBAMain:ReturnType", 1, true), nil, "only in the working copy")
same(xml:find("FBAMain:MiddleName", 1, true), nil)
same(lines[#lines - 1], "  </FORMP2:Form>", "the root's end at indent 2")
choose_file(data_folder() .. "/second.xml")
form.btnGenerate:click()
same(read(data_folder() .. "/second.xml"):find("\n    <FORMP2:Form", 1, true) ~= nil, true,
    "the second file stands 4 columns further in")
form.btnGenerate:click()
same(#messages(), 1, "a dismissed dialog stops there")

form.cmdSave:click()
same(form.lblFillFrom.caption, "Data Saved")
local copy = read(data_folder() .. "/ITR/WT 17 2014-2015")
same(copy:find("<FBAMain:ReturnType>O</FBAMain:ReturnType>", 1, true) ~= nil, true)

-- Opened again, the copy fills the screen: the firm's address comes back as its PAN.
form.cmdClose:click()
same(frmFormBA.loaded, false)
frmWealthMain.cmdformBA:click()
form = frmFormBA
same(form.lblFillFrom.caption .. form.lblFillFrom.forecolor, "Filled from Saved DataFF0000")
same(form.txtName.text, "Rao And Sons")
same(texts(form.sprAssetInterest, 1, 2, 3), "AAAFR1234C|AAAFR1234C")
same(form.cboState.text, "MAHARASHTRA")
same(form.txtJewlNetAmtTotal.text, "2500")
same(texts(form.sprPreciousStone, 1, 1, 4), "1|Ruby|2|500")

-- Import: the dialog's folder, a blank file.
registry([[Software\Meridew Data Works\Levora ITeR]], "e-Return File Path", "/some/folder")
local blank = data_folder() .. "/blank.xml"
io.open(blank, "w"):close()
choose_file(blank)
form.btnImport:click()
dialog = dialogs()
dialog = dialog[#dialog]
same(dialog.kind .. "|" .. dialog.title .. "|" .. dialog.folder, "open|Select XML file.|/some/folder")
box = messages()
box = box[#box]
same(box.text .. "|" .. box.icon, "Blank or Invalid XML file, could not load the file|information")
same(form.txtName.text .. "|" .. form.mskPAN.text, "|AAAPR1234C", "cleared, masks untouched")

form.cmdValidatitor:click()
same(started()[1].command, program_folder() .. "/Levora XML Validator.exe Form.xsd 2014-2015")
finish()
