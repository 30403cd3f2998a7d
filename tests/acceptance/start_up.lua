dofile((arg[0]:match("^.*/") or "") .. "check.lua")

local lines = {
    { "five words", "2014-2015 17 Individual x 0", true },
    { "another valid year", "2013-2014 17 Individual x 0", true },
    { "more words than five", "2014-2015 17 Individual x 0 more", true },
    { "years that do not follow", "2014-2016 17 Individual x 0", false },
    { "a letter in a year", "2014-201x 17 Individual x 0", false },
    { "a slash for the hyphen", "2014/2015 17 Individual x 0", false },
    { "a short year", "2014-15 17 Individual x 0", false },
    { "assessee 0", "2014-2015 0 Individual x 0", false },
    { "assessee -3", "2014-2015 -3 Individual x 0", false },
    { "assessee of letters", "2014-2015 abc Individual x 0", false },
    { "two words", "2014-2015 17", false },
    { "nothing", "", false },
    { "two blanks make an empty word", "2014-2015  17 Individual x", false },
}
client(17)
for _, case in ipairs(lines) do
    same(start(case[2]), case[3], case[1])
    same(running(), case[3], case[1])
    local shown = messages()
    same(#shown, case[3] and 0 or 1, case[1])
    if not case[3] then
        same(shown[1].text, "Improper call to 'Wealth Tax'", case[1])
        same(shown[1].icon, "critical", case[1])
    end
end

start("2013-2014 17 Public_Company x 1")
same(session("CurrentFY"), "2014-2015", "the list's item, whatever the call named")
same(session("AYStartYear"), "2014")
same(session("AssesseeNo"), 17)
same(session("IsCompanyAssessee"), true)
same(session("UseResidentialAddress"), true)
same(session("IsNetworkInstall"), false)
same(session("TaxDb"), nil, "an object")
same(frmWealthMain.txtAssesseeName.text, "A. Client")
same(frmWealthMain.mskValuationDate.text, "31/03/2014")
same(frmWealthMain.txtExemptedAmount.text, "3000000")
same(frmWealthMain.caption, "Wealth Tax - Ver 14.0.8 - Wealth Tax Computation")
same(frmWealthMain.mnuWealthTax.visible, false)

start("2014-2015 17 Public_company x one")
same(session("IsCompanyAssessee"), false, "compared with its capitals")
same(session("UseResidentialAddress"), false)
start("2014-2015 4711 Individual x 0")
same(frmWealthMain.txtAssesseeName.text, "", "no row leaves the name empty")
same(boxes(), "")

-- A network installation clears this computer's lock row, of the year that the list shows at that
-- moment: none yet.
local shared, it = [[Software\Meridew Data Works\Shared]], [[Software\Meridew Data Works\Levora IT]]
registry(it, "IT Installation", "Server")
local row = "INSERT INTO WTaxAssesseeLocking (ComputerName, AssesseeNo, FY) VALUES ('" .. computer_name()
store("LVWTax", row .. "', 17, '')")
store("LVWTax", row .. "', 17, '2014-2015')")
start("2014-2015 17 Individual x 0")
same(session("IsServerInstall"), true)
same(session("ComputerName"), computer_name())
same(#store("LVWTax", "SELECT * FROM WTaxAssesseeLocking"), 1)
registry(it, "IT Installation", "Client")
registry(shared, "LVDBPathServer", data_folder())
start("2014-2015 17 Individual x 0")
same(session("IsClientInstall"), true)
same(session("DataFolder"), data_folder() .. "/")
registry(it, "IT Installation", false)

-- A folder that is not there: the report names it, and dismissing it ends the program.
registry(shared, "LVDBPath", "/no/such/folder")
same(start("2014-2015 17 Individual x 0"), false)
local report = messages()
same(#report, 1)
same(report[1].title, "Levora Wealth Tax - Error")
same(report[1].icon, "exclamation")
answer("OK", "OK")
start("2014-2015 17 Individual x 0")
same(#messages(), 3, "its button tries again")
finish()
