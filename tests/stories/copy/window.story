# The copy window lists the data files and waits for a choice.
drive a floppy
drive b none
film 1 Title="Solaris"
sorted
file old.DAT "x"
file notes.txt "x"
start
click mnuCopy
see frmCopy.Visible yes
see frmCopy "Copy Files"
see File1.Items "DVDpra.Dat" "Laserpra.Dat" "Recpra.Dat" "Titlepra.Dat" "VHSpra.Dat" "old.DAT"
see Drive1.Items "a:" "b:" "c:"
see Drive1.Enabled no
see File2.Visible no
see Dir2.Visible no
see lblCopy "Copy Data to Floppy"
see lblCopy2 "Copy recpra.dat"
see lblCopy6 "Click on file to make selection"
see lblCopy.Visible yes
see lblCopy2.Visible yes
see lblCopy6.Visible yes
see lblCopy3.Visible no
see lblCopy4.Visible no
see lblCopy5.Visible no
see lblCopy7.Visible no
see focus File1
pick File1 "Recpra.Dat"
see Drive1.Enabled yes
see lblCopy3 "Click on  down arrow "
see lblCopy4 "Click on \"a\" to copy data to  floppy drive \"a\""
see lblCopy5 "Make sure  there's a disc in drive \"A\" or \"B\"."
see lblCopy7 "Try Again!"
see lblCopy.Visible yes
see lblCopy3.Visible yes
see lblCopy4.Visible yes
see lblCopy5.Visible yes
see lblCopy7.Visible no
