# In view the refusal on the way in ends the click on the colour before it counts.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click txtColor1
box warning "Color/B&W" "Hit edit to change." OK
see state ClearOnShow 0
