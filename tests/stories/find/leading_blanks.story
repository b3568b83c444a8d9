# Leading blanks of the answer are part of the sought text: a field that begins with the word is passed over.
each SEARCH   FIELD           MENU            TITLE                         PROMPT
row  director Director        mnuFindDirector "Search For Director"         "Enter Director. To Search: "
row  star     Star1           mnuFindStar     "Search For Star"             "Enter Star To Search: "
row  producer Producer        mnuProducer     "Search For Producer"         "Enter Producer To Search: "
row  cinema   Cinematographer mnuCinema       "Search For Cinematographer"  "Enter Cinematographer To Search: "
row  writer   Written         mnuWriter       "Search For Writer"           "Enter Writer To Search: "
row  music    Music           mnuMusic        "Search For Music Composer"   "Enter Music Composer To Search: "
row  art      SetDirection    mnuArt          "Search Art Director"         "Enter Art Director To Search: "
row  dance    Choreography    mnuDance        "Search For Choreographer"    "Enter Choreographer To Search: "
row  costume  Costume         mnuCostume      "Search For Costume Designer" "Enter Costume Designer To Search: "
row  awards   Awards          mnuAwards       "Search For Awards"           "Enter Awards To Search: "
row  sound    Sound           mnuSound        "Search For Sound"            "Enter Sound To Search: \n\rTHX Dolby Etc."

each SEARCH   STATE
row  director DirectorQuery
row  star     StarQuery
row  producer ProducerQuery
row  cinema   CinemaQuery
row  writer   WriterQuery
row  music    MusicQuery
row  art      ArtQuery
row  dance    DanceQuery
row  costume  CostumeQuery
row  awards   AwardsQuery
row  sound    SoundQuery

film 1 Title="Film 1" {FIELD}="Nobody"
film 2 Title="Film 2" {FIELD}="karina"
film 3 Title="Film 3" {FIELD}="Anna Karina"
film 4 Title="Film 4" {FIELD}="Nobody"
start
click {MENU}
input "{TITLE}" "{PROMPT}" " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state {STATE} " KARIN"
