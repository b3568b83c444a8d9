# After the end of a list its Back lies under the other one: the keys that press Back go back by one film.
each KEY
row  Alt+B
row  Space
row  Enter
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
see cmdPrev20.Visible yes
see focus cmdPrevious
key {KEY}
beep
box warning "" "Top of file encountered!" OK
see state CurrentRecNo 1
