(princ 0)
