# Producer search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="karina"
film 3 Title="Film 3" Producer="Anna Karina"
film 4 Title="Film 4" Producer="Nobody"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state ProducerQuery " KARIN"
