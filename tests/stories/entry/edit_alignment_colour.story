# In Edit the colour is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtColor1.Alignment centre
click txtColor1
see focus List6
see txtColor1.Alignment centre
