# In Edit the label is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtLabel.Alignment centre
click txtLabel
see focus txtLabel
see txtLabel.Alignment left
