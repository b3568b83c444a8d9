# In Edit the switch left-aligns the awards at once.
film 1 Title="Alien"
start
see txtAwards.Alignment centre
click cmdEdit
click optnoteson
see txtAwards.Alignment left
