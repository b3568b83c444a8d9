# Setup Printer opens the dialog and nothing else.
film 1 Title="Alpha" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuPrint2
printer-setup
see state PrintPending 0
see txtTitle "Alpha"
