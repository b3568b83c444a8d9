# Past the end of a list its Back is still there under the other one and may hold the focus; pressed, it finds no
# open key file.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
see focus cmdPrev20
key Space
stop "Bad file name or number"
