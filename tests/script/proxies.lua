-- Screens and controls are found by name at each use.
dofile((arg[0]:match("^.*/") or "") .. "raises.lua")

assert(tostring(frmChallan282) == "frmChallan282" and not frmChallan282.loaded)
assert(frmChallan282.visible == false)
assert(frmNowhere == nil, "a name that no screen has is an ordinary global")
raises("frmChallan282.txtPan: the screen frmChallan282 is not loaded", function() return frmChallan282.txtPan end)
raises("frmChallan282: the screen is not loaded", function() frmChallan282:close() end)

assert(start("2014-2015 17 Individual x 0"))
assert(not frmChallan282.loaded, "reading a screen's name loads nothing")
assert(frmWealthMain.cmdChallan:click())
assert(frmChallan282.loaded and frmChallan282.visible and frmChallan282.enabled)
assert(frmChallan282.caption == "Challan 282")

-- a control taken into a variable stays good over a reload
local name = frmChallan282.txtName
name:type("Somebody")
assert(frmChallan282:close() and not frmChallan282.loaded)
raises("frmChallan282.txtName: the screen frmChallan282 is not loaded", function() return name.text end)
frmWealthMain.cmdChallan:click()
assert(name.text == "" and name:type("Another") and frmChallan282.txtName.text == "Another")
assert(tostring(name) == "frmChallan282.txtName")

-- wrong names and wrong calls
raises("frmChallan282.txtNowhere: the screen frmChallan282 has no control of this name",
    function() return frmChallan282.txtNowhere end)
raises('frmChallan282.txtName: this kind of control has no "items"', function() return name.items end)
raises("frmChallan282.txtName.locked can't be assigned to", function() name.locked = true end)
raises("frmChallan282.caption can't be assigned to", function() frmChallan282.caption = "x" end)
raises("a call of a control without its control", function() name.type("x") end)
raises("frmChallan282.cmdNew: a call of another kind of control", function() name.type(frmChallan282.cmdNew, "x") end)
raises("argument 2: a text expected, got nil", function() name:type(nil) end)

local found = {}
for _, control in ipairs(frmChallan282:controls()) do found[control] = true end
assert(found.txtName and found.cboChallanList and found.UpDownITR1TM and not found.Nowhere)

-- an event's unanswered failure is the program's to report, not the script's
messages()
assert(frmChallan282:key("Ctrl+F5"))
assert(messages()[1].title == "Levora Wealth Tax - Error")

-- the end of the program unloads everything
frmWealthMain:close()
assert(not running() and not frmChallan282.loaded)
