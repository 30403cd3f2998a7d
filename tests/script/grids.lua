-- Grids: columns first, from 1; headers at 0.
dofile((arg[0]:match("^.*/") or "") .. "raises.lua")

assert(start("2014-2015 17 Individual x 0"))
local paid = frmWealthMain.sprSATax
assert(paid.datarows == 0 and paid.datacols == 0 and paid.changed == false)
assert(paid:text(1, 0) == paid:header(1) and paid:header(1) ~= "")
assert(paid:text(0, 2) == paid:rowheader(2))
raises("no cell in column", function() return paid:text(1, paid.rows + 1) end)
raises("argument 3: a whole number expected, got no value", function() return paid:text(1) end)

-- the column of amounts: a number, plain as text
local amount, date
for column = 1, paid.cols do
    if paid:kind(column, 1) == "number" then amount = column end
    if paid:kind(column, 1) == "date" then date = column end
end
assert(paid:type(amount, 2, "1,250") and paid:text(amount, 2) == "1250" and paid:value(amount, 2) == 1250)
assert(paid.activecol == amount and paid.activerow == 2 and paid.changed)
assert(paid.datarows == 2 and paid.datacols == amount)
assert(paid:type(amount, 2, "12a") == false and paid:text(amount, 2) == "1250", "a refused text leaves the cell")
assert(paid:type(amount, 2, "") and paid:text(amount, 2) == "" and paid:value(amount, 2) == 0)
assert(paid:type(date, 1, "5/6/2014") and paid:text(date, 1) == "05/06/2014")
assert(paid:go(1, 3) and paid.activecol == 1 and paid.activerow == 3)
paid:key("Right")
assert(paid.activecol == 2)
assert(paid:locked(amount, 1) == false and paid:backcolor(amount, 1) == "" and paid:note(amount, 1) == "")
assert(paid:choose(amount, 1, 0) == false and paid:check(amount, 1, true) == false and paid:press(amount, 1) == false)
raises("one character expected", function() paid:char("ab") end)

-- lists and buttons among the assets
frmWealthMain.cmdAssets:click()
local property = frmImmovable.sprImmovable
frmImmovable.cboNumberOfProperty:type("1")
local kinds = {}
for row = 1, property.rows do
    local kind = property:kind(2, row)
    kinds[kind] = kinds[kind] or row
end
local list = kinds.combo
assert(#property:items(2, list) > 1)
assert(property:choose(2, list, 1) and property:index(2, list) == 1)
assert(property:text(2, list) == property:items(2, list)[2])
assert(property:choose(2, list, property:items(2, list)[1]) and property:index(2, list) == 0)
assert(property:choose(2, list, "nowhere") == false and property:index(2, list) == 0)
assert(type(property:hidden(1)) == "boolean")
