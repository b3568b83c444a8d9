# A search continued from past the last slot changes nothing but the heading.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU
row  director Director        Nobody "Anna Karina" "Banana Split" karina mnuFindDirector
row  star     Star1           Nobody "Anna Karina" "Banana Split" karina mnuFindStar
row  producer Producer        Nobody "Anna Karina" "Banana Split" karina mnuProducer
row  cinema   Cinematographer Nobody "Anna Karina" "Banana Split" karina mnuCinema
row  writer   Written         Nobody "Anna Karina" "Banana Split" karina mnuWriter
row  music    Music           Nobody "Anna Karina" "Banana Split" karina mnuMusic
row  dance    Choreography    Nobody "Anna Karina" "Banana Split" karina mnuDance
row  costume  Costume         Nobody "Anna Karina" "Banana Split" karina mnuCostume
row  awards   Awards          Nobody "Anna Karina" "Banana Split" karina mnuAwards
row  mpaa     Rating          R      PG            PG-13          pg     mnuMPAA
row  sound    Sound           Nobody "Anna Karina" "Banana Split" karina mnuSound

each SEARCH   TITLE                           PROMPT                                      ANSWER MATCH
row  director "Search For Director"           "Enter Director. To Search: "               karin  Director
row  star     "Search For Star"               "Enter Star To Search: "                    karin  Star
row  producer "Search For Producer"           "Enter Producer To Search: "                karin  Producer
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin  Cinema
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin  Writer
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin  Music
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin  Dance
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin  Costume
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin  Awards
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg     MPAA
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin  Sound

each SEARCH   HEADING
row  director "    Viewing Files by Director"
row  star     "    Viewing Files by Stars"
row  producer "    Viewing Files by Producers"
row  cinema   "    Viewing Files by Cinematographers"
row  writer   "    Viewing Files by Writer"
row  music    "    Viewing Files by Music Composer"
row  dance    "    Viewing Files by Choreograher"
row  costume  "    Viewing Files by Costume Designer "
row  awards   "    Viewing Files by Awards and Nominations"
row  mpaa     "    Viewing Files by MPAA Or TV Ratings"
row  sound    "    Viewing Files by Sound"

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "{MATCH}"
click cmdMatch
see lblHead "{HEADING}"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "{MATCH}"
