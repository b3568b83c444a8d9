# A click on the awards that have the focus already aligns nothing in view.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtAwards
click mnuSave
see txtAwards.Alignment centre
click txtAwards
see focus txtAwards
see txtAwards.Alignment centre
