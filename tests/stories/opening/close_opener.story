# The close box of the opening window ends the program.
start opener
close
end
