-- Boxes and dialogs: queued answers, what dismissing counts as, what is recorded.
dofile((arg[0]:match("^.*/") or "") .. "raises.lua")

today("2014-09-15")
assert(start("2014-2015 17 Individual x 0"))
frmWealthMain.cmdChallan:click()
local s = frmChallan282

-- a dismissed question counts as Cancel where the box has it, else as No
s.txtChequeNo:type("1")
assert(s:close() == false and s.loaded)
local box = messages()[1]
assert(box.title == "Levora Forms - Challan 282" and box.icon == "question" and box.answer == "Cancel")
assert(table.concat(box.buttons, " ") == "Yes No Cancel")
assert(#messages() == 0, "boxes are told once")
s.cmdDelete1:click()
assert(messages()[1].answer == "No")

-- answers are used in order; "close" dismisses; answer() empties the queue
answer("close", "No")
assert(s:close() == false and s:close() == true)
local shown = messages()
assert(#shown == 2 and shown[1].answer == "Cancel" and shown[2].answer == "No")
answer("Yes")
answer()
frmWealthMain.cmdChallan:click()
s.cmdDelete1:click()
assert(messages()[1].answer == "No")

-- an answer that the box does not offer is an error of the script
answer("Retry")
raises('does not offer the answer "Retry"', function() s.cmdDelete1:click() end)
messages()

-- a failing statement: the button retries it, dismissing ends the procedure
answer("OK", "OK")
s.cboPaymentBank:type("King's")
shown = messages()
assert(#shown == 3 and shown[1].answer == "OK" and shown[3].answer == nil)
assert(shown[1].title == "Levora Wealth Tax - Error" and shown[1].icon == "exclamation")

-- outside programs are recorded, none is started
registry([[Software\Meridew Data Works\Shared]], "LVCalc Path", [[C:\Tools]])
s:key("Ctrl+Alt+C")
s:key("Ctrl+Alt+T")
local asked = started()
assert(asked[1].command == "CALC.EXE" and asked[1].style == "minimized")
assert(asked[2].command == [[C:\Tools\Levora Calc.exe ]] and asked[2].style == "normal")
assert(#started() == 0 and #dialogs() == 0 and #sheets() == 0 and #printed() == 0)
choose_file("x.xml") choose_file() choose_printer(true) choose_printer()
