l, i, n = nil, 0, 0
while i < 1000 do l = {{i, i * i}, l} i = i + 1 end
local function assoc(key, list)
    while list do
        if list[1][1] == key then return list[1] end
        list = list[2]
    end
end
i = 0
while i < 100000 do n = n + assoc(i % 1000, l)[2] i = i + 1 end
io.write(n)
