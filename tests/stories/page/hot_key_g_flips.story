# Alt G selects the page that is not up; the focus stays where it may.
film 1 Title="Alien"
start
key Alt+G
see lblPage "PAGE 2"
key Alt+G
see lblPage "PAGE 1"
see focus cmdSave
