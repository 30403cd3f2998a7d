-- After a kill: every save stands whole, the old one or the new.
local function one(file, statement)
    local rows = store(file, statement)
    assert(#rows == 1, statement)
    return rows[1]
end
local of_client = " WHERE AssesseeNo = 101"

local function all_alike(table_name, column, count)
    local row = one("LVWTax", "SELECT count(*) AS n, min(" .. column .. ") AS low, max(" .. column .. ") AS high FROM " ..
        table_name .. of_client)
    assert(row.n == count and row.low == row.high,
        table_name .. ": " .. row.n .. " rows, " .. tostring(row.low) .. " to " .. tostring(row.high))
    return row.low
end

-- One event each: the sheet with its prepaid rows, the assets screen with its schedules and totals.
assert(all_alike("PrePaidTaxes", "Amount", 30) == one("LVWTax", "SELECT LessDebt FROM NetWealthComputation" .. of_client).LessDebt)
all_alike("DeemedAssetDetails", "DeemedAssetValue", 8)
all_alike("AssetUnderExemption", "ExemptedAmount", 8)
local assets = one("LVWTax", [[
    SELECT (SELECT DebtOwed FROM [Immovable Property Details] WHERE AssesseeNo = 101 AND PropertyNo = 1) AS house,
           (SELECT DebtOwed FROM [Urban Land] WHERE AssesseeNo = 101) AS land,
           (SELECT sum(NetValue) FROM [Immovable Property Details] WHERE AssesseeNo = 101) AS properties,
           (SELECT NetImmovableProperty FROM [Asset Details] WHERE AssesseeNo = 101) AS total,
           (SELECT count(*) FROM jewellery WHERE AssesseeNo = 101) AS items]])
assert(assets.house == assets.land and assets.properties == assets.total and assets.items == 2)
assert(one("LVForms", "SELECT count(*) AS n FROM Challan WHERE Total <> IncomeTax + Interest OR Total IS NULL").n == 0)

for _, name in ipairs { "out.xml", "ITR/WT 101 2014-2015" } do
    local file = assert(io.open(data_folder() .. "/" .. name, "rb"))
    assert(file:read("a"):match("</FORMP2:Form>%s*$"), name)
    file:close()
end
assert(tonumber(registry([[Software\Meridew Data Works\Levora Forms]], "Challan282 Top Margin")))
