# No field checks what is typed; the save cuts to the widths.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Film"
click txtTime
type "long"
click txtYear
type "about 1950"
click cmdSave
see film 3 Time "lon"
see film 3 Year "abou"
