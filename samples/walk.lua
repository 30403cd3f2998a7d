-- Works a new client through from an empty sheet to the filed return, and leaves the papers behind.
--     levora-wealth-script --data FOLDER samples/walk.lua OUT
local out = assert(arg[1], "name the folder for the results")
local number = 901

store("Assessee", "DELETE FROM AssesseeInfo WHERE AssesseeNo = " .. number)
store("Assessee", "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, FirstName, LastName, Father_Name,"
    .. " Address1, Address2, City, District, State, Pin, PAN, Date_of_Birth, Sex, Status, Residential_Status, Ward)"
    .. " VALUES (" .. number .. ", 'Meera Joshi', 'Meera', 'Joshi', 'Anant Joshi', '14', 'Shanti Kunj',"
    .. " 'Pune', 'Pune', 'MAHARASHTRA', '411004', 'AAAPJ1234C', '1962-05-14', 1, 0, 0, 'Ward 3(2)')")

assert(start("2014-2015 " .. number .. " Individual x 0"))

-- A house let out with a deposit, and its plot's unbuilt area.
frmWealthMain.cmdAssets:click()
local assets = frmImmovable
assets.cboNumberOfProperty:type("1")
local property = assets.sprImmovable
property:type(2, 3, "Mumbai") -- the share of the specified area goes by the name of the premises
property:choose(2, 6, "Mumbai")
property:press(2, 11)
assets.sprAnnualRent:type(2, 1, "600000")
assets.sprAnnualRent:check(1, 3, true)
assets.sprAnnualRent:type(2, 4, "300000")
assets.sprAnnualRent:choose(2, 5, "12")
assets.cmdOKAnnualRent:click()
property:type(2, 14, "45000")
property:press(2, 21)
assets.sprUnbuiltArea:type(2, 2, "350")
assets.sprUnbuiltArea:type(2, 1, "1000")
assets.cmdUnbuiltAreaOk:click()
property:type(2, 28, "500000")

-- Land, a car, a share in a firm, jewellery with a stone.
assets.SSTabAsset:choose(1)
assets.sprUrbanLand:type(1, 1, "Plot at Hinjawadi")
assets.sprUrbanLand:type(11, 1, "2500000")
assets.SSTabAsset:choose(2)
assets.sprMovableProp:type(2, 1, "900000")
assets.SSTabAsset:choose(3)
assets.sprAssetInterest:type(1, 1, "Joshi & Co")
assets.sprAssetInterest:type(6, 1, "750000")
assets.SSTabAsset:choose(4)
assets.cboNumberOfJewellery:type("1")
assets.sprJewellary:type(2, 1, "Gold necklace")
assets.sprJewellary:type(2, 7, "640000")
assets.sprJewellary:press(2, 5)
assets.sprPreciousStone:type(1, 1, "Ruby")
assets.sprPreciousStone:type(2, 1, "2.5")
assets.sprPreciousStone:type(3, 1, "85000")
assets.btnOK:click()
assets.cmdOK:click()

-- A shop's car, valued on its own: more than a fifth above the balance sheet.
frmWealthMain.cmdAssets:click()
frmImmovable.cmdBusinessAsset:click()
local business = frmBusinessAssets.sprAssetOfBusiness
business:choose(1, 1, "Car")
business:type(2, 1, "300000")
business:press(6, 1)
frmImmovable.sprMovableProp:type(2, 1, "420000")
frmImmovable.cmdOK:click()
business:choose(1, 2, "Gold")
business:type(2, 2, "150000")
frmBusinessAssets.cmdBusinessAssetSave:click()
frmImmovable.cmdOK:click()

frmWealthMain.cmdDeemedAssets:click()
frmDeemedAsset.sprDeemedAsset:choose(1, 1, 0)
frmDeemedAsset.sprDeemedAsset:type(3, 1, "Rohan Joshi")
frmDeemedAsset.sprDeemedAsset:type(4, 1, "Minor son")
frmDeemedAsset.sprDeemedAsset:type(6, 1, "400000")
frmDeemedAsset.cmdDeemedAssetOk:click()

frmWealthMain.cmdExemptedAsset:click()
frmAssetExempt.sprAssetExempt:choose(1, 1, "One house or a part of house")
frmAssetExempt.sprAssetExempt:type(2, 1, "1500000")
frmAssetExempt.sprAssetExempt:type(5, 1, "Section 5(vi)")
frmAssetExempt.cmdOK:click()

-- Debt, tax paid, one enclosure.
local sheet = frmWealthMain
sheet.txtLessDebt:type("250000")
sheet.sprSATax:type(1, 1, "State Bank of India")
sheet.sprSATax:type(3, 1, "0002345")
sheet.sprSATax:type(4, 1, "15/07/2014")
sheet.sprSATax:type(6, 1, "40000")
sheet.sprEnclosure:type(1, 1, "Valuer's report")
sheet.cmdSave1:click()

local rows = {
    { "Assets [Sec.2(ea)]", sheet.txtAssetsSec2ea }, { "Deemed assets [Sec.4]", sheet.txtDeemedAssets },
    { "Total", sheet.txtTotalAssets }, { "Exempted [Sec.5]", sheet.txtExemptedAssets }, { "Debt [Sec.2(m)]", sheet.txtLessDebt },
    { "Net wealth", sheet.txtNetWealth }, { "Rounded off", sheet.txtNetWealthRoundedOff },
    { "Taxable wealth", sheet.txtTaxableWealth }, { "Tax @ 1%", sheet.txtWealthTaxLiability },
    { "Interest u/s 17(B)", sheet.txtInterest }, { "Tax and interest", sheet.txtTaxIntPayable },
    { "Prepaid", sheet.txtPrepaidTax }, { "Balance", sheet.txtBalanceTaxIntPayable },
    { "Refund", sheet.txtTaxRefund },
}
local lines = { sheet.txtAssesseeName.text .. ", A.Y. " .. sheet.cboFY.text }
for _, row in ipairs(rows) do
    lines[#lines + 1] = string.format("%-24s %16s", row[1], row[2].text)
end
local table_text = table.concat(lines, "\n")
print(table_text)
local file = assert(io.open(out .. "/sheet.txt", "w"))
file:write(table_text, "\n")
file:close()

-- The papers.
sheet.cmdPreview:click()
frmRepPreview.report:save(out .. "/statement_of_wealth.pdf")

sheet.cmdformBA:click()
choose_file(out .. "/AAAPJ1234CWT.xml")
answer("OK")
frmFormBA.btnGenerate:click()
frmFormBA.cmdPreview:click()
frmRepPreview.report:save(out .. "/form_bb.pdf")
frmFormBA.cmdClose:click()

sheet.cmdChallan:click()
frmChallan282.optWealthTax:click()
frmChallan282.txtIncomeTax:type(sheet.txtBalanceTaxIntPayable.text)
frmChallan282.cmdPreview:click()
frmRepPreview.report:save(out .. "/challan_itns_282.pdf")
frmChallan282.cmdSave:click()
frmChallan282:close()

frmWealthMain.cmdMainExit:click()
assert(not running())
