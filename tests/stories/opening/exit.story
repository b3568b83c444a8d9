# Exit ends the program.
start opener
click cmdExit
end
