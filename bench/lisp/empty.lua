io.write(0)
