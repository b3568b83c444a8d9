# What a sort leaves open as file 2 disturbs nothing.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click mnuSort
beep
beep
beep
beep
click mnuByVHS
see state ViewKind "VHS"
see txtTitle "Brazil"
