local n = 0
for i = 0, 299999 do n = n + #("(" .. i .. " . \"a name of some length\")") end
io.write(n)
