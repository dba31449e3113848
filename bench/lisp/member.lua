local l, n = false, 0
for i = 0, 999 do l = {"layer " .. i, l} end
for i = 0, 19999 do
    local name, rest = "layer " .. i % 1000, l
    while rest and rest[1] ~= name do rest = rest[2] end
    while rest do n, rest = n + 1, rest[2] end
end
io.write(n)
