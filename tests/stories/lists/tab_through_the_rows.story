# The Tab key walks down the left column, then the middle one, then the right one; a row has no help topic.
films 1 45 Title="Film ##" Format="D" Year="1950"
sorted
start
click mnuAllTitles
click Text1(18)
key Tab
see focus Text1(19)
key Tab
see focus Text2(0)
click Text2(19)
key Tab
see focus Text3(0)
click Text3(12)
key Tab
see focus Text3(13)
click Text3(14)
key Tab
see focus Text3(15)
click Text3(19)
key Shift+Tab
see focus Text3(18)
move frmPage1
click Text2(3)
see focus Text2(3)
see frmPage1.HelpContext 150
