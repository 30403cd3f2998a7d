-- Works many clients through in one go, without a person: each sheet recomputed and saved, each return
-- filled from it and written as XML, and with "pdf" its statement of wealth too. The rate and the
-- memory are printed at the end.
--     levora-wealth-script --data FOLDER samples/batch.lua OUT [COUNT [pdf]]
-- With COUNT that many clients are made first, of a number from 10001 on; without it, or with 0, the
-- clients are those that have a sheet in the folder.
local out = assert(arg[1], "name the folder for the results")
local count = tonumber(arg[2] or 0)
local with_pdf = arg[3] == "pdf"
local year = "2014-2015"
local edits = 100 -- figures worked out anew per client, for the rate of plain computation

local function memory(name) -- in MB: VmRSS now, VmHWM at the most
    for line in io.lines("/proc/self/status") do
        local kilobytes = line:match("^" .. name .. ":%s*(%d+)")
        if kilobytes then return tonumber(kilobytes) / 1024 end
    end
    return 0
end

-- Time on the wall; os.clock counts that of the processor alone.
local function uptime() return tonumber(io.lines("/proc/uptime")():match("%S+")) end

-- Copies of the first client that has a sheet, with all its rows, each table in one statement.
local function make_clients(amount)
    local pattern = store("LVWTax", "SELECT MIN(AssesseeNo) AS n FROM NetWealthComputation")[1].n
    assert(pattern, "no client with a sheet in the folder to copy")
    for _, file in ipairs({ "Assessee", "LVWTax" }) do
        for _, each in ipairs(store(file, "SELECT name FROM sqlite_master WHERE type = 'table'")) do
            local columns, is_clients = {}, false
            for _, column in ipairs(store(file, "SELECT name, pk FROM pragma_table_info('" .. each.name .. "')")) do
                if column.name == "AssesseeNo" then
                    is_clients = true
                elseif column.pk == 0 then -- a row's own number is given anew
                    columns[#columns + 1] = "[" .. column.name .. "]"
                end
            end
            if is_clients then
                local names = table.concat(columns, ", ")
                store(file, string.format("INSERT INTO [%s] (AssesseeNo, %s) WITH RECURSIVE numbers (n) AS"
                    .. " (SELECT 10001 UNION ALL SELECT n + 1 FROM numbers WHERE n < %d)"
                    .. " SELECT n, %s FROM numbers, [%s] WHERE AssesseeNo = %d",
                    each.name, names, 10000 + amount, names, each.name, pattern))
            end
        end
    end
end

-- A box that tells of trouble ends the batch with the client's number.
local function look_at_boxes(number)
    for _, box in ipairs(messages()) do
        if box.icon == "critical" or box.icon == "exclamation" then error(number .. ": " .. box.text, 0) end
    end
end

local spent = { figures = 0, whole = 0, processor = 0 }

local function work_through(number)
    local began, clock_began = uptime(), os.clock()
    assert(start(year .. " " .. number .. " Individual x 0"), "client " .. number .. " does not start")
    local sheet = frmWealthMain
    local debt = sheet.txtLessDebt.text
    local clock = os.clock()
    for i = 1, edits do
        sheet.txtLessDebt.text = i * 100000
    end
    clock = os.clock() - clock
    spent.figures = spent.figures + clock
    sheet.txtLessDebt.text = debt

    sheet.cmdSave1:click()
    if with_pdf then
        sheet.cmdPreview:click()
        frmRepPreview.report:save(out .. "/" .. number .. ".pdf")
    end
    sheet.cmdformBA:click()
    choose_file(out .. "/" .. number .. ".xml")
    answer("OK")
    frmFormBA.btnGenerate:click()
    frmFormBA.cmdClose:click()
    look_at_boxes(number)
    sheet.cmdMainExit:click()
    spent.whole = spent.whole + uptime() - began - clock
    spent.processor = spent.processor + os.clock() - clock_began - clock
end

if count > 0 then make_clients(count) end
local clients = store("LVWTax", "SELECT DISTINCT AssesseeNo AS n FROM NetWealthComputation WHERE FY = '"
    .. year .. "'" .. (count > 0 and " AND AssesseeNo > 10000" or "") .. " ORDER BY AssesseeNo")
local after_first_tenth
for i, client in ipairs(clients) do
    work_through(client.n)
    if i == math.ceil(#clients / 10) then after_first_tenth = memory("VmRSS") end
end

print(string.format("%d clients", #clients))
print(string.format("figures alone: %.0f a second", #clients * edits / spent.figures))
print(string.format("store, XML%s: %.0f a second; %.0f without the waiting for disk and other programs",
    with_pdf and ", PDF" or "", #clients / spent.whole, #clients / spent.processor))
print(string.format("memory: %.1f MB after a tenth, %.1f MB at the end, %.1f MB at most",
    after_first_tenth, memory("VmRSS"), memory("VmHWM")))
