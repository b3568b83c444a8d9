# A search over a list of twenty leaves the rows up; the film of the hit is behind them.
films 1 20 Title="Film ##" Director="Nobody"
film 20 Title="Film 20" Director="Aa"
sorted
start
click mnuAllTitles
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
see state CurrentRecNo 20
see state RowCursor 21
see state KeyFilePos 0
see state ListState 2
see Text1(0).Visible yes
