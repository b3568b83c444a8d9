# A file that is gone by the time the drive is chosen stops the program.
drive a floppy
file Backup.dat "x"
start
click mnuCopy
pick File1 "Backup.dat"
remove Backup.dat
pick Drive1 "a:"
stop "File not found"
