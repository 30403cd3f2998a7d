dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17, { Assessee_Name = "Anand Rao", FirstName = "Anand", LastName = "Rao", Father_Name = "Krishna",
    PAN = "aaapr1234c", Status = 0, Address1 = "12", Pin = "411001", Sex = 0 })
local sheet = open_sheet(17)
sheet.txtAssetsSec2ea.text = "4512349"
sheet.txtLessDebt:type("100000.25")
local report
local function objects(names)
    local all = {}
    for name in names:gmatch("%S+") do all[#all + 1] = report:text(name) end
    return table.concat(all, "|")
end

-- The statement: unsaved figures, as they stand.
sheet.cmdPreview:click()
report = frmRepPreview.report
same(report.name .. "|" .. report.pages, "RepWealthTax|1")
same(objects("txtRepFY txtRepNetWealth txtRepWealthTax"), "F.Y. 2014-2015|4412348.75|14123")
report:save(data_folder() .. "/statement.pdf")
local pdf = io.open(data_folder() .. "/statement.pdf", "rb")
same(pdf:read(5), "%PDF-")
pdf:close()

-- The challan, and its print dialog: margins to twips, stationery, and what it remembers.
sheet.cmdChallan:click()
local challan = frmChallan282
challan.optWealthTax:click()
challan.txtIncomeTax:type("1234567")
challan.cmdPreview:click()
report = frmRepPreview.report
same(objects("txtLakhsA txtPANBarCode txtFoilTotal lblTaxName"), "Twelve|*AAAPR1234C*|12,34,567|WEALTH TAX")
same(utf8.codepoint(report:text("tickWealthTax")), 252)
challan.cmdPrint:click()
same(frmPrint.caption .. "|" .. frmPrint.txtNoCopies.text, "Levora IT - Print|1")
frmPrint.txtTopMargin:type("10")
frmPrint.txtLeftMargin:type("x")
frmPrint.txtNoCopies:type("2")
frmPrint.chkPrePrinted:click()
choose_printer(true)
frmPrint.cmdPrint:click()
report = printed()[1]
same(report.name .. "|" .. report.topmargin .. "|" .. report.leftmargin .. "|" .. report.copies, "Challan282|567|0|2")
same(report:suppressed("SecChallan282Form"), true)
challan.cmdPrint:click()
frmPrint.cmdPrint:click()
same(#printed() .. tostring(frmPrint.loaded) .. boxes(), "0false", "a cancelled printer closes without a word")

-- Form BB.
sheet.cmdformBA:click()
local form = frmFormBA
form.sprJewellery:type(1, 1, "Ring")
form.sprPreciousStone:type(1, 1, "1")
form.sprPreciousStone:type(2, 1, "Ruby")
form.cmdPreview:click()
same(boxes(), "")
report = frmRepPreview.report
same(report.papersize .. "|" .. report.orientation, "A4|portrait")
same(report:rows("SchJE")[1].Col5, "Annexure 1")
same(report:rows("SchJE")[2].Col5, nil)
same(report:suppressed(10), false)

-- A header that can't be read leaves its lines blank; its report is not asked again.
store("Assessee", "ALTER TABLE AssesseeInfo DROP COLUMN Address4")
answer("OK", "OK")
sheet.cmdPreview:click()
same(boxes(), "1 no such column: Address4")
same(frmRepPreview.report:text("txtRepNetWealth"), "4412348.75", "the figures stand")
finish()
