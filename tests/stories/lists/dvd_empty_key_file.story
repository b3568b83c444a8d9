# DVD list of an empty key file: before any key was read the blank key buffer is passed over, and with it the end.
film 1 Title="Film 01" Genre="DR"
count DVDpra 1
file DVDpra.Dat ""
start
click mnualldvd
beep
stop "Bad record number"
