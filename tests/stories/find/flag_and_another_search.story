# A search's flag is cleared by another search.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU        TITLE
row  star     Star1           Nobody "Anna Karina" "Banana Split" karina mnuFindStar "Search For Star"
row  producer Producer        Nobody "Anna Karina" "Banana Split" karina mnuProducer "Search For Producer"
row  cinema   Cinematographer Nobody "Anna Karina" "Banana Split" karina mnuCinema   "Search For Cinematographer"
row  writer   Written         Nobody "Anna Karina" "Banana Split" karina mnuWriter   "Search For Writer"
row  music    Music           Nobody "Anna Karina" "Banana Split" karina mnuMusic    "Search For Music Composer"
row  dance    Choreography    Nobody "Anna Karina" "Banana Split" karina mnuDance    "Search For Choreographer"
row  costume  Costume         Nobody "Anna Karina" "Banana Split" karina mnuCostume  "Search For Costume Designer"
row  awards   Awards          Nobody "Anna Karina" "Banana Split" karina mnuAwards   "Search For Awards"
row  mpaa     Rating          R      PG            PG-13          pg     mnuMPAA     "Search For MPAA or TV Ratings"
row  sound    Sound           Nobody "Anna Karina" "Banana Split" karina mnuSound    "Search For Sound"

each SEARCH   PROMPT                                      ANSWER STATE          MENU2       TITLE2
row  star     "Enter Star To Search: "                    karin  ResumeStar     mnuProducer "Search For Producer"
row  producer "Enter Producer To Search: "                karin  ResumeProducer mnuFindStar "Search For Star"
row  cinema   "Enter Cinematographer To Search: "         karin  ResumeCinema   mnuFindStar "Search For Star"
row  writer   "Enter Writer To Search: "                  karin  ResumeWriter   mnuFindStar "Search For Star"
row  music    "Enter Music Composer To Search: "          karin  ResumeMusic    mnuFindStar "Search For Star"
row  dance    "Enter Choreographer To Search: "           karin  ResumeDance    mnuFindStar "Search For Star"
row  costume  "Enter Costume Designer To Search: "        karin  ResumeCostume  mnuFindStar "Search For Star"
row  awards   "Enter Awards To Search: "                  karin  ResumeAwards   mnuFindStar "Search For Star"
row  mpaa     "Enter Ratings To Search: "                 pg     ResumeMPAA     mnuFindStar "Search For Star"
row  sound    "Enter Sound To Search: \n\rTHX Dolby Etc." karin  ResumeSound    mnuFindStar "Search For Star"

each SEARCH   PROMPT2                      STATE2
row  star     "Enter Producer To Search: " ResumeProducer
row  producer "Enter Star To Search: "     ResumeStar
row  cinema   "Enter Star To Search: "     ResumeStar
row  writer   "Enter Star To Search: "     ResumeStar
row  music    "Enter Star To Search: "     ResumeStar
row  dance    "Enter Star To Search: "     ResumeStar
row  costume  "Enter Star To Search: "     ResumeStar
row  awards   "Enter Star To Search: "     ResumeStar
row  mpaa     "Enter Star To Search: "     ResumeStar
row  sound    "Enter Star To Search: "     ResumeStar

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click cmdMatch
see state {STATE} 1
click {MENU2}
input "{TITLE2}" "{PROMPT2}" ""
see state {STATE} 0
see state {STATE2} 0
