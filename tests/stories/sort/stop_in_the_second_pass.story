# A run that stops in the pass of the DVDs has made the files of all titles.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="L"
file DVDpra.Dat/x ""
start
click mnuSort
beep
stop "Path/File access error"
see lblSorting.Visible yes
see lblSorting "\n\rSorting Titles"
see lblNumrec " 2"
see lblRetcode " 0"
see state SortStatement "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(1,40,C,GT,\"000000\") "
+ "Record(649)"
see state SortIncludeValue "000000"
see state ViewKind ""
see state TitleCount "0"
see file Titlepra " 2\r\n"
see file DVDpra " 0\r\n"
