# A key whose number is 0 leads nowhere: the list stops there with the focus on the title, and nothing is said.
film 1 Title="Alien" Format="D"
key Titlepra.Dat "Alien" 1
key Titlepra.Dat "Nobody" 0
count Titlepra 2
start
click mnuAllTitles
see focus txtTitle
see Text1(0) "Alien"
see Text1(1) ""
see state ScanRecNo 0
see state RowCursor 1
see state MatchPos 0
