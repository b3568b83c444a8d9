# The counts are read in the order titles, lasers, tapes, DVDs; a missing one stops before the line of the counts and
# before the master file is made.
count Titlepra 3
count Laserpra 1
count DVDpra 2
remove VHSpra
start
stop "File not found"
see state TitleCount "3"
see state LaserCount "1"
see state VHSCount ""
see state DVDCount ""
see lblsorted ""
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see state ViewState 0
see missing Recpra.Dat
see frmPage1 "Form1"
