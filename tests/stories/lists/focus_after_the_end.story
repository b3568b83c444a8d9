# At the end of a list the focus leaves its buttons for the Back that lies over them; at the top it passes to the
# title.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
see focus cmdPrevious
click mnuAllTitles
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see focus txtTitle
