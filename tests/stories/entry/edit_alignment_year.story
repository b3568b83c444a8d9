# In Edit the year is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtYear.Alignment centre
click txtYear
see focus txtYear
see txtYear.Alignment left
