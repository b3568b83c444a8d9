# New takes the first slot without a title and remembers that it was blank.
film 1 Title="Vertigo" Format="D"
film 2 Title=""
film 3 Title="Zulu" Format="V"
start
see state BlankTitleProbe 0
click cmdNew
see state BlankTitleProbe 1
see state ScanRecNo 2
see state CurrentRecNo 2
