# The heading shows the name of each genre; the code may be typed in small letters.
each CODE GENRE HEADING
row  aa   AA    "Action Adventure"
row  ad   AD    Adult
row  an   AN    Animation
row  ch   CH    Children
row  cl   CL    Classic
row  co   CO    Comedy
row  do   DO    Documentary
row  dr   DR    Drama
row  fa   FA    Fantasy
row  fm   FM    Family
row  fo   FO    Foreign
row  ho   HO    Horror
row  in   IN    Instructional
row  ms   MS    "Mystery Suspense"
row  mu   MU    Musical
row  my   MY    Mystery
row  na   NA    Nature
row  sf   SF    "Science Fiction"
row  si   SI    "Special Interest"
row  we   WE    Western

film 1 Title="Alien" Genre="{GENRE}"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "{CODE}"
see txtTitle "Alien"
see lblHead "Viewing Files For {HEADING}  Alphabetically"
see state GenreFilter "{GENRE}"
