-- The run: starting, ending, dates, settings, stores.
local shared = [[Software\Meridew Data Works\Shared]]

dofile((arg[0]:match("^.*/") or "") .. "raises.lua")

-- dates
today("2014-09-15")
assert(today() == "2014-09-15")
raises("no date YYYY-MM-DD", today, "2014-02-30")
assert(today() == "2014-09-15", "a wrong date leaves the old one")

-- settings: --data holds LVDBPath in memory until it is written
local folder = data_folder()
assert(folder:sub(-1) ~= "/" and program_folder() == folder)
assert(registry(shared, "LVDBPath") == folder)
assert(io.open(folder .. "/settings.toml") == nil, "the hold touches no file")
assert(registry(shared, "nothing") == nil)
registry(shared, "count", 7)
assert(math.type(registry(shared, "count")) == "integer" and registry(shared, "count") == 7)
registry(shared, "count", false)
assert(registry(shared, "count") == nil)
registry(shared, "LVDBPath", "/nowhere")
assert(data_folder() == "/nowhere")
registry(shared, "LVDBPath", folder)

-- stores
assert(store("Assessee", [[INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, Date_of_Birth)
                           VALUES (17, 'A. Client', '1960-02-29')]]) == 1)
local rows = store("Assessee", "SELECT AssesseeNo, Assessee_Name, PAN, Date_of_Birth FROM AssesseeInfo")
assert(#rows == 1 and rows[1].AssesseeNo == 17 and rows[1].Assessee_Name == "A. Client")
assert(rows[1].PAN == nil and rows[1].Date_of_Birth == "1960-02-29")
store("LVForms", "ALTER TABLE Challan ADD COLUMN Extra TEXT")
assert(#store("LVForms", "SELECT Extra FROM Challan") == 0)

-- starting and ending
assert(not running() and session("AssesseeNo") == nil and frmWealthMain.loaded == false)
assert(start("2014-2015 17 Individual x 1") and running())
assert(session("AssesseeNo") == 17 and session("CurrentFY") == "2014-2015")
assert(session("UseResidentialAddress") == true and session("TaxDb") == nil)
assert(session("DataFolder") == folder .. "/")
raises('no variable is named "Nothing"', session, "Nothing")
assert(frmWealthMain.loaded and frmWealthMain.visible and frmWealthMain.txtAssesseeName.text == "A. Client")
assert(frmWealthMain:close() and not running() and not frmWealthMain.loaded)

-- a wrong call of the program ends it, and another start is a fresh process
assert(not start("2014-2015 0 Individual x 0") and not running())
assert(messages()[1].icon == "critical")
assert(start("2014-2015 17 Individual x 0"))
assert(session("UseResidentialAddress") == false and #messages() == 0)

-- a script may write to a store while the program has it open
assert(store("Assessee", "UPDATE AssesseeInfo SET Assessee_Name = 'B. Client'") == 1)
assert(start("2014-2015 17 Individual x 0"), "a start while one runs replaces it")
assert(frmWealthMain.txtAssesseeName.text == "B. Client")
