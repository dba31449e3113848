local n = 0
for line in io.lines(os.getenv("LINES")) do n = n + #line end
io.write(n)
