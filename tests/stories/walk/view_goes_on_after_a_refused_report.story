# A report refused in the middle of a view has closed its file; Next opens it again and continues.
each VIEW  FORMAT KIND
row  laser L      Laser
row  vhs   V      VHS

films 1 4 Title="Film #" Format="{FORMAT}"
sorted
start
click mnuBy{KIND}
click cmdNext
click mnu{KIND}
box question ANY ANY No
see state KeyFilePos 2
see state ViewKind "{KIND}"
click cmdNext
see txtTitle "Film 3"
see state KeyFilePos 3
