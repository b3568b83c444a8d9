# A key that begins with "49" leaves EditMode at 1: the close box takes the viewed film for open work.
film 1 Title="Zulu" Format="D"
film 2 Title="49th Parallel" Format="D"
sorted
start
click mnuByTitle
see txtTitle "49th Parallel"
see state EditMode 1
close
box question "Reelora Prima" "You have not saved your work. To save your work hit Yes, else hit No and quit" Yes
end
see film 2 Title "49th Parallel"
see state RecordCount 2
