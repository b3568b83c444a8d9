# Title list of an empty key file: before any key was read the blank key buffer is passed over, and with it the end.
film 1 Title="Film 01" Genre="DR"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuAllTitles
beep
stop "Bad record number"
