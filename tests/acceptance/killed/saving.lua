-- Saves on every screen, each time with a figure of its own: so many rounds, or until it is killed.
assert(start("2014-2015 101 Individual x 0"))
local first, rounds = tonumber(arg[1]), tonumber(arg[2] or "1000000")
for figure = first, first + rounds - 1 do
    local text = tostring(figure)

    frmWealthMain.cmdAssets:click()
    frmImmovable.sprImmovable:type(2, 28, text)
    frmImmovable.sprUrbanLand:type(12, 1, text)
    frmImmovable.cmdOK:click()

    frmWealthMain.cmdDeemedAssets:click()
    for row = 1, 8 do frmDeemedAsset.sprDeemedAsset:type(6, row, text) end
    frmDeemedAsset.cmdDeemedAssetOk:click()

    frmWealthMain.cmdExemptedAsset:click()
    for row = 1, 8 do
        frmAssetExempt.sprAssetExempt:type(2, row, text)
        if row > 5 then frmAssetExempt.sprAssetExempt:advance() end
    end
    frmAssetExempt.cmdOK:click()

    frmWealthMain.txtLessDebt:type(text)
    for row = 1, 30 do frmWealthMain.sprSATax:type(6, row, text) end
    frmWealthMain.cmdSave1:click()

    frmWealthMain.cmdChallan:click()
    frmChallan282.txtIncomeTax:type(text)
    frmChallan282.txtInterest:type(text)
    answer("Yes")
    frmChallan282.cmdSave:click()
    answer("No")
    frmChallan282:close()
    answer()

    frmWealthMain.cmdformBA:click()
    frmFormBA.txtFirstName:type("F" .. text)
    choose_file(data_folder() .. "/out.xml")
    frmFormBA.btnGenerate:click()
    frmFormBA.cmdSave:click()
    frmFormBA:close()
    registry([[Software\Meridew Data Works\Levora Forms]], "Challan282 Top Margin", text)
    for _, box in ipairs(messages()) do
        assert(box.title ~= "Levora Wealth Tax - Error", box.text)
    end
end
