# New and Delete set theirs before they do anything.
film 1 Title="Solaris"
start
click cmdNew
see frmPage1.HelpContext 1
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" No
