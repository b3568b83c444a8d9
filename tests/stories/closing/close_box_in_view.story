# In view the close box ends the program with no question.
film 1 Title="Alien"
start
close
end
