# In a view whose step left EditMode at neither 0 nor 1 no field refuses, aligns itself or opens a list, on page 2
# neither.
film 1 Title="Area 51" Format="V" Genre="SF"
film 2 Title="Plan 49" Format="L" Genre="DR"
sorted
start
click mnuByTitle
click cmdNext
see state EditMode 6
click txtDirector
see focus txtDirector
see txtDirector.Alignment centre
click txtLabel
see txtLabel.Alignment centre
click optnoteson
see focus optnoteson
see lblPage "PAGE 2"
see txtAwards.Alignment centre
click txtMusic
see focus txtMusic
see txtMusic.Alignment centre
click txtRating
see focus txtRating
see List2.Visible no
