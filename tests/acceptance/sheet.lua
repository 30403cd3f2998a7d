dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17)
local sheet = open_sheet(17)
local chain = {
    -- why, assets, deemed, debt: net wealth, rounded, taxable, tax
    { "the worked example", "4512349", "0", "100000.25", "4412348.75", "4412300", "1412300", "14123" },
    { "just below the half", "3000049", "0", "0", "3000049", "3000000", "0", "0" },
    { "the half goes up", "3000050", "0", "0", "3000050", "3000100", "100", "1" },
    { "49.5 becomes 50 first", "3000049.5", "0", "0", "3000049.5", "3000100", "100", "1" },
    { "49.4 does not", "3000049.4", "0", "0", "3000049.4", "3000000", "0", "0" },
    { "up to the exempted amount", "2999950", "0", "0", "2999950", "3000000", "0", "0" },
    { "debt above the assets", "4000000", "0", "5000000", "0", "0", "0", "0" },
    { "a comma ends a typed debt", "4000000", "0", "1,00,000", "3999999", "4000000", "1000000", "10000" },
    { "deemed assets are added", "3000000", "500000", "0", "3500000", "3500000", "500000", "5000" },
}
for _, case in ipairs(chain) do
    sheet.txtAssetsSec2ea.text = case[2]
    sheet.txtDeemedAssets.text = case[3]
    same(sheet.txtLessDebt:type(case[4]), true, case[1])
    same(sheet.txtNetWealth.text, case[5], case[1])
    same(sheet.txtNetWealthRoundedOff.text, case[6], case[1])
    same(sheet.txtTaxableWealth.text, case[7], case[1])
    same(sheet.txtWealthTaxLiability.text, case[8], case[1])
end
local tax = sheet.txtWealthTaxLiability.text
sheet.txtExemptedAssets.text = "1000000"
same(sheet.txtWealthTaxLiability.text, tax, "exempted assets are for reporting only")
same(sheet.txtAssetsSec2ea:type("1"), false, "a locked field takes no typing")
same(sheet.txtAssetsSec2ea.locked, true)

-- Prepaid tax against tax and interest.
sheet.mskRetDate:type("30/09/2014")
sheet.mskDueDate:type("30/09/2014")
sheet.txtPrepaidTax.text = "6000"
same(sheet.txtTaxRefund.text, "1000", "more than the tax")
same(sheet.txtBalanceTaxIntPayable.text, "0")
sheet.txtPrepaidTax.text = "5000"
same(sheet.txtTaxRefund.text .. "|" .. sheet.txtBalanceTaxIntPayable.text, "0|0", "equal")

-- Interest: one handler rounds, its twin does not.
sheet.txtPrepaidTax.text = ""
sheet.txtDeemedAssets.text = "0"
sheet.txtLessDebt:type("0")
sheet.txtAssetsSec2ea.text = "3123400" -- a tax of 1234
local interest = {
    -- due, filed: interest after the return date, then after the due date
    { "the day itself", "30/09/2014", "30/09/2014", "", "" },
    { "a day late in the next month", "30/09/2014", "01/10/2014", "12", "12.34" },
    { "three months", "31/07/2014", "15/10/2014", "37", "37.02" },
    { "a year", "31/07/2014", "31/07/2015", "148", "148.08" },
    { "late in the same month", "15/09/2014", "16/09/2014", "12", "12.34" },
    { "before the due date", "30/09/2014", "15/07/2014", "", "" },
    { "an open date", "30/09/2014", "15/07", "", "" },
}
for _, case in ipairs(interest) do
    sheet.mskRetDate:type("")
    sheet.mskDueDate:type(case[2])
    sheet.mskRetDate:type(case[3])
    same(sheet.txtInterest.text, case[4], case[1])
    sheet.mskDueDate:type("")
    sheet.mskDueDate:type(case[2])
    same(sheet.txtInterest.text, case[5], case[1])
end
sheet.txtAssetsSec2ea.text = "0"
sheet.mskDueDate:type("31/07/2014")
sheet.mskRetDate:type("15/09/2014")
same(sheet.txtInterest.text, "0", "no tax")

-- A click of the tick falls back to the literal dates, and the date of today.
store("LVIT", "INSERT INTO AYRetDate (AY, AuditRetDueDate) VALUES ('2014', '2014-11-30')")
today("2014-12-05")
sheet = open_sheet(17)
same(sheet.mskDueDate.text, "30/11/2014", "the year's own date")
same(sheet.chkAudited.value, 1)
same(sheet.mskRetDate.text, "05/12/2014")
sheet.chkAudited:click()
same(sheet.mskDueDate.text, "31/07/2014")
sheet.chkAudited:click()
same(sheet.mskDueDate.text, "30/09/2014")

-- The panel slides in ten steps and hides after the last.
same(sheet.frInterest.visible, false)
sheet.cmdInterest:click()
same(sheet.frInterest.visible, true)
same(sheet.cmdInterest.caption, ">>")
local steps = 0
while sheet.timInterest.running and steps < 100 do sheet.timInterest:tick() steps = steps + 1 end
sheet.cmdInterest:click()
same(sheet.cmdInterest.caption, "<<")
while sheet.timInterest.running and steps < 100 do sheet.timInterest:tick() steps = steps + 1 end
same(sheet.frInterest.visible, false)
same(steps, 22, "ten moves and a stop, each way")
finish()
