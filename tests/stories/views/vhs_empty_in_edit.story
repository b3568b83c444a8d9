# VHS view of an empty key file in Edit: the edit is given up without a question.
film 1 Title="Alien"
count VHSpra 1
file VHSpra.Dat ""
start
click cmdEdit
click mnuByVHS
box none "" "There are No VHS Tapes in Library or Files need to Be Sorted" OK
see state EditMode 0
see state CurrentRecNo 1
