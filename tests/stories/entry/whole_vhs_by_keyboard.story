# A whole VHS film is written by keyboard alone into a new collection and is there after a restart.
start
key Alt+W
see focus txtTitle
type "The Third Man"
key Tab
see focus txtDirector
type "Carol Reed"
key Tab
see focus txtStar1(0)
type "Joseph Cotten"
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
type "Paul Hörbiger"
key Tab
see focus txtLabel
type "Criterion"
key Tab
see focus List3
key Down
key Down
key Enter
see focus txtNumReel
type "1"
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
key Enter
see txtGenre "MS"
see focus txtTime
type "104"
key Tab
see focus txtYear
type "1949"
key Tab
see focus txtCassNo
type "A-117"
key Tab
see focus List4
key Down
key Down
key Enter
see focus List6
key Down
key Enter
see focus txtProducer
see lblPage "PAGE 2"
type "Carol Reed"
key Tab
see focus txtCinematographer
type "Robert Krasker"
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
type "19.95"
key Tab
see focus txtRatings
type "Five stars"
see length Recpra.Dat 0
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
see file Recpra.Dat "Third Man, The                          Carol Reed                    Joseph "
+ "Cotten                 Alida Valli                   Orson Welles                  Trevor Howard                 "
+ "Bernard Lee                   Paul Hörbiger                 Criterion      V1MS1041949A-117T   B & W Carol "
+ "Reed                    Robert Krasker                Graham Greene                                     Anton "
+ "Karas                   none                          Vincent Korda                 Ivy Baker                     "
+ "Mono           Academy Award: Cinematography                               NR   Slip case      11-02-9819.95   "
+ "Five stars     \r\n"
see missing Last
restart
see txtTitle "Third Man, The"
see txtFormat "VHS"
see txtCassNo "A-117"
