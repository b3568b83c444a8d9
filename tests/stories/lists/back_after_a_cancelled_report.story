# The list's Back after a report was asked for and given up, which has closed the key file, opens it again.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click mnuDirector
input "Reelora Prima Print Program" "Enter Director's Last Name. To Print List: " cancel
see state KeyFilePos 20
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see state BackCount 18
