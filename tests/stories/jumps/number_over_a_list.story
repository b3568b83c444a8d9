# A jump out of a list of twenty leaves the rows up; the list's Next continues from the first key.
films 1 45 Title="Film ##"
sorted
start
click mnuAllTitles
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "7"
see txtTitle "Film 07"
see Text1(0).Visible yes
see state ListState 2
click cmdNext20
see Text1(0) "Film 01"
see Text1(19) "Film 20"
