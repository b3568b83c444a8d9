# Another hard disk: the question is about the file in the program's own folder.
drive d vault
film 1 Title="Solaris"
start
click mnuCopy
see Drive1.Items "c:" "d:"
pick File1 "Recpra.Dat"
pick Drive1 "d:"
box question "Reelora Prima" ANY No
see frmCopy.Visible no
see length Recpra.Dat 649
