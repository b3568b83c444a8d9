# A search that finds nothing after a hit and a reset: what it says, as the hit is still counted.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU
row  director Director        Nobody "Anna Karina" "Banana Split" karina mnuFindDirector
row  star     Star1           Nobody "Anna Karina" "Banana Split" karina mnuFindStar
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

each SEARCH   TITLE                           PROMPT                                      ANSWER STATE         QUERY
row  director "Search For Director"           "Enter Director. To Search: "               karin  DirectorQuery KARIN
row  star     "Search For Star"               "Enter Star To Search: "                    karin  StarQuery     KARIN
row  producer "Search For Producer"           "Enter Producer To Search: "                karin  ProducerQuery KARIN
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin  CinemaQuery   KARIN
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin  WriterQuery   KARIN
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin  MusicQuery    KARIN
row  art      "Search Art Director"           "Enter Art Director To Search: "            karin  ArtQuery      KARIN
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin  DanceQuery    KARIN
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin  CostumeQuery  KARIN
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin  AwardsQuery   KARIN
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg     MPAAQuery     PG
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin  SoundQuery    KARIN

each SEARCH   BOXTITLE                  TEXT                                    ROWCURSOR
row  director "DIRECTOR SEARCH"         "End of file!"                          1
row  star     "STAR 1 SEARCH"           "The search for \"xyz\" was not found." 0
row  producer "PRODUCER SEARCH"         "End of file!"                          1
row  cinema   "CINEMATOGRAPHER SEARCH"  "End of file!"                          1
row  writer   "WRITER SEARCH"           "End of file!"                          1
row  music    "MUSIC COMPOSER SEARCH"   "End of file!"                          1
row  art      "ART DIRECTION SEARCH"    "End of file!"                          1
row  dance    "CHOREOGRAPHER SEARCH"    "End of file!"                          1
row  costume  "COSTUME DESIGNER SEARCH" "End of file!"                          1
row  awards   "AWARDS SEARCH"           "End of file!"                          1
row  mpaa     "MPAA RATINGS SEARCH"     "End of file!"                          1
row  sound    "SOUND RECORDING SEARCH"  "End of file!"                          1

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click cmdReset
see state RowCursor 1
see state {STATE} "{QUERY}"
click {MENU}
input "{TITLE}" "{PROMPT}" "xyz"
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state RowCursor {ROWCURSOR}
