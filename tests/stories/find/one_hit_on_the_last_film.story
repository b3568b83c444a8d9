# A search whose only hit is the last film shows it; Match then reports the end.
each SEARCH   FIELD           FILM1  FILM2          FILM4         MENU            TITLE
row  director Director        Nobody "Banana Split" "Anna Karina" mnuFindDirector "Search For Director"
row  star     Star1           Nobody "Banana Split" "Anna Karina" mnuFindStar     "Search For Star"
row  producer Producer        Nobody "Banana Split" "Anna Karina" mnuProducer     "Search For Producer"
row  cinema   Cinematographer Nobody "Banana Split" "Anna Karina" mnuCinema       "Search For Cinematographer"
row  writer   Written         Nobody "Banana Split" "Anna Karina" mnuWriter       "Search For Writer"
row  music    Music           Nobody "Banana Split" "Anna Karina" mnuMusic        "Search For Music Composer"
row  dance    Choreography    Nobody "Banana Split" "Anna Karina" mnuDance        "Search For Choreographer"
row  costume  Costume         Nobody "Banana Split" "Anna Karina" mnuCostume      "Search For Costume Designer"
row  awards   Awards          Nobody "Banana Split" "Anna Karina" mnuAwards       "Search For Awards"
row  mpaa     Rating          R      PG-13          PG            mnuMPAA         "Search For MPAA or TV Ratings"
row  sound    Sound           Nobody "Banana Split" "Anna Karina" mnuSound        "Search For Sound"

each SEARCH   PROMPT                                      ANSWER
row  director "Enter Director. To Search: "               karin
row  star     "Enter Star To Search: "                    karin
row  producer "Enter Producer To Search: "                karin
row  cinema   "Enter Cinematographer To Search: "         karin
row  writer   "Enter Writer To Search: "                  karin
row  music    "Enter Music Composer To Search: "          karin
row  dance    "Enter Choreographer To Search: "           karin
row  costume  "Enter Costume Designer To Search: "        karin
row  awards   "Enter Awards To Search: "                  karin
row  mpaa     "Enter Ratings To Search: "                 pg
row  sound    "Enter Sound To Search: \n\rTHX Dolby Etc." karin

each SEARCH   HEADING                                                                      BOXTITLE
row  director " Viewing Files for Director Anna Karina                   "                 "DIRECTOR SEARCH"
row  star     "Viewing Files For  Anna Karina                   "                          "STAR  SEARCH"
row  producer " Produced  By Anna Karina                   "                               "PRODUCER SEARCH"
row  cinema   "    Viewing Files by Cinematographers"                                      "CINEMATOGRAPHER SEARCH"
row  writer   " Written by Anna Karina"                                                    "WRITER SEARCH"
row  music    "   Music Composed By Anna Karina                   "                        "MUSIC COMPOSER SEARCH"
row  dance    "Choreography By Anna Karina                   "                             "CHOREOGRAPHER SEARCH"
row  costume  " Viewing For Costume Designer Anna Karina                   "               "COSTUME DESIGNER SEARCH"
row  awards   " Awards/Notes Anna Karina                                                 " "AWARDS SEARCH"
row  mpaa     "MPAA Rating is  PG   "                                                      "MPAA RATINGS SEARCH"
row  sound    "Viewing Sound Recording in Anna Karina"                                     "SOUND RECORDING SEARCH"

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM1}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
see state CurrentRecNo 4
see lblHead "{HEADING}"
click cmdMatch
beep
box warning "{BOXTITLE}" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
