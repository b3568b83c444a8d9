# What the producer of a new film says with Auto Save YES and Auto Sort NO.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
file AutoSort "NO\r\n"
start
click cmdNew
click txtColor1
see lblSorting.Visible no
key Enter
see focus txtProducer
see lblSorting.Visible yes
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up automatically."
see lblSorting.FontSize 9.75
