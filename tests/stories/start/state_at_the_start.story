# The program starts with no list, no search and no view.
start
see state ListState 0
see state SearchState 0
see state FindPending 0
see state ViewState 1
see state ViewKind ""
see state EditMode 0
see state NewMode 0
see state RowCursor 0
see state PageMode 0
