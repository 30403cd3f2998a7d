dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17, { Assessee_Name = "Anand Rao", FirstName = "Anand", LastName = "Rao", Office_Name = "Rao & Co",
    Father_Name = "Krishna", PAN = "aaapr1234c", Status = 0, Address1 = "12", Address2 = "Sea View",
    Address3 = "Carter Road", City = "PUNE", District = "Pune", Pin = "411001", Sex = 0,
    ResAddress1 = "9", ResCity = "Goa", ResDistrict = "" })
local sheet = open_sheet(17)
sheet.txtAssetsSec2ea.text = "4512349"
sheet.txtLessDebt:type("100000.25")

-- The statement: unsaved figures, as they stand.
sheet.cmdPreview:click()
same(frmRepPreview.caption, "Statement of Wealth Tax Preview - F.Y. 2014-2015")
local report = frmRepPreview.report
same(report.name, "RepWealthTax")
same(report:text("txtRepFY") .. "|" .. report:text("txtRepNetWealth") .. "|" .. report:text("txtRepWealthTax"),
    "F.Y. 2014-2015|4412348.75|14123")
same(report:text("lblWealthTaxRate"), "Wealth Tax  @ 1% on Net Wealth in excess of Rs 30,00,000")
same(report:text("txtRepAddress1") .. "|" .. report:text("txtRepAddress2") .. "|" .. report:text("txtRepCity")
    .. "|" .. report:text("txtRepPIN"), "12, Sea View|Carter Road|Pune|PIN: 411001")
same(report.pages, 1)
report:save(data_folder() .. "/statement.pdf")
local pdf = io.open(data_folder() .. "/statement.pdf", "rb")
same(pdf:read(5), "%PDF-")
pdf:close()
start("2014-2015 17 Individual x 1")
frmWealthMain.cmdPreview:click()
report = frmRepPreview.report
same(report:text("txtRepAddress1") .. "|" .. report:text("txtRepCity") .. "|" .. report:text("txtRepPIN"), "9|Goa, |")
store("Assessee", "UPDATE AssesseeInfo SET Status = 13")
frmWealthMain.cmdPreview:click()
same(frmRepPreview.report:suppressed("Father_Name"), true, "for an individual only")
store("Assessee", "UPDATE AssesseeInfo SET Status = 0")
start("2014-2015 17 Individual x 0")

