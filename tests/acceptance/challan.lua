dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17, { Assessee_Name = "A. Client", PAN = "AAAPC1234D", Address1 = "1", Address2 = "Fort", Address3 = "",
    City = "Pune", Pin = "411001", State = "MAHARASHTRA", ResAddress1 = "9", ResCity = "Goa" })
store("Assessee", "INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1, SrNo)"
    .. " VALUES ('Bank', 'State Bank', '0001234', 1), ('Bank', 'Dena', '', 2), ('Other', 'X', '', 3)")
local sheet = open_sheet(17)
sheet.cmdChallan:click()
local form = frmChallan282
same(form.caption, "Challan 282")
same(form.txtPan.text .. "|" .. form.txtName.text, "AAAPC1234D|A. Client")
same(form.txtAddress1.text .. "|" .. form.txtAddress2.text, "1, Fort|, Pune - 411001, MAHARASHTRA")
same(form.cboAssessmentYear.text .. "|" .. form.mskFinancialYear.text, "2014-2015|2013-2014")
same(#form.cboAssessmentYear.items, 15)
same(form.mskChallanDate.text, "15/09/2014")
same(form.optSATax.value, true)
same(form.txtInstallmentNo.enabled, false)

-- Cess at its three differing sites.
local function cess(year, tax, surcharge, first)
    form.cboAssessmentYear:choose("2014-2015")
    form.txtIncomeTax:type("")
    form.txtSurcharge:type("")
    form.txtEducationCess:type("")
    if first == "year" then
        form.txtIncomeTax:type(tax)
        form.txtSurcharge:type(surcharge)
        form.cboAssessmentYear:choose(year)
    else
        form.cboAssessmentYear:choose(year)
        form.txtIncomeTax:type(tax)
        form.txtSurcharge:type(surcharge)
    end
    return form.txtEducationCess.text .. "|" .. form.txtTotal.text
end
same(cess("2007-2008", "1000", "100"), "22|1,122")
same(cess("2008-2009", "1000", "100"), "33|1,133")
same(cess("2008-2009", "1005", "0", "year"), "30.15|1,035", "the year alone rounds nothing")
same(cess("2009-2010", "1000", "100"), "30|1,130", "not from the surcharge")
same(cess("2009-2010", "1000", "100", "year"), "|1,100", "nor from the year")
same(cess("2010-2011", "1000", "100"), "|1,100")
form.txtIncomeTax:type("1.5x,")
same(form.txtIncomeTax.text .. "|" .. form.txtTotal.text, "1.5|102")
form.txtIncomeTax:type("2.5")
same(form.txtTotal.text, "102", "halves to the even neighbour")
form.txtIncomeTax:type("9999999999")
same(#messages(), 1, "too large is told")
local log = io.open(program_folder() .. "/ErrorLog.txt"):read("a")
same(log:find("frmChallan282 - txtIncomeTax_Change\",6,", 1, true) ~= nil, true)
form.txtIncomeTax:type("")
form.txtSurcharge:type("")

-- Instalments by date.
form.optAdvTax:click()
local instalments = { ["15/09/2014"] = "1", ["16/09/2014"] = "2", ["15/12/2014"] = "2", ["16/12/2014"] = "3",
    ["15/03/2014"] = "3", ["16/03/2014"] = "4", ["01/04/2014"] = "1", ["31/04/2014"] = "0", [""] = "0" }
for date, number in pairs(instalments) do
    form.mskChallanDate:enter()
    form.mskChallanDate:type(date)
    form.mskChallanDate:leave()
    same(form.txtInstallmentNo.text, number, date)
end
form.optSATax:click()
same(form.txtInstallmentNo.text .. tostring(form.txtInstallmentNo.enabled), "false")

-- Bank lists: one grows with each visit of the other.
for _ = 1, 3 do form.cboDrawnOn:enter() end
same(#form.cboDrawnOn.items .. "|" .. #form.cboPaymentBank.items, "2|6")
form.cboPaymentBank:choose("State Bank")
same(form.txtBSRCode.text, "0001234")
form.cboPaymentBank:type("Dena")
same(form.txtBSRCode.text, "0001234", "a bank without a code leaves it")
form.cboPaymentBank:type("People's")
same(#messages(), 1, "an apostrophe ends in a report")
form.cboPaymentBank:type("")

-- Save, overwrite, list.
form.mskChallanDate:type("10/07/2014")
form.optWealthTax:click()
form.txtIncomeTax:type("100000")
messages()
form.cmdSave:click()
same(boxes(), "")
local rows = store("LVForms", "SELECT * FROM Challan")
same(#rows, 1)
same(rows[1].ChallanNo .. "|" .. rows[1].TaxApplicable .. "|" .. rows[1].TypeOfPayment .. "|" .. rows[1].Total,
    "ITNS282|0|300|100000")
same(rows[1].InstallmentNo, nil)
local list = form.cboChallanList
same(list.count, 1)
same(list:cell(0, 0) .. "|" .. list:cell(0, 1) .. "|" .. list:cell(0, 2) .. "|" .. list:cell(0, 3),
    "2010-2011|10/07/2014|SA Tax|1,00,000")
form.txtIncomeTax:type("200000")
answer("Yes")
form.cmdSave:click()
same(messages()[1].text, "Overwrite the changes to existing challan of the same date ?\nYes - To overwrite in same challan \n No - To create new challan entry")
same(#store("LVForms", "SELECT * FROM Challan"), 1)
answer("No")
form.cmdSave:click()
same(#store("LVForms", "SELECT * FROM Challan"), 2)
same(list.count, 2)
messages()

-- Prompts: Cancel keeps the challan, No loses the change.
form.txtChequeNo:type("777")
answer("Cancel")
form.cmdNew:click()
same(form.txtChequeNo.text .. "|" .. messages()[1].title, "777|Levora Forms - Challan")
answer("No")
form.cmdNew:click()
same(form.txtChequeNo.text .. "|" .. form.txtTotal.text, "|")
list:choose(1)
same(form.optSecTranTax.value, true, "a saved wealth tax challan comes back under the other option")
answer("Yes")
form.cmdDelete1:click()
same(#store("LVForms", "SELECT * FROM Challan"), 1)
same(list.count, 1)
messages()
form.txtChequeNo:type("5")
answer("Cancel")
same(form:close(), false)
same(messages()[1].title, "Levora Forms - Challan 282")
answer("No")
same(form:close(), true)
same(form.loaded, false)

-- Opened again: the first row is where the list already is.
sheet.cmdChallan:click()
form = frmChallan282
same(form.cboChallanList.count, 1)
form.cboChallanList:choose(0)
same(form.txtTotal.text, "0", "choosing it loads nothing")

-- Keys, margins.
form:key("Ctrl+Alt+C")
same(started()[1].command .. "|" .. #started(), "CALC.EXE|0")
messages()
form:key("Ctrl+F5")
same(#messages(), 1)
form.txtTopMargin:type("5.5")
same(registry([[Software\Meridew Data Works\Levora Forms]], "Challan282 Top Margin"), "5.5")
form.chkPANBarCode:click()
same(registry([[Software\Meridew Data Works\Levora Forms]], "Challan282 PAN BarCode"), "1")
finish()
