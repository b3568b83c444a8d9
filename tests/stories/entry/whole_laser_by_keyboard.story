# A whole Laser film is written by keyboard alone behind six others and is there after a restart.
film 1 Title="Film 1" Director="Nobody" Format="V" Genre="DR"
film 2 Title="Film 2" Director="Nobody" Format="V" Genre="DR"
film 3 Title="Film 3" Director="Nobody" Format="V" Genre="DR"
film 4 Title="Film 4" Director="Nobody" Format="V" Genre="DR"
film 5 Title="Film 5" Director="Nobody" Format="V" Genre="DR"
film 6 Title="Film 6" Director="Nobody" Format="V" Genre="DR"
start
key Alt+W
see focus txtTitle
type "A Star Is Born"
key Tab
see focus txtDirector
type "George Cukor"
key Tab
see focus txtStar1(0)
type "Judy Garland"
key Tab
see focus txtStar2(1)
type "Alida Valli"
key Tab
see focus txtStar3(1)
type "Orson Welles"
key Tab
see focus txtStar4(1)
type "Trevor Howard"
key Tab
see focus txtStar5(1)
type "Bernard Lee"
key Tab
see focus txtStar6(1)
type "Lucy Marlow"
key Tab
see focus txtLabel
type "Warner"
key Tab
see focus List3
key Down
key Enter
see focus txtNumReel
type "2"
key Tab
see focus List1
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Enter
see txtGenre "MU"
see focus txtTime
type "176"
key Tab
see focus txtYear
type "1954"
key Tab
see focus List4
key Enter
see focus List5
key Down
key Enter
see focus List6
key Enter
see focus txtProducer
see lblPage "PAGE 2"
type "Carol Reed"
key Tab
see focus txtCinematographer
type "Sam Leavitt"
key Tab
see focus txtWritten
type "Graham Greene"
key Tab
see focus txtMusic
type "Anton Karas"
key Tab
see focus txtChoreography
type "none"
key Tab
see focus txtSetDirection
type "Vincent Korda"
key Tab
see focus txtCostume
type "Ivy Baker"
key Tab
see focus txtSound
type "Mono"
key Tab
see focus List2
key Down
key Enter
see focus txtPackage
type "Slip case"
key Tab
see focus txtAwards
type "Academy Award: Cinematography"
key Tab
see focus txtPurchase
type "11-02-98"
key Tab
see focus txtCost
type "69.98"
key Tab
see focus txtRatings
type "Five stars"
see length Recpra.Dat 3894
key Tab
see state SortStarted 1
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
see focus optnoteson
see state NewMode 1
key Alt+S
see focus cmdSave
see lblPage "PAGE 1"
see state NewMode 0
see file Recpra.Dat "Film 1                                  Nobody                                                  "
+ "                                                                                                                  "
+ "                                                       V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nFilm 2                                  "
+ "Nobody                                                                                                            "
+ "                                                                                                               V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nFilm 3                                  "
+ "Nobody                                                                                                            "
+ "                                                                                                               V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nFilm 4                                  "
+ "Nobody                                                                                                            "
+ "                                                                                                               V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nFilm 5                                  "
+ "Nobody                                                                                                            "
+ "                                                                                                               V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nFilm 6                                  "
+ "Nobody                                                                                                            "
+ "                                                                                                               V "
+ "DR                                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                      \r\nStar Is Born, A                         George Cukor                  "
+ "Judy Garland                  Alida Valli                   Orson Welles                  Trevor "
+ "Howard                 Bernard Lee                   Lucy Marlow                   Warner         L2MU1761954     "
+ "WCAVColor Carol Reed                    Sam Leavitt                   Graham "
+ "Greene                                     Anton Karas                   none                          Vincent "
+ "Korda                 Ivy Baker                     Mono           Academy Award: "
+ "Cinematography                               PG   Slip case      11-02-9869.98   Five stars     \r\n"
restart
see state RecordCount 7
click mnuLast
see txtTitle "Star Is Born, A"
see txtFormat "Laser"
see txtCLV1 "CAV"
