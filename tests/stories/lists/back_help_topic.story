# The list's Back sets the help topic of Back.
films 1 65 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
click cmdNext20
click cmdPrev20
move frmPage1
see frmPage1.HelpContext 150
key Space
see Text1(0) "Film 01"
see frmPage1.HelpContext 260
