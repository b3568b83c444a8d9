# Twenty rows back has the topic of Back.
films 1 65 Title="Film ##" Format="D"
sorted
start
click mnuAllTitles
click cmdNext20
click cmdNext20
move frmPage1
see frmPage1.HelpContext 150
see focus cmdNext20
key Tab
see focus cmdPrev20
see frmPage1.HelpContext 260
key F1
help 260
