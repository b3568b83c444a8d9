# The buttons of the opening window have their letters, Start the focus.
start opener
see focus cmdStart
key Tab
see focus cmdExit
key Alt+X
end
