dofile((arg[0]:match("^.*/") or "") .. "check.lua")

-- The return beside the real sheet: filled, filed, saved, opened again, imported.
client(17, {
    Assessee_Name = "Anand Rao", FirstName = "Anand", LastName = "Rao", Address1 = "12", City = "Mumbai",
    State = "MAHARASHTRA", PAN = "AAAPR1234C", Date_of_Birth = "1960-02-29", Status = 0, Residential_Status = 1,
})
store("LVWTax", "INSERT INTO [Immovable Property Details] (AssesseeNo, FY, AssetType, PropertyNo, TypeOfProperty,"
    .. " State, NetValueOfProperty, DebtOwed, NetValue) VALUES (17, '2014-2015', 0, 1, 'Guest House',"
    .. " 'Maharashtra', 5000000, 1000000, 4000000), (17, '2014-2015', 2, 1, 'Deemed', '', 7, 0, 7)")
store("LVWTax", "INSERT INTO [InterestInFirmOrAOP] (AssesseeNo, FY, AssetType, NameAddressofFirm, AddressofFirm,"
    .. " PANOfFirm, ProfitSharingRatio, ValueOfInterest, DebtOwed, NetAmount)"
    .. " VALUES (17, '2014-2015', 0, 'Rao & Co', 'Fort', 'AAAFR1234C', 0.25, 900, 100, 800)")
store("LVWTax", "INSERT INTO PrePaidTaxes (AssesseeNo, FY, BSRCode, DateOfPayment, ChallanSrNo, Amount)"
    .. " VALUES (17, '2014-2015', '0001234', '2014-07-15', '00123', 1500)")

local sheet = open_sheet(17)
sheet.txtAssetsSec2ea.text = "4000000"
sheet.cmdformBA:click()
same(frmITMDIParent.caption, "Anand Rao - A.Y. - 2014-2015")
same(sheet.visible, true)
local form = frmFormBA
same(form.lblFillFrom.caption .. form.lblFillFrom.forecolor, "Filled from Computation0000FF")
same(form.txtName.text .. "|" .. form.mskPAN.text .. "|" .. form.cboResStatus.text, "Rao|AAAPR1234C|Non-Resident")
same(form.mskValuationDate.text .. "|" .. form.cboAudited.text, "31/03/2014|30th September")
same(texts(form.sprScheduleBTP, 1, 1, 4), "0001234|15/07/2014|00123|1500")
same(form.sprImmovableProperty.datarows, 1, "deemed rows stay out")
same(form.txtNetWealthTax.text, sheet.txtWealthTaxLiability.text)
same(form.txtTaxInterestPaid.text .. "|" .. form.txtAmtPayable.text, "1500|8500")
same(form.txtNETWEALTHInFigure.text, "4000800")

local function read(path)
    local file = assert(io.open(path, "rb"))
    local all = file:read("a")
    file:close()
    return all
end
form.txtName:type("Rao & Sons")
choose_file(data_folder() .. "/no/out.xml")
form.btnGenerate:click()
same(boxes() .. #dialogs(), "That path doesn't exist.1")
choose_file(data_folder() .. "/out.xml")
form.btnGenerate:click()
local dialog = dialogs()[1]
same(dialog.kind .. "|" .. dialog.name .. "|" .. dialog.extension .. "|" .. dialog.filter,
    "save|AAAPR1234CWT|.xml|e-Return File (*.xml)|*.xml")
local box = messages()[1]
same(box.title .. "|" .. box.text, "Levora Wealth Tax|XML File Genarated Successfully in  " .. data_folder() .. "/out.xml")
local xml = read(data_folder() .. "/out.xml")
local function has(text) same(xml:find(text, 1, true) ~= nil, true, text) end
has("\n  <FormBA:FormBA>\n") -- at the margin: the file that could not be had took no tag
has("<FBAMain:SurName>Rao And Sons</FBAMain:SurName>")
has("<FormCommon:State>19</FormCommon:State>")
form.cmdSave:click()
same(form.lblFillFrom.caption, "Data Saved")

-- Opened again, the copy fills the screen: the firm's address comes back as its PAN.
form.cmdClose:click()
same(frmFormBA.loaded, false)
sheet.cmdformBA:click()
same(form.lblFillFrom.caption .. form.lblFillFrom.forecolor, "Filled from Saved DataFF0000")
same(form.txtName.text, "Rao And Sons")
same(texts(form.sprAssetInterest, 1, 2, 3), "AAAFR1234C|AAAFR1234C")

-- Import of a blank file: cleared, masks untouched.
registry([[Software\Meridew Data Works\Levora ITeR]], "e-Return File Path", "/some/folder")
io.open(data_folder() .. "/blank.xml", "w"):close()
choose_file(data_folder() .. "/blank.xml")
form.btnImport:click()
dialog = dialogs()[1]
same(dialog.kind .. "|" .. dialog.title .. "|" .. dialog.folder, "open|Select XML file.|/some/folder")
box = messages()[1]
same(box.text .. "|" .. box.icon, "Blank or Invalid XML file, could not load the file|information")
same(form.txtName.text .. "|" .. form.mskPAN.text, "|AAAPR1234C")
form.cmdValidatitor:click()
same(started()[1].command, program_folder() .. "/Levora XML Validator.exe Form.xsd 2014-2015")
finish()
