# F1 in the copy window opens the topic of that window, from the files and from the drives.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
key F1
help 603
pick File1 "Recpra.Dat"
key Tab
see focus Drive1
key F1
help 603
close
key F1
help 220
