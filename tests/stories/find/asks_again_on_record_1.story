# A search chosen again after its end asks: on record 1 it does not continue; with its flag set the hits start from
# 0.
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

each SEARCH   TITLE                           PROMPT                                      ANSWER
row  director "Search For Director"           "Enter Director. To Search: "               karin
row  star     "Search For Star"               "Enter Star To Search: "                    karin
row  producer "Search For Producer"           "Enter Producer To Search: "                karin
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin

each SEARCH   BOXTITLE                  STATE          BOXTITLE2
row  director "DIRECTOR SEARCH"         ResumeDirector "DIRECTOR SEARCH"
row  star     "STAR  SEARCH"            ResumeStar     "STAR 1 SEARCH"
row  producer "PRODUCER SEARCH"         ResumeProducer "PRODUCER SEARCH"
row  cinema   "CINEMATOGRAPHER SEARCH"  ResumeCinema   "CINEMATOGRAPHER SEARCH"
row  writer   "WRITER SEARCH"           ResumeWriter   "WRITER SEARCH"
row  music    "MUSIC COMPOSER SEARCH"   ResumeMusic    "MUSIC COMPOSER SEARCH"
row  dance    "CHOREOGRAPHER SEARCH"    ResumeDance    "CHOREOGRAPHER SEARCH"
row  costume  "COSTUME DESIGNER SEARCH" ResumeCostume  "CHOREOGRAPHER SEARCH"
row  awards   "AWARDS SEARCH"           ResumeAwards   "AWARDS SEARCH"
row  mpaa     "MPAA RATINGS SEARCH"     ResumeMPAA     "MPAA RATINGS SEARCH"
row  sound    "SOUND RECORDING SEARCH"  ResumeSound    "SOUND RECORDING SEARCH"

each SEARCH   TEXT
row  director "The search for \"XYZ\" was not found. "
row  star     "The search for \"xyz\" was not found."
row  producer "The search for \"XYZ\" was not found. "
row  cinema   "The search for \"XYZ\" was not found. "
row  writer   "The search for \"XYZ\" was not found. "
row  music    "The search for \"XYZ\" was not found. "
row  dance    "The search for \"XYZ\" was not found. "
row  costume  "The search for \"XYZ\" was not found. "
row  awards   "The search for \"XYZ\" was not found. "
row  mpaa     "The search for \"XYZ\" was not found. "
row  sound    "The search for \"XYZ\" was not found. "

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click cmdMatch
click cmdMatch
beep
box warning "{BOXTITLE}" "End of file!" OK
see state {STATE} 1
see state RowCursor 2
click {MENU}
input "{TITLE}" "{PROMPT}" "xyz"
beep
box warning "{BOXTITLE2}" "{TEXT}" OK
see state RowCursor 0
see state {STATE} 1
