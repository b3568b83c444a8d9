# Art search: ignores case, accented letters included.
film 1 Title="Film 1" SetDirection="nobody"
film 2 Title="Film 2" SetDirection="pere"
film 3 Title="Film 3" SetDirection="père"
film 4 Title="Film 4" SetDirection="PÈRE"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
input "Search Art Director" "Enter Art Director To Search: " "pÈR"
see state CurrentRecNo 3
see state RowCursor 2
