# In Edit the packaging is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtPackage.Alignment centre
click txtPackage
see focus txtPackage
see txtPackage.Alignment centre
