dofile((arg[0]:match("^.*/") or "") .. "check.lua")

-- One screen for three sets of rows: the main schedule, the business assets and the deemed assets.
client(17)
local sheet = open_sheet(17)
local function rows_of(select)
    local all = {}
    for _, row in ipairs(store("LVWTax", select)) do all[#all + 1] = row.T .. ":" .. row.V end
    return table.concat(all, " ")
end

-- Main: one house and one plot.
sheet.cmdAssets:click()
frmImmovable.cboNumberOfProperty:type("1")
frmImmovable.sprImmovable:type(2, 12, "100000")
frmImmovable.sprUrbanLand:type(11, 1, "500000")
same(frmImmovable.txtTotalNetAmount.text, "1350000")
frmImmovable.cmdOK:click()
same(sheet.txtAssetsSec2ea.text, "1350000")

-- Business assets are reached without a save: what was typed is lost.
sheet.cmdAssets:click()
frmImmovable.sprImmovable:type(2, 12, "900000")
frmImmovable.cmdBusinessAsset:click()
same(tostring(frmImmovable.loaded) .. tostring(frmBusinessAssets.visible), "falsetrue")
local business = frmBusinessAssets.sprAssetOfBusiness
business:choose(1, 3, "Building")
business:type(2, 3, "1000000")
business:press(6, 3)
same(session("BusinessAssetFlag"), true)
same(session("AssetRowName"), "Building")
same(frmImmovable.SSTabAsset:caption(0), "Immovable Property - Business Asset (Building)")
same(tostring(frmImmovable.SSTabAsset:visible(1)) .. tostring(frmImmovable.SSTabAsset:choose(1)), "truefalse")
same(frmImmovable.cboNumberOfProperty.text, "0", "its own rows")
frmImmovable.cboNumberOfProperty:type("1")
frmImmovable.sprImmovable:type(2, 12, "150000") -- 1275000
frmImmovable.cmdOK:click()
same(tostring(frmImmovable.loaded) .. tostring(frmBusinessAssets.visible), "falsetrue")
same(business:text(5, 3) .. "|" .. business:text(7, 3), "1275000|1275000")

-- The whole screen saves under the business type, whatever tab was opened.
business:choose(1, 4, "Car")
business:type(2, 4, "300000")
business:press(6, 4)
frmImmovable.sprMovableProp:type(2, 1, "400000")
frmImmovable.sprMovableProp:type(3, 1, "10000")
frmImmovable.cmdOK:click()
same(business:text(5, 4) .. "|" .. business:text(7, 4), "390000|390000")
same(rows_of("SELECT AssetType T, PropertyNo V FROM [Immovable Property Details] ORDER BY 1"), "0:1 1:1")

-- Back to the main schedule, loaded afresh, with the value of the business assets.
business:type(2, 4, "300001")
local value = frmBusinessAssets.txtTotalBusinessAsset.text
same(value, "1665000")
business:choose(1, 6, "Silver") -- nothing taken: dropped
frmBusinessAssets.cmdBusinessAssetSave:click()
same(rows_of("SELECT AssetName T, ValueTobeTaken V FROM BusinessAsset"), "Building:1275000 Car:390000")
same(session("BusinessAssetFlag"), false)
same(frmImmovable.txtNetBusinessAssets.text, value)
same(frmImmovable.sprImmovable:text(2, 12), "100000", "what was typed before is lost")
same(frmImmovable.txtTotalNetAmount.text, "3015000")
frmImmovable.cmdOK:click()
same(sheet.txtAssetsSec2ea.text, "3015000")
same(rows_of("SELECT AssetType T, TotalNetAsset V FROM [Asset Details] ORDER BY 1"):match("^0:(%d+)"), "3015000")
same(#store("LVWTax", "SELECT * FROM [Asset Details] WHERE ImmovablePropertyDebtOwed <> 0"), 0)

-- Deemed assets: the amounts are typed; a click on Details does nothing.
sheet.cmdDeemedAssets:click()
same(session("DeemedAssetFlag"), true)
frmDeemedAsset.cmdDeemedAssetCancel:click()
same(session("DeemedAssetFlag"), true, "until the next assets")
sheet.cmdAssets:click()
same(session("DeemedAssetFlag"), false)
same(frmImmovable.txtNetBusinessAssets.text, value)

-- The deemed assets' own rows, in another mode than the sheet opened.
frmWealthMain.cmdDeemedAssets:click()
frmImmovable.sprImmovable:type(2, 12, "200000")
same(frmImmovable.txtNetImmovableProperty.text, "1700000", "the recomputation writes it in any mode")
frmImmovable.sprMovableProp:type(2, 1, "5")
same(frmImmovable.txtNetMovableProperty.text, "0")
frmDeemedAsset.sprDeemedAsset:go(2, 3)
frmImmovable.cmdOK:click()
same(frmDeemedAsset.sprDeemedAsset:text(5, 3), "1700000", "by the grid's former numbering")
same(rows_of("SELECT AssetType T, PropertyNo V FROM [Immovable Property Details] ORDER BY 1"), "0:1 1:1 2:1")

-- Sheets of the exempted assets carry no title.
frmDeemedAsset.cmdDeemedAssetCancel:click()
sheet.cmdExemptedAsset:click()
frmAssetExempt.sprAssetExempt:type(2, 1, "5")
same(frmAssetExempt.sprAssetExempt:rightclick(), "mnuSpread")
frmAssetExempt.mnuPreviewSheet:click()
frmAssetExempt.mnuPrintSheet:click()
local printed = sheets()
same(#printed .. printed[1].header .. printed[2].header, "2")
same(tostring(printed[1].preview) .. tostring(printed[2].preview), "truefalse")
finish()
