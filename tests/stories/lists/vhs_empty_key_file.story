# VHS list of an empty key file: before any key was read the blank key buffer is passed over, and with it the end.
film 1 Title="Film 01" Genre="DR"
count VHSpra 1
file VHSpra.Dat ""
start
click mnuAllVHS
beep
stop "Bad record number"
