# A genre chosen by mouse shows its name and is stored.
each GENRE ITEM                    SHOWN SHOWN2
row  aa    "AA = Action Adventure" AA    "Action Adventure"
row  ad    "AD = Adult"            AD    Adult
row  an    "AN = Animation"        AN    Animation
row  ch    "CH = Children"         CH    Children
row  cl    "CL = Classic"          CL    Classic
row  co    "CO = Comedy"           CO    Comedy
row  do    "DO = Documentary"      DO    Documentary
row  dr    "DR = Drama"            DR    Drama
row  fa    "FA = Fantasy"          FA    Fantasy
row  fm    "FM = Family"           FM    Family
row  fo    "FO = Foreign"          FO    Foreign
row  ho    "HO = Horror"           HO    Horror
row  in    "IN = Instructional"    IN    Instructional
row  ms    "MS = Mystery Suspense" MS    "Mystery Suspense"
row  mu    "MU = Musical"          MU    Musicals
row  my    "MY = Mystery"          MY    Mystery
row  na    "NA = Nature"           NA    Nature
row  sf    "SF = Science Fiction"  SF    "Science Fiction"
row  si    "SI = Special Interest" SI    "Special Interest"
row  we    "WE = Western"          WE    Western

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "{ITEM}"
see txtGenre "{SHOWN}"
see txtGenreList "{SHOWN2}"
click cmdSave
see film 3 Genre "{SHOWN}"
