# In Edit the aspect is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtLetter.Alignment centre
click txtLetter
see focus List4
see txtLetter.Alignment centre
