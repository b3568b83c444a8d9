# The settings and the buttons come before the colours, the hint after them.
remove BGColor
start
stop "File not found"
see txtAutoSave "Auto Save Off"
see cmdPrev20.Visible no
see lblEnter.Visible no
see lblHead ""
see state ViewState 0
