# Twenty rows on has no topic: the one before stays, as the focus comes.
films 1 65 Title="Film ##" Format="D"
sorted
start
click mnuAllTitles
click cmdNext20
key Tab
see focus cmdPrev20
move frmPage1
key Shift+Tab
see focus cmdNext20
see frmPage1.HelpContext 150
