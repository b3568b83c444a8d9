# In Edit the choreography is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtChoreography.Alignment centre
click txtChoreography
see focus txtChoreography
see txtChoreography.Alignment left
