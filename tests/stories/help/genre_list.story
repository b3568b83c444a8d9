# The list of genres keeps the topic of its field.
film 1 Title="Solaris"
start
click cmdNew
click txtGenre
see focus List1
key F1
help 11
