# Cancel in the question of an art director's Match resets the screen.
film 1 Title="Film 1" SetDirection="Aa"
film 2 Title="Film 2" SetDirection="Bb"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "bb"
click cmdMatch
input "Search Art Director" "Enter Art Director To Search: " cancel
see state CurrentRecNo 1
see state MatchKind ""
