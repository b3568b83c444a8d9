# After a key with "49" in its number EditMode contains a position: the close box asks nothing and saves nothing, and
# the window goes.
film 49 Title="Solaris" Format="D"
sorted
start
click mnuByTitle
see state EditMode 46
close
end
