-- Each kind of control: what is read, what a person does, what an assignment does.
dofile((arg[0]:match("^.*/") or "") .. "raises.lua")

today("2014-09-16")
store("Assessee", [[INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1, SrNo) VALUES ('Bank', 'First Bank', '0001', 1)]])
store("LVForms", [[INSERT INTO Challan (AssesseeNo, AY, ChallanNo, ChallanDate, TypeOfPayment, Total)
                   VALUES (17, '2013-2014', 'ITNS282', '2013-03-01', '300', 1234567)]])
assert(start("2014-2015 17 Individual x 0"))
frmWealthMain.cmdChallan:click()
local s = frmChallan282

-- text field: a person's typing is filtered, an assignment is not
assert(s.txtIncomeTax:type("1,2x3") and s.txtIncomeTax.text == "123")
s.txtIncomeTax.text = "4,5"
assert(s.txtIncomeTax.text == "4,5" and s.txtTotal.text == "4")
s.txtIncomeTax.text = 7.0
assert(s.txtIncomeTax.text == "7")
assert(s.txtTotal.locked and s.txtTotal:type("1") == false and s.txtTotal.text == "7")
assert(s.txtInstallmentNo.enabled == false and s.txtInstallmentNo:type("1") == false)
assert(s.txtIncomeTax.maxlength == 0 and s.txtIncomeTax.visible)
assert(s.txtIncomeTax.backcolor == "" and s.txtIncomeTax.forecolor == "" and s.txtIncomeTax.tag == "")

-- masked field
assert(s.mskChqDate.mask == "##/##/####" and s.mskChqDate.text == "__/__/____")
assert(s.mskChqDate:type("15092014") and s.mskChqDate.text == "15/09/2014")
assert(s.mskChqDate:type("1/") and s.mskChqDate:type("") and s.mskChqDate.text == "__/__/____")
s.mskChqDate.text = "01/02/2014"
assert(s.mskChqDate.text == "01/02/2014")

-- combo
assert(s.cboAssessmentYear.text == "2014-2015" and #s.cboAssessmentYear.items == 15)
assert(s.cboAssessmentYear.items[1] == "2000-2001")
assert(s.cboAssessmentYear:choose("2005-2006") and s.cboAssessmentYear.index == 5)
assert(s.cboAssessmentYear:choose(6) and s.cboAssessmentYear.text == "2006-2007")
assert(s.cboAssessmentYear:choose("1900-1901") == false)
assert(s.cboAssessmentYear:type("2007") and s.cboAssessmentYear.index == -1)
s.cboAssessmentYear.index = 0
assert(s.cboAssessmentYear.text == "2000-2001" and s.mskFinancialYear.text == "1999-2000")
assert(s.cboAssessmentYear.tooltip == "Select Assement Year")

-- pick list
assert(frmWealthMain.cboFY.text == "2014-2015" and frmWealthMain.cboFY:type("2013-2014") == false)

-- list of columns
local list = s.cboChallanList
assert(list.count == 1 and list.index == -1 and list.text == "")
assert(list:cell(0, 0) == "2013-2014" and list:cell(0, 1) == "01/03/2013" and list:cell(0, 3) == "12,34,567")
assert(list.items[1] == "2013-2014")
raises("Subscript out of range", function() return list:cell(1, 0) end)
assert(list:choose(5) == false)

-- entering and leaving
assert(s.cboDrawnOn:enter() and #s.cboDrawnOn.items == 1 and s.cboDrawnOn:leave())
assert(s.cboPaymentBank:choose("First Bank") and s.txtBSRCode.text == "0001")
assert(s.txtInstallmentNo:enter() == false, "a disabled control can't be entered")

-- tick box and options
assert(s.chkPANBarCode.value == 0 and s.chkPANBarCode.caption == "Hide PAN Barcode")
assert(s.chkPANBarCode:click() and s.chkPANBarCode.value == 1)
s.chkPANBarCode.value = 0
assert(s.chkPANBarCode.value == 0)
assert(s.optSATax.value == true and s.optAdvTax.value == false)
assert(s.optAdvTax:click() and s.optSATax.value == false and s.txtInstallmentNo.text == "2")
s.optSATax.value = true
assert(s.optAdvTax.value == false and s.txtInstallmentNo.text == "")

-- button, label, frame, spin buttons
assert(s.cmdSave.caption == "&Save" and s.labInstallmentNo.caption == "Insta&llment No.")
assert(s.frTypeOfPayment.caption == "Type Of Payment ")
s.txtTopMargin.text = "9"
assert(s.UpDownITR1TM:up() and s.txtTopMargin.text == "10")

-- tabs: of the whole control and of one tab
frmWealthMain.cmdAssets:click()
local tabs = frmImmovable.SSTabAsset
assert(tabs.tab == 0 and tabs:choose(1) and tabs.tab == 1)
tabs.tab = 2
assert(tabs.tab == 2 and type(tabs:caption(2)) == "string")
assert(tabs.enabled == true and tabs.visible == true)
assert(tabs:enabled(1) == true and tabs:visible(1) == true)
raises("Invalid procedure call", function() return tabs:enabled(99) end)
assert(tabs:choose(99) == false)

-- timers
assert(frmWealthMain.timInterest.running == false and frmWealthMain.timInterest:tick() == false)
