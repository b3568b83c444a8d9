# Sound search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="karina"
film 3 Title="Film 3" Sound="Anna Karina"
film 4 Title="Film 4" Sound="Nobody"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state SoundQuery " KARIN"
