# In Edit the format is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtFormat.Alignment centre
click txtFormat
see focus List3
see txtFormat.Alignment left
