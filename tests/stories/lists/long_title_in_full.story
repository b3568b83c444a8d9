# A title of forty characters is in its row in full.
film 1 Title="Dr. Strangelove or How I Learned to Stop"
films 2 20 Title="Film ##"
sorted
start
click mnuAllTitles
see Text1(0) "Dr. Strangelove or How I Learned to Stop"
