# In Edit the title is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtTitle.Alignment centre
click txtTitle
see focus txtTitle
see txtTitle.Alignment left
