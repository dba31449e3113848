"""What scripts/attack does: `bench` runs the program and judges how it ended, `run` goes through the groups and keeps
the table, `writers` lists all that writes a file, and each of the other modules is a group of faults."""
