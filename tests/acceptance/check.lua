-- Small checks for scripts that try the program as a person would. A failed check is told with its line
-- and the script goes on; the last line of every script is finish().
local failed, passed = 0, 0

function same(got, wanted, why)
    if got == wanted then
        passed = passed + 1
        return
    end
    failed = failed + 1
    local at = debug.getinfo(2, "Sl")
    io.stderr:write(string.format("%s:%d: %s: got %s, wanted %s\n", at.short_src, at.currentline,
        why or "", tostring(got), tostring(wanted)))
end

function finish()
    print(passed .. " passed, " .. failed .. " failed")
    os.exit(failed == 0 and 0 or 1)
end

function client(number, columns)
    local names, values = "AssesseeNo", tostring(number)
    for name, value in pairs(columns or { Assessee_Name = "A. Client" }) do
        names = names .. ", " .. name
        values = values .. ", " .. (type(value) == "number" and value or "'" .. value .. "'")
    end
    store("Assessee", "INSERT INTO AssesseeInfo (" .. names .. ") VALUES (" .. values .. ")")
end

function open_sheet(number)
    assert(start("2014-2015 " .. number .. " Individual x 0"))
    return frmWealthMain
end

function texts(grid, row, first, last)
    local cells = {}
    for column = first, last do cells[#cells + 1] = grid:text(column, row) end
    return table.concat(cells, "|")
end

-- The texts and answers of the boxes shown since the last call.
function boxes()
    local all = {}
    for _, box in ipairs(messages()) do all[#all + 1] = box.text end
    return table.concat(all, " / ")
end
