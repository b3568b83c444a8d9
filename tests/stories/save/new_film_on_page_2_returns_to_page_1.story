# Save on page 2 of a new film stores it and puts page 1 back.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Casablanca"
click txtColor1
key Enter
type "Hal B. Wallis"
click cmdSave
see film 3 Title "Casablanca"
see film 3 Producer "Hal B. Wallis"
see lblPage "PAGE 1"
see state PageFlag 0
see txtProducer.Visible no
see txtTitle.Visible yes
see lblSorting ""
see lblSorting.Visible no
see optnoteson.Value yes
