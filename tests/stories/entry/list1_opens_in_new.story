# In a new film the genre opens its list, in the order of its rows, and the first row is the default.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
see focus List1
see List1.Visible yes
see List1.Items "AA = Action Adventure" "AD = Adult" "AN = Animation" "CH = Children" "CL = Classic" "CO = Comedy" "D"
+ "O = Documentary" "DR = Drama" "FA = Fantasy" "FM = Family" "FO = Foreign" "HO = Horror" "IN = Instructional" "MS "
+ "= Mystery Suspense" "MU = Musical" "MY = Mystery" "NA = Nature" "SF = Science Fiction" "SI = Special Interest" "WE"
+ " = Western"
see List1.ListIndex 0
see txtGenre "AA"
see txtGenreList "Action Adventure"
see lblSelect.Visible yes
see lblSelect "Arrow or click down for selection.  Click or press <Enter> to make selection. "
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."
see txtCLV1.Visible no
see txtStar6(1).Visible no
see txtColor1.Visible no
see txtLetter.Visible no
