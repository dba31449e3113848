local function map(f, list)
    local first = {f(list[1]), false}
    local last, rest = first, list[2]
    while rest do
        local cell = {f(rest[1]), false}
        last[2] = cell
        last, rest = cell, rest[2]
    end
    return first
end
local l, n = false, 0
for i = 0, 999 do l = {i, l} end
for i = 1, 500 do n = n + map(function(x) return x + 1 end, l)[1] end
io.write(n)
