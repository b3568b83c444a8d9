# The question before a copy replaces a file names both files in capitals, each with date, time and size.
each DRIVE SHOWN
row  a     A
row  b     B

drive {DRIVE} floppy
file Backup.dat "old"
time Backup.dat 2026-07-04 23:05:07
start
click mnuCopy
pick File1 "Backup.dat"
pick Drive1 "{DRIVE}:"
box question "Reelora Prima" "Do you want to copy Backup.dat to Drive {SHOWN}: hit Yes, or No " Yes
file Backup.dat "newer"
time Backup.dat 2026-11-21 09:30:00
click mnuCopy
pick Drive1 "{DRIVE}:"
box question "Reelora Prima" "               REPLACE CURRENT FILE ON DRIVE \"{SHOWN}:\"\r\n\r\n{SHOWN}:\\BACKUP.DAT was created "
+ "or last modified on Saturday, July 4, 2026 at 11:05 PM. Its size is 3 bytes.  To replace this file with the one "
+ "below, click \"Yes\" or quit click \"No\".\r\n\r\n    WITH CURRENT FILE ON \"HARD DISK\"\r\n\r\nBACKUP.DAT was created or "
+ "last modified on Saturday, November 21, 2026 at 9:30 AM. Its size is 5 bytes. " Yes
see drive {DRIVE} Backup.dat same
