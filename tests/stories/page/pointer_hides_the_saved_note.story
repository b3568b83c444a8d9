# The saved note goes with the pointer over the window, the strip or the counts.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdEdit
click cmdSave
see lblSave.Visible yes
see lblSave "    Your Work Has Been Saved!"
move Toolbar1
see lblSave.Visible no
click cmdEdit
click cmdSave
see lblSave.Visible yes
move lblsorted
see lblSave.Visible no
click cmdEdit
click cmdSave
move frmPage1
see lblSave.Visible no
