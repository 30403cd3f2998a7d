dofile((arg[0]:match("^.*/") or "") .. "check.lua")

client(17)
local sheet = open_sheet(17)
sheet.cmdAssets:click()
local screen = frmImmovable
local grid = screen.sprImmovable

-- Tabs, summary and menus.
local captions = {}
for tab = 0, 4 do captions[#captions + 1] = screen.SSTabAsset:caption(tab) end
same(table.concat(captions, "|"), "Immovable Property|Urban Land|Movable Property|Interest in Firm or AOP|Jewellery")
same(screen.mnuContextMenu.visible, false)
same(screen.mnuConxtRow.visible, false)
same(screen.txtTotalNetAmount.locked, true)
same(screen.txtNetBusinessAssets:type("5"), false, "the summary is read-only")
same(screen:close(), false, "OK and the business assets are the only ways out")
same(session("BusinessAssetFlag"), false)
same(session("DeemedAssetFlag"), false)

screen.cboNumberOfProperty:type("99999")
local shown = messages()
same(shown[1].title .. "|" .. shown[1].text, "Levora Wealth Tax - Error|6 Overflow", "too many for the count")
screen.cboNumberOfProperty:type("2")

-- Lists, masks and dates take what fits them.
same(grid:type(2, 9, "11000"), true)
same(grid:type(2, 9, "11000A"), false)
same(grid:text(2, 9), "11000")
same(grid:type(2, 32, "31/12/1989"), false, "before the first date")
same(grid:type(2, 32, "1/1/1990"), true)
same(grid:text(2, 32), "01/01/1990")
same(grid:type(2, 12, "100000000000"), false, "above the bound")
same(grid:type(2, 12, "-99999999"), true)
same(grid:type(2, 13, "1"), false, "computed")
same(grid:choose(2, 6, "Other"), true)
same(grid:type(2, 6, "Noida"), false, "the list of towns stays closed")
same(#grid:items(2, 6) .. " " .. #grid:items(2, 7) .. " " .. #grid:items(2, 8) .. " " .. grid:index(2, 8), "32 35 1 -1")
grid:type(2, 12, "")

-- The only item of jewellery goes and a new one can be entered in its place.
local items = screen.sprJewellary
screen.cboNumberOfJewellery:type("1")
items:type(2, 1, "Ring")
items:rightclick()
screen.mnuDeleteColumn:click()
screen.cboNumberOfJewellery:type("1")
same(items:text(2, 1) .. items:text(2, 2) .. tostring(items:type(2, 1, "Chain")), "Milligramstrue")
items:type(2, 1, "")
items:go(1, 7)
screen.cboNumberOfJewellery:type("0")
same(items:text(1, 9), "Net amount (6-7)", "a label is no item")

-- A sheet of the land with its total row under the preview.
local land = screen.sprUrbanLand
local rows = land.rows
land:type(1, 1, "Plot")
same(land:rightclick(), "mnuConxtRow")
screen.mnuInsertRow:click()
screen.mnuDeleteRow:click() -- not the Escape key
same(land:text(1, 1) .. land.rows .. boxes(), "Plot" .. rows)
screen.mnuPrint:click()
same(land.rows .. session("SheetGridName"), tostring(rows))
same(sheets()[1].header, "", "only the preview carries the title")
land:type(11, 1, "1000")
land:type(12, 1, "300")
screen.mnuPreview:click()
same(land.rows, rows + 1)
same(texts(land, rows + 1, 1, 5), "Total||1000|300|700", "not below the amounts")
same(session("SheetGridName"), "sprUrbanLand")
local printed = sheets()
same(#printed .. " " .. printed[1].grid .. " " .. tostring(printed[1].preview), "1 sprUrbanLand true")
same(printed[1].header, "/n /n Assessee Name : " .. sheet.txtAssesseeName.text .. "/n /n A. Y.  : 2014-2015/n /n"
    .. land.tag .. "/n")
same(printed[1].marginleft .. " " .. printed[1].margintop, "200 200")
land:type(11, 1, "900")
same(screen.txtNetValuation.text, "1000", "stands still under its sheet")
frmSprPreview.cmdClose:click()
same(land.rows .. session("SheetGridName"), tostring(rows))
land:type(12, 1, "200")
same(screen.txtNetAmount.text, "700")
land:type(11, 1, "")
land:type(12, 1, "")

-- A save that fails is tried again for as long as a button answers; OK goes on with the sheet.
screen.txtNetBusinessAssets.text = "40"
store("LVWTax", "ALTER TABLE [Asset Details] RENAME TO Away")
answer("OK", "OK")
screen.cmdOK:click()
shown = messages()
same(#shown, 3)
same(shown[3].answer == "OK", false, "dismissed")
same(screen.loaded, false)
same(sheet.txtAssetsSec2ea.text, "40")
same(#store("LVWTax", "SELECT * FROM [Immovable Property Details]"), 2, "as far as it went")
local log = io.open(program_folder() .. "/ErrorLog.txt"):read("a")
same(select(2, log:gsub("frmImmovable %- SaveAssetComputation", "")), 3)

-- Every store's failure is told under the procedure that met it.
local function failing(table_name, ...)
    os.remove(program_folder() .. "/ErrorLog.txt")
    store("LVWTax", "ALTER TABLE [" .. table_name .. "] RENAME TO Lost")
    for _, act in ipairs { ... } do act() end
    store("LVWTax", "ALTER TABLE Lost RENAME TO [" .. table_name .. "]")
    local names = {}
    for line in io.lines(program_folder() .. "/ErrorLog.txt") do
        names[#names + 1] = line:match('%- (%w+)"') or line:match('"%w+ %- ([%w_]+)"')
    end
    return table.concat(names, " ")
end
store("LVWTax", "ALTER TABLE Away RENAME TO [Asset Details]")
same(failing("DeemedAssetDetails", function() sheet.cmdDeemedAssets:click() end,
    function() frmDeemedAsset.cmdDeemedAssetOk:click() end), "LoadDeemedAsset SaveDeemedAsset")
same(failing("AssetUnderExemption", function() sheet.cmdExemptedAsset:click() end,
    function() frmAssetExempt.cmdOK:click() end), "LoadExemptedAsset SaveExemptedAsset")
same(failing("jewellery", function() sheet.cmdAssets:click() end, function() frmImmovable.cmdOK:click() end),
    "LoadAssetComputation SaveAssetComputation")
sheet.cmdAssets:click()
frmImmovable.cboNumberOfProperty:type("1")
frmImmovable.cboNumberOfJewellery:type("1")
same(failing("Annual Rent", function() frmImmovable.sprImmovable:press(2, 11) end,
    function() frmImmovable.cmdOKAnnualRent:click() end), "LoadAnnualRent SaveAnnualRent")
same(failing("Unbuilt Area", function() frmImmovable.sprImmovable:press(2, 21) end,
    function() frmImmovable.cmdUnbuiltAreaOk:click() end), "LoadUnbuiltArea SaveUnbuiltArea")
same(failing("PreciousStones", function() frmImmovable.sprJewellary:press(2, 5) end),
    "sprJewellary_ButtonClicked", "no report of its own")
same(failing("BusinessAsset", function() frmImmovable.cmdBusinessAsset:click() end,
    function() frmBusinessAssets.cmdBusinessAssetSave:click() end), "LoadBusinessassets SaveBusinessAsset")
finish()
