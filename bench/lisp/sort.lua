l, s = {}, 12345
for i = 1, 100000 do s = (s * 1103 + 12345) % 65536 l[i] = s end
table.sort(l, function(a, b) return a < b end)
io.write(l[1] + l[50001])
