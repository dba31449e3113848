"""The manual as a book: its documents read, made into pages, checked, printed."""
