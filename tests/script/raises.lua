-- The call fails, and its message holds the text.
function raises(text, call, ...)
    local fine, message = pcall(call, ...)
    assert(not fine, "no error: " .. text)
    assert(message:find(text, 1, true), message)
end
