# Match on an art director search asks for a new text and starts from record 1; the hits go on counting.
film 1 Title="Film 1" SetDirection="Aa"
film 2 Title="Film 2" SetDirection="Aa"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "aa"
see state CurrentRecNo 1
click cmdMatch
input "Search Art Director" "Enter Art Director To Search: " "aa"
see state CurrentRecNo 1
see state RowCursor 2
see state ResumeArt 0
see state ArtMatchMark 1
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "zz"
beep
box warning "ART DIRECTION SEARCH" "End of file!" OK
see state ArtMatchMark 1
