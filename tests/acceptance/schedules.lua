dofile((arg[0]:match("^.*/") or "") .. "check.lua")

-- Every schedule entered, saved, and read again by a new start: all figures and rows equal.
client(17)
local sheet = open_sheet(17)

local function rows_of(grid, by_column)
    local all = {}
    for row = 1, grid.rows do
        for column = by_column and 2 or 1, grid.cols do
            if grid:text(column, row) ~= "" and grid:kind(column, row) ~= "button" then
                all[#all + 1] = column .. "," .. row .. "=" .. grid:text(column, row)
            end
        end
    end
    return table.concat(all, " ")
end

local function summary(screen)
    local all = {}
    for _, name in ipairs { "ImmovableProperty", "MovableProperty", "UrbanLand", "InterestInFirm", "BusinessAssets", "Jewellery" } do
        all[#all + 1] = screen["txtNet" .. name].text
    end
    return table.concat(all, " ") .. " = " .. screen.txtTotalNetAmount.text
end

sheet.cmdAssets:click()
local assets = frmImmovable
assets.cboNumberOfProperty:type("2")
for column = 2, 3 do
    assets.sprImmovable:type(column, 3, "House " .. column)
    assets.sprImmovable:type(column, 12, tostring(column * 100000))
    assets.sprImmovable:choose(column, 8, "INDIA")
end
assets.SSTabAsset:choose(1)
local land = assets.sprUrbanLand
for row = 1, 13 do -- past the rows that the grid has at first
    if row > land.rows then
        land:advance()
        same(land.activecol .. "," .. land.activerow, "1," .. row)
    end
    for column, name in pairs { [6] = "Pune", [7] = "Maharashtra", [8] = "INDIA" } do land:choose(column, row, name) end
    for column, text in pairs { "Plot " .. row, [9] = "411004", [11] = tostring(1000 * row), [12] = "100",
        [13] = "1", [16] = "5/6/2014" } do
        land:type(column, row, text)
    end
end
same(land:kind(16, 13) .. " " .. land:text(16, 13) .. " " .. tostring(land:locked(13, 13)), "date 05/06/2014 true")
same(land:backcolor(13, 13), "E0E0E0")
same(assets.txtNetAmount.text, "89700")
assets.SSTabAsset:choose(2)
local movables = assets.sprMovableProp
for row = 1, 3 do movables:type(2, row, tostring(row * 1000)) end
movables:type(3, 2, "500")
same(texts(movables, 4, 1, 4), "Total Value of Movable Property|6000|500|5500")
same(movables:type(1, 1, "x"), false, "a label")
assets.SSTabAsset:choose(3)
local firms = assets.sprAssetInterest
for row = 1, 5 do
    for column, text in ipairs { "Firm " .. row, "Pune", "AAAFJ1234K", "Partner", "12.5", "50000", "1000" } do
        firms:type(column, row, text)
    end
end
same(firms:header(8), "Net Amount  [ (d) - (e) ]")
same(firms:backcolor(8, 1), "CECECE")
same(assets.txtTotalInterestInFirm.text, "245000")
assets.SSTabAsset:choose(4)
assets.cboNumberOfJewellery:type("2")
local jewellery = assets.sprJewellary
for column = 2, 3 do
    jewellery:type(column, 1, "Item " .. column)
    jewellery:choose(column, 2, "Carat")
    jewellery:type(column, 3, "10.25")
    jewellery:type(column, 7, "640000.5")
    jewellery:type(column, 8, "0.25")
    jewellery:type(column, 12, "01-04-2014")
    jewellery:press(column, 5)
    same(assets.lblJR.caption, tostring(column - 1))
    assets.sprPreciousStone:type(1, 1, "Ruby of " .. column)
    assets.sprPreciousStone:type(2, 1, "2")
    assets.sprPreciousStone:type(3, 1, tostring(column * 100))
    assets.btnOK:click()
end
same(jewellery:text(2, 6) .. " " .. jewellery:text(3, 6), "200 300")
same(assets.txtAggNetAmt.text, "1280000.5")
assets.cmdOK:click()

-- Business assets: one row valued on a tab of its own.
sheet.cmdAssets:click()
frmImmovable.cmdBusinessAsset:click()
local business = frmBusinessAssets.sprAssetOfBusiness
same(frmImmovable.loaded, false)
business:choose(1, 1, "Urban Land")
business:type(2, 1, "1000")
business:press(6, 1)
same(session("BusinessAssetFlag"), true)
same(session("AssetRowName"), "Urban Land")
same(frmImmovable.SSTabAsset:caption(1), "Urban Land - Business Asset (Urban Land)")
same(frmImmovable.sprUrbanLand.datarows, 0, "its rows are the business's own")
same(frmImmovable.cboNumberOfJewellery.text, "2", "jewellery is that of all modes")
frmImmovable.sprUrbanLand:type(1, 1, "Factory plot")
frmImmovable.sprUrbanLand:type(11, 1, "1300")
frmImmovable.cmdOK:click()
same(texts(business, 1, 1, 7), "Urban Land|1000|200|1200|1300|Details|1300")
business:choose(1, 2, "Gold")
business:type(2, 2, "700")
same(frmBusinessAssets.txtTotalBusinessAsset.text, "2000")
frmBusinessAssets.cmdBusinessAssetSave:click()
same(session("BusinessAssetFlag"), false)
same(frmImmovable.txtNetBusinessAssets.text, "2000")
same(frmImmovable.frWTDetails.visible, true)
frmImmovable.cmdOK:click()
-- Houses: 85 % of 200000 and 300000, ten times; the rest as above.
same(sheet.txtAssetsSec2ea.text, "5872200.5")

sheet.cmdDeemedAssets:click()
same(session("DeemedAssetFlag"), true)
local deemed = frmDeemedAsset.sprDeemedAsset
for row = 1, 12 do
    deemed:choose(1, row, row - 1)
    deemed:choose(2, row, row % 11)
    for column, text in pairs { [3] = "Person " .. row, [4] = "Relative", [5] = "abcde1234f", [6] = "1000",
        [8] = tostring(row * 100) } do
        deemed:type(column, row, text)
    end
end
same(texts(deemed, 12, 5, 9), "ABCDE1234F|1000||1200|0")
same(texts(deemed, 13, 1, 9), "Total|||||12000||7800|4200")
frmDeemedAsset.cmdDeemedAssetOk:click()
same(sheet.txtDeemedAssets.text, "4200")

sheet.cmdExemptedAsset:click()
local exempt = frmAssetExempt.sprAssetExempt
for row = 1, 7 do
    if row > exempt.rows then exempt:advance() end
    same(exempt:choose(1, row, row - 1), true)
    exempt:type(2, row, tostring(row * 10))
    exempt:type(3, row, "5")
    exempt:type(5, row, "Reason")
end
frmAssetExempt.cmdOK:click()
same(sheet.txtExemptedAssets.text, "245")
same(sheet.txtTotalAssets.text, "5876400.5")

local function whole()
    local all = {}
    sheet.cmdAssets:click()
    for _, name in ipairs { "sprImmovable", "sprUrbanLand", "sprMovableProp", "sprAssetInterest", "sprJewellary" } do
        all[#all + 1] = name .. ": " .. rows_of(frmImmovable[name], name == "sprImmovable" or name == "sprJewellary")
    end
    for column = 2, 3 do
        frmImmovable.sprJewellary:press(column, 5)
        all[#all + 1] = rows_of(frmImmovable.sprPreciousStone) .. " " .. frmImmovable.txtTotal.text
    end
    all[#all + 1] = summary(frmImmovable)
    frmImmovable.cmdBusinessAsset:click()
    all[#all + 1] = rows_of(frmBusinessAssets.sprAssetOfBusiness) .. frmBusinessAssets.txtTotalBusinessAsset.text
    frmBusinessAssets.cmdCancel:click()
    frmImmovable.cmdOK:click()
    sheet.cmdDeemedAssets:click()
    all[#all + 1] = rows_of(frmDeemedAsset.sprDeemedAsset)
    frmDeemedAsset.cmdDeemedAssetOk:click()
    sheet.cmdExemptedAsset:click()
    all[#all + 1] = rows_of(frmAssetExempt.sprAssetExempt) .. frmAssetExempt.txtTotalAssetExempt.text
    frmAssetExempt.cmdOK:click()
    for _, name in ipairs(sheet:controls()) do
        if name:find("^txt") then
            all[#all + 1] = name .. "=" .. (sheet[name].text == "" and "0" or sheet[name].text)
        end
    end
    return all
end

local before = whole()
same(#before > 20, true)
same(before[8], "4250000 5500 89700 245000 2000 1280000.5 = 5872200.5")
sheet.cmdMainExit:click()
same(running(), false)
sheet = open_sheet(17)
local after = whole()
same(#after, #before)
for part = 1, #before do same(after[part], before[part]) end
same(boxes(), "")
finish()
