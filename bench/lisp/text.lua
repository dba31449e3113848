s, i = "", 0
while i < 20000 do s = s .. "x" i = i + 1 end
io.write(#s)
