# A save centres the format again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtFormat
see txtFormat.Alignment left
click mnuSave
see txtFormat.Alignment centre
