local function append(a, b)
    if not a then return b end
    local first = {a[1], false}
    local last, rest = first, a[2]
    while rest do
        local cell = {rest[1], false}
        last[2] = cell
        last, rest = cell, rest[2]
    end
    last[2] = b
    return first
end
local l, n = false, 0
for i = 1, 10000 do l = {i, l} end
for i = 1, 200 do
    local all, length = append(l, l), 0
    while all do length, all = length + 1, all[2] end
    n = n + length
end
io.write(n)
