# Every genre chosen with the arrow keys shows its name and is stored.
each CODE  DOWNS NAME
row  AA    0     "Action Adventure"
row  AD    1     "Adult"
row  AN    2     "Animation"
row  CH    3     "Children"
row  CL    4     "Classic"
row  CO    5     "Comedy"
row  DO    6     "Documentary"
row  DR    7     "Drama"
row  FA    8     "Fantasy"
row  FM    9     "Family"
row  FO    10    "Foreign"
row  HO    11    "Horror"
row  IN    12    "Instructional"
row  MS    13    "Mystery Suspense"
row  MU    14    "Musicals"
row  MY    15    "Mystery"
row  NA    16    "Nature"
row  SF    17    "Science Fiction"
row  SI    18    "Special Interest"
row  WE    19    "Western"

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
key Alt+W
click txtGenre
key Down {DOWNS}
key Enter
see txtGenre "{CODE}"
see txtGenreList "{NAME}"
see focus txtTime
key Alt+S
see film 3 Genre "{CODE}"
