# At the end of a list its Next goes and hands the focus to its Back, which stays; at the top Back goes, and the
# focus passes through the rows to the title.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
see focus cmdPrev20
click mnuAllTitles
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see focus txtTitle
