# The status of a pass that fails is in its label; the line of the counts is that of before.
film 1 Title="Alien" Format="D"
file VHSpra.Dat/x ""
remove UPPER.ALT
start
click mnuSort
beep
beep
beep
stop "Path/File access error"
see lblSorting "\n\rSorting Lasers"
see lblNumrec " 0"
see lblRetcode " 3"
see state SortStatement "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"L\") Record(649) "
see state SortIncludeValue "L"
see file Laserpra " 0\r\n"
see lblsorted "No. Titles  0 -    No. DVDS  0 -    No.Laser discs  0 -    No.VHS 0"
