# A run that stops in the pass of the lasers has made the files of the DVDs and left the view's name.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="L"
file Laserpra.Dat/x ""
start
click mnuSort
beep
beep
stop "Path/File access error"
see lblSorting "\n\rSorting DVD"
see lblNumrec " 1"
see lblRetcode " 0"
see state SortStatement "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"D\") Record(649) "
see state SortIncludeValue "D"
see state ViewKind "DVDpra"
see file DVDpra " 1\r\n"
see file Laserpra " 0\r\n"
