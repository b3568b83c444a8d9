# In Edit a disabled Back still covers the list's: Alt+B finds nothing, and Tab goes past both.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
click cmdEdit
see cmdPrev20.Visible yes
see cmdPrevious.Enabled no
key Alt+B
see focus cmdEdit
see state EditMode 1
key Tab
see focus cmdMatch
