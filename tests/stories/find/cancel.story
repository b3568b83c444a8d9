# Cancel in a search resets the screen without a word and drops the stored text.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU
row  director Director        Nobody "Anna Karina" "Banana Split" karina mnuFindDirector
row  producer Producer        Nobody "Anna Karina" "Banana Split" karina mnuProducer
row  cinema   Cinematographer Nobody "Anna Karina" "Banana Split" karina mnuCinema
row  writer   Written         Nobody "Anna Karina" "Banana Split" karina mnuWriter
row  music    Music           Nobody "Anna Karina" "Banana Split" karina mnuMusic
row  art      SetDirection    Nobody "Anna Karina" "Banana Split" karina mnuArt
row  dance    Choreography    Nobody "Anna Karina" "Banana Split" karina mnuDance
row  costume  Costume         Nobody "Anna Karina" "Banana Split" karina mnuCostume
row  awards   Awards          Nobody "Anna Karina" "Banana Split" karina mnuAwards
row  mpaa     Rating          R      PG            PG-13          pg     mnuMPAA
row  sound    Sound           Nobody "Anna Karina" "Banana Split" karina mnuSound

each SEARCH   TITLE                           PROMPT                                      ANSWER STATE
row  director "Search For Director"           "Enter Director. To Search: "               karin  DirectorQuery
row  producer "Search For Producer"           "Enter Producer To Search: "                karin  ProducerQuery
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin  CinemaQuery
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin  WriterQuery
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin  MusicQuery
row  art      "Search Art Director"           "Enter Art Director To Search: "            karin  ArtQuery
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin  DanceQuery
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin  CostumeQuery
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin  AwardsQuery
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg     MPAAQuery
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin  SoundQuery

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click {MENU}
input "{TITLE}" "{PROMPT}" cancel
see state {STATE} ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchPos 0
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
