# A view without keys has left a position after the first and nothing read: the list continues from there and stops
# at record 0.
film 1 Title="Solaris" Format="D"
count Titlepra 1
start
click mnuByTitle
see state KeyFilePos 1
click cmdNext
see state KeyFilePos 2
click mnuShort
box question ANY ANY Yes
stop "Bad record number"
