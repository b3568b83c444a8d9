# In Edit the awards are left-aligned by the focus as well.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click mnuSave
click cmdEdit
see txtAwards.Alignment centre
click txtPackage
key Tab
see focus txtAwards
see txtAwards.Alignment left
