# Until it comes up the record screen has the caption of its form and nothing in it.
start opener
see frmPage1 "Form1"
see frmPage1.Visible no
see lblHead ""
see lblsorted ""
see lblSorting ""
see lblNotes1 ""
see lblPage ""
see lblNumrec "Numrec"
see lblRetcode "Retcode"
see state ViewState 0
click cmdStart
see state ViewState 1
