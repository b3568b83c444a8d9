# A search never hits a free slot, not even for a blank.
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

film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" {FIELD}="Anna Karina"
start
click {MENU}
input "{TITLE}" "{PROMPT}" " "
see state CurrentRecNo 3
