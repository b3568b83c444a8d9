# A search in an empty collection reads the slot behind its only one and finds nothing.
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "thx"
beep
box warning "SOUND RECORDING SEARCH" "The search for \"THX\" was not found. " OK