-- The challan: words in boxes, the bar code, the counterfoil.
sheet = frmWealthMain
sheet.cmdChallan:click()
local challan = frmChallan282
challan.optWealthTax:click()
challan.txtIncomeTax:type("1234567")
challan.cmdPreview:click()
same(frmRepPreview.caption, "Challan 282 Preview - A.Y. 2014-2015 - Anand Rao")
report = frmRepPreview.report
local function objects(names)
    local all = {}
    for name in names:gmatch("%S+") do all[#all + 1] = report:text(name) end
    return table.concat(all, "|")
end
same(objects("txtCroresA txtLakhsA txtLakhsB txtThousandsA txtThousandsB txtHundreds txtTens txtUnits"),
    "|Twelve||Thirty|Four|Five|Six|Seven")
same(objects("txtPANDigits txtPANBarCode txtFoilPAN txtName1 lblTaxName txtPaymentName"),
    "AAAPR1234C|*AAAPR1234C*|aaapr1234c|ANAND RAO|WEALTH TAX|Self Assessment Tax")
same(objects("txtAmtTotal txtFoilTotal txtFoilWords txtFoilAY txtFoilFY txtChqDate"),
    "12,34,567|12,34,567|Twelve Lakh Thirty Four Thousand Five Hundred Sixty Seven only|2014-2015||")
same(utf8.codepoint(report:text("tickWealthTax")), 252)
same(objects("tickGiftTax tickSATax"):sub(1, 1), "|")
challan.chkPANBarCode:click()
challan.optSecTranTax:click()
challan.txtIncomeTax:type("5000")
challan.cmdPreview:click()
report = frmRepPreview.report
same(objects("txtPANBarCode txtPANUnderBar lblTaxName txtFoilAY txtFoilFY"), "||||2013-2014")
same(objects("txtCroresA txtLakhsA txtThousandsA txtHundreds txtTens txtUnits"), "|--|Five|--|--|--")

-- The print dialog: margins to twips, stationery, and what it remembers.
challan.cmdPrint:click()
local dialog = frmPrint
same(dialog.caption .. "|" .. dialog.txtNoCopies.text, "Levora IT - Print|1")
dialog.txtTopMargin:type("10")
dialog.txtLeftMargin:type("x")
dialog.txtNoCopies:type("2")
dialog.chkPrePrinted:click()
choose_printer(true)
dialog.cmdPrint:click()
local printed_reports = printed()
same(#printed_reports, 1)
report = printed_reports[1]
same(report.name .. "|" .. report.topmargin .. "|" .. report.leftmargin .. "|" .. report.copies, "Challan282|567|0|2")
same(report:suppressed("SecChallan282Form"), true)
same(frmPrint.loaded, false)
local forms = [[Software\Meridew Data Works\Levora Forms]]
same(registry(forms, "Challan282 Top Margin") or "", "", "forgotten unless OK was pressed")
challan.cmdPrint:click()
frmPrint.cmdPrint:click()
same(#printed(), 0, "a cancelled printer")
same(frmPrint.loaded, false)
challan.cmdPrint:click()
frmPrint.txtTopMargin:type("7")
frmPrint.chkPrePrinted:click()
frmPrint.cmdOK:click()
same(registry(forms, "Challan282 Top Margin") .. registry(forms, "Challan282 PrePrinted"), "71")
messages()

-- Form BB: the grids of the last preview, the fields of now.
sheet.cmdformBA:click()
local form = frmFormBA
form.sprJewellery:type(1, 1, "Ring")
form.sprPreciousStone:type(1, 1, "1")
form.sprPreciousStone:type(2, 1, "Ruby")
form.sprInducibleNetWealth:type(1, 1, "Sita")
form.sprScheduleOPR:choose(1, 1, "AgriculturalLand")
form.sprScheduleOPR:type(2, 1, "1000")
form.sprScheduleOPR:type(4, 1, "S.No 5")
form.sprScheduleOPR:type(6, 1, "Mulshi")
form.cmdPreview:click()
same(boxes(), "")
same(frmRepPreview.caption, "Wealth Tax Return Preview - F.Y. 2014-2015")
report = frmRepPreview.report
same(objects("txtName mskAY txtFooter txtOPR12 txtOPR21"),
    "ANAND  RAO|2014-2015|ANAND  RAO / A.Y-2014-2015|1000|S.No 5-Mulshi")
same(report.papersize .. "|" .. report.orientation, "A4|portrait")
same(report:rows("SchJE")[1].Col5, "Annexure 1")
same(report:rows("SchJE")[2].Col5, nil)
same(#report:rows("SchJE") .. "|" .. #report:rows("SchINW") .. "|" .. #report:rows("Annexure"), "4|1|3")
same(report:suppressed(10), false)
form.sprInducibleNetWealth:type(1, 1, "Ravi")
form.txtFirstName:type("Arun")
form.cmdPrint:click()
choose_printer(true)
frmPrint.txtTopMargin:type("9")
frmPrint.cmdPrint:click()
report = printed()[1]
same(report.name .. "|" .. report:text("txtName") .. "|" .. report:rows("SchINW")[1].Col1 .. "|" .. report.topmargin,
    "FormBB|ARUN  RAO|Sita|0", "rows of the last preview, fields of now")

-- Sheets of grids.
form.sprImmovableProperty:type(12, 1, "500")
form.mnuPrintSheet:click()
local sheets_shown = sheets()
same(#sheets_shown, 1)
same(sheets_shown[1].grid .. "|" .. sheets_shown[1].footer, 'sprImmovableProperty|/fz"9"/fb1/rTotal: 500')
same(sheets_shown[1].header:sub(1, 42), "/n /n Assessee Name : Arun  Rao/n /n A. Y.")
form.sprInducibleNetWealth:type(4, 1, "100")
form.mnuPrintSheet:click()
same(#sheets(), 0, "the one sheet that its total's footer ends")
finish()
