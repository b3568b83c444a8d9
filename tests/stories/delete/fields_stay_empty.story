# After Yes every field is empty, the message stays, and Next, Back and the views stay disabled.
film 1 Title="Alien" Director="Ridley Scott" Star1="A" Star2="B" Star3="C" Star4="D" Star5="E" Star6="F" Label="L"
+ NumReel="2" Genre="SF" Time="117" Year="1979" CassNo="7" Letter="T" CLV1="CAV" Color1="B & W" Producer="P"
+ Cinematographer="Q" Written="R" Music="S" Choreography="T" SetDirection="U" Costume="V" Sound="W" Awards="X"
+ Rating="NC-17" Package="Y" Purchase="Z" Cost="1" Ratings="2" Format="L"
film 2 Title="Brazil"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see txtTitle ""
see txtDirector ""
see txtStar1(0) ""
see txtStar2(1) ""
see txtStar3(1) ""
see txtStar4(1) ""
see txtStar5(1) ""
see txtStar6(1) ""
see txtLabel ""
see txtFormat ""
see txtNumReel ""
see txtGenre ""
see txtGenreList ""
see txtTime ""
see txtYear ""
see txtCassNo ""
see txtLetter ""
see txtColor1 ""
see txtProducer ""
see txtCinematographer ""
see txtWritten ""
see txtMusic ""
see txtChoreography ""
see txtSetDirection ""
see txtCostume ""
see txtSound ""
see txtRating ""
see txtAwards ""
see txtPackage ""
see txtPurchase ""
see txtCost ""
see txtRatings ""
see lblSorting "               This Record Has Been Deleted!                         To Write a New Record Click The "
+ "New Button or Alt W "
see lblSorting.Visible yes
see lblHead.Visible no
see lblSave.Visible no
see cmdNext.Enabled no
see cmdPrevious.Enabled no
see cmdDelete.Enabled no
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see state ScanRecNo 1
see state CurrentRecNo 1
see state RecordCount 2
