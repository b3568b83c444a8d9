# The features screen: its texts, its colours and what the Tab key reaches.
file Fo "YES\r\n"
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see frmInfo "Reelora Prima ver 4.0  Features Screen"
see Image1.Visible yes
see Image2.Visible yes
see frmInfo.BackColor 4857360
see lblInfo "What Reelora Prima does for you"
see lblInfo.ForeColor 5104127
see lblInfo.FontSize 20
see lblRecord "One record for every film"
see lblRecord.ForeColor 5104127
see lblRecord.FontSize 11
see lblRecord2 "Title, director, six stars, genre and format on page 1. Credits, awards, price and your own rating on "
+ "page 2."
see lblRecord2.ForeColor 15788260
see lblRecord2.FontSize 10
see lblFormats "Tape, laser disc, DVD"
see lblFormats.ForeColor 5104127
see lblFormats.FontSize 11
see lblFormats2 "All of them in one collection, or each by itself, in the order of the alphabet."
see lblFormats2.ForeColor 15788260
see lblFormats2.FontSize 10
see lblFind "Found in a moment"
see lblFind.ForeColor 5104127
see lblFind.FontSize 11
see lblFind2 "Look for a star, a composer, an award: thirteen ways to find a film, and Match for the next one."
see lblFind2.ForeColor 15788260
see lblFind2.FontSize 10
see lblLists "Twenty at a glance, or on paper"
see lblLists.ForeColor 5104127
see lblLists.FontSize 11
see lblLists2 "Page through the collection twenty titles at a time, or print one of eight kinds of list."
see lblLists2.ForeColor 15788260
see lblLists2.FontSize 10
see lblOwn "Yours to arrange, and safe"
see lblOwn.ForeColor 5104127
see lblOwn.FontSize 11
see lblOwn2 "Your own colors, saving by itself, copies on a disk of yours."
see lblOwn2.ForeColor 15788260
see lblOwn2.FontSize 10
see lblInfo.BackColor 4857360
see lblRecord.BackColor 4857360
see lblRecord2.BackColor 4857360
see option1 "To  eliminate viewing this s&creen click option  or press Alt \"C\""
see option1.ForeColor 5104127
see option1.BackColor 4857360
see option1.FontSize 10
see Command1 "Con&tinue"
see Command1.ForeColor 0
see Command1.BackColor 12632256
see Command1.FontSize 11
see frmInfo.HelpContext 0
see focus Command1
key Tab
see focus Command1
