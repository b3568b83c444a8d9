# Title view goes by the count in memory, until the list of all titles has read it again.
films 1 3 Title="Film ##" Format="D"
sorted
start
click mnuByTitle
count Titlepra 0
click cmdNext
see txtTitle "Film 02"
click mnuAllTitles
box warning "Reelora Prima Print Program" "Records have not been sorted.  Records must be sorted before records can "
+ "viewed!" OK
see state TitleCount "0"
see cmdNext.Visible yes
click mnuByTitle
box warning "Reelora Prima Print Program" "Records have not been sorted.  Records must be sorted before records can "
+ "viewed!" OK
