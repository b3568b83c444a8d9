# Alt and O presses the button, not the line of the menu.
films 1 3 Title="Film #" Format="D"
start
click cmdNext
key Alt+O
beep
beep
beep
beep
see focus cmdSort
see state CurrentRecNo 1
see state ViewKind ""
