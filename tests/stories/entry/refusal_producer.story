# In view the producer refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtProducer
box warning "Producer" "Hit edit to change." OK
see focus cmdSave
see txtProducer.Alignment centre
