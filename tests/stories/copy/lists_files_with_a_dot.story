# The list shows files that end in .dat in any letters, and no folder and no file that only ends in these letters.
drive a floppy
film 1 Title="Solaris"
file olddat "x"
file Old.dAt "x"
file shelf.dat/notes.txt "x"
start
click mnuCopy
see File1.Items "Old.dAt" "Recpra.Dat"
