# In a view at a key with 49 in its middle the close box asks nothing and saves nothing.
film 1 Title="Room 49" Format="D"
sorted
start
click mnuByTitle
see state EditMode 6
close
end
see film 1 Title "Room 49"
