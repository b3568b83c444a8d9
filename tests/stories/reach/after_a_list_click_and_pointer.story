# A click and the pointer do not reach a button under another.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
click cmdMatch
click cmdPrev20
see focus cmdMatch
see frmPage1.HelpContext 380
dblclick cmdPrev20
see focus cmdMatch
