l, i = nil, 0
while i < 1000000 do l = {i, l} i = i + 1 end
local function length(list) local n = 0 while list do n = n + 1 list = list[2] end return n end
local function reverse(list) local r = nil while list do r = {list[1], r} list = list[2] end return r end
io.write(length(l))
io.write(reverse(l)[1])
