# Laser view: a report refused in its middle has closed its file; Next opens it again and goes on.
films 1 4 Title="Film #" Format="L"
sorted
start
click mnuByLaser
click cmdNext
click mnuLaser
box question ANY ANY No
see state KeyFilePos 2
see state ViewKind "Laser"
click cmdNext
see txtTitle "Film 3"
see state KeyFilePos 3
