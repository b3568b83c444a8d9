# Tab passes over the list's Back while the other one lies on it.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
click cmdMatch
see focus cmdMatch
key Tab
see focus cmdPrevious
key Shift+Tab
see focus cmdMatch
