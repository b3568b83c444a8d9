# Without the help file the way to the viewer is the same; the viewer says what is missing.
remove Reelora4.HLP
film 1 Title="Solaris"
start
click mnuHelp
help contents
see txtTitle "Solaris"
