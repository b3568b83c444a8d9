# After a key with "49" in it EditMode holds a position: the close box asks nothing and saves nothing, and the window goes.
films 1 49 Title="Film ##" Format="D"
sorted
start
click mnuByTitle
see state EditMode 0
close
end
