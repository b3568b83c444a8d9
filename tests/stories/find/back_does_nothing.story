# In a search Back only sets its help topic until the reset; Next continues by number.
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

each SEARCH   TITLE                           PROMPT                                      ANSWER
row  director "Search For Director"           "Enter Director. To Search: "               karin
row  star     "Search For Star"               "Enter Star To Search: "                    karin
row  producer "Search For Producer"           "Enter Producer To Search: "                karin
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin
row  art      "Search Art Director"           "Enter Art Director To Search: "            karin
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click cmdPrevious
see state CurrentRecNo 2
see frmPage1.HelpContext 260
click cmdNext
see state CurrentRecNo 3
see txtTitle "Film 3"
click cmdReset
click cmdNext
see state CurrentRecNo 2
click cmdPrevious
see state CurrentRecNo 1
