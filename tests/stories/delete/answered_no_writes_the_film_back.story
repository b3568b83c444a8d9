# Delete answered No writes the film back and says that it was saved.
film 1 Title="Alien" Director="Ridley Scott" Format="L" CLV1="CAV" Tail="xx"
film 2 Title="Brazil"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" No
see file Recpra.Dat "Alien                                   Ridley Scott                                            "
+ "                                                                                                                  "
+ "                                                       L                "
+ "CAV                                                                                                               "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                       \r\nBrazil                                                                                 "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                        \r\n"
see lblSave.Visible yes
see lblSave "    Your Work Has Been Saved!"
see txtTitle "Alien"
see txtCLV1 "CAV"
see state EditMode 0
see cmdNext.Enabled yes
see cmdPrevious.Enabled yes
see cmdDelete.Enabled yes
see lblHead.Visible yes
see lblSorting.Visible no
