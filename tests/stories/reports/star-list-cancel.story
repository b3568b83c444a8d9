# An empty answer leaves the headline and the page number, and no kind of view.
film 1 Title="Vertigo" Director="Alfred Hitchcock" Star1="James Stewart" Star2="Kim Novak" Format="D" Genre="MS" Year="1958"
film 2 Title="Solaris" Director="Andrei Tarkovsky" Star1="Natalya Bondarchuk" Format="V" Genre="SF" Year="1972"
film 3 Title="Rear Window" Director="Alfred Hitchcock" Star1="Grace Kelly" Star4="James Stewart" Format="L" Genre="MS" Year="1954"
film 4 Title="Zulu" Director="Cy Endfield" Star1="Stanley Baker" Star2="Michael Caine" Format="V" Genre="AA" Year="1964"
film 5 Title="Bambi" Director="David Hand" Format="D" Genre="AN" Year="1942"
sorted
clock 2026-11-21 09:05:07
start
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " cancel
see lblHead "Star Search Print Program"
see state PrintPending 1
see state ViewKind ""
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " ""
see state PrintPending 1
