-- Writes the e-Return file of every sample client into a folder, and again from its working copy.
local folder = arg[1]
for _, number in ipairs { 101, 102, 103, 104, 105 } do
    assert(start("2014-2015 " .. number .. " Individual x 0"))
    frmWealthMain.cmdformBA:click()
    choose_file(folder .. "/e_return_" .. number .. ".xml")
    frmFormBA.btnGenerate:click()
    frmFormBA.cmdSave:click()
    frmFormBA.cmdClose:click()
    frmWealthMain:close()
    assert(start("2014-2015 " .. number .. " Individual x 0"))
    frmWealthMain.cmdformBA:click()
    assert(frmFormBA.lblFillFrom.caption == "Filled from Saved Data")
    choose_file(folder .. "/e_return_" .. number .. "_again.xml")
    frmFormBA.btnGenerate:click()
    frmWealthMain:close()
end
