# In a view at a key without 49 the program ends by the close box.
film 1 Title="Alien"
sorted
start
click mnuByTitle
close
end
