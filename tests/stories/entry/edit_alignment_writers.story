# In Edit the writers is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtWritten.Alignment centre
click txtWritten
see focus txtWritten
see txtWritten.Alignment left
