# On a drive of the machine the question names the file itself twice, without a drive in front, and Yes changes nothing.
file Backup.dat "x"
time Backup.dat 2026-01-09 00:00:59
start
click mnuCopy
pick File1 "Backup.dat"
pick Drive1 "c:"
box question "Reelora Prima" "               REPLACE CURRENT FILE ON DRIVE \"C:\"\r\n\r\nBACKUP.DAT was created or last modified on "
+ "Friday, January 9, 2026 at 12:00 AM. Its size is 1 bytes.  To replace this file with the one below, click \"Yes\" or "
+ "quit click \"No\".\r\n\r\n    WITH CURRENT FILE ON \"HARD DISK\"\r\n\r\nBACKUP.DAT was created or last modified on Friday, "
+ "January 9, 2026 at 12:00 AM. Its size is 1 bytes. " Yes
see file Backup.dat "x"
see frmCopy.Visible no
