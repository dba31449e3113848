i = 0
while i < 5000000 do i = i + 1 end
io.write(i)
