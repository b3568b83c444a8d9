# The windows one after the other, as the bus shows them. Arguments: the program, the source folder, the collection.
from bus_help import help_viewer
from bus_session import *
from bus_typing import WORDS, typing


def opening():
    front = window("Reelora Prima version")
    check("the picture has a text", find(front, "image", "Reelora Prima"), [role(one) for one in below(front)])
    until("the focus on Start", lambda: has(find(front, "push button", "Start"), "focused"))
    key("alt+s")
    front = window("Reelora Prima ver 4.0")
    ear.hears("What Reelora Prima does for you. One record for every film.")
    ear.hears("Your own colors, saving by itself, copies on a disk of yours.")
    check("the features can be read line by line", find(front, "label", "Twenty at a glance, or on paper"))
    check("the choice is a radio button", any(role(one) == "radio button" for one in below(front)))
    key("alt+t")
    front = window("Reelora Ver 4.0 Quick Start")
    ear.hears("Press Tab in the last box, Your Rating: your film is saved")
    check("the steps can be read one by one", find(front, "label", 'Click "New", or press Alt W. An empty page 1 opens.'))
    check("a check box", any(role(one) == "check box" for one in below(front)))
    key("Return")


def fields(front, page, other):
    for box, tag in source.pages[page]:
        field = find(front, "text", tag)
        check(f"{box} shows as {tag}", field)
        if not field:
            continue
        same(f"the label of {box}", related(field, LABELLED_BY), [tag])
        check(f"the text of {box} is the record's", text(field).strip() in record[0] or box in CODED, text(field))
    for box, tag in source.pages[other]:
        check(f"{box} does not show", not find(front, "text", tag))


CODED = {"txtFormat": "VHS", "txtGenreList": "Action Adventure", "txtLetter": "Pan & Scan"}


def pages():
    front = window(RECORD_SCREEN)
    ear.hears(f"{title[0]}, {record[0][40:70].strip()}, VHS, record 1 of {len(title)}")
    same("the window is a frame", role(front), "frame")
    fields(front, 0, 1)
    for box, words in CODED.items():
        same(box, text(find(front, "text", dict(source.pages[0])[box])), words)
    same("the buttons in their order", names(front, "push button"), "Reset New Sort Delete Save Edit Match Back Next".split())
    check("what the status boxes say cannot be typed", has(find(front, "text", "Auto Save"), "read_only"))
    same("PAGE 1 is on", has(find(front, "radio button", "PAGE 1"), "checked"), True)
    same("PAGE 2 is off", has(find(front, "radio button", "PAGE 2"), "checked"), False)
    ear.forget()
    key("alt+g")
    ear.hears("PAGE 2")
    same("PAGE 2 is on", has(find(front, "radio button", "PAGE 2"), "checked"), True)
    fields(front, 1, 0)
    press("alt+g", "page 1", lambda: find(front, "text", "Title"))


def walking():
    for step in (1, 2):
        ear.forget()
        key("alt+n")
        ear.hears(f"{title[step]}, ")
        ear.hears(f"record {step + 1} of")
        same("what is told of fields without the focus", ear.inserted, [])
    ear.forget()
    key("alt+b")
    ear.hears(f"{title[1]}, ")


def menus():
    ear.forget()
    key("alt+f")
    ear.finds_focus("menu item", "Copy Files")
    key("Down")
    ear.finds_focus("menu item", "Save")
    leave_menus()
    ear.forget()
    key("F10")
    ear.finds_focus("menu item", "Copy Files")
    press("Right", "the next menu", lambda: ("menu item", "Find By Last Record") in ear.focused)
    leave_menus()


# The first closes the menu, the second leaves the bar.
def leave_menus():
    press("Escape", "no menu", lambda: not find(program(), "popup menu", ""))
    key("Escape")
    until("the end of the menus", lambda: not any(has(one, "focused") for one in below(program()) if role(one) == "menu item"))
    window(RECORD_SCREEN)


def boxes():
    key("alt+d")
    box = until("the question", lambda: next((one for one in children(program()) if role(one) in ("alert", "dialog")), None))
    words = names(box, "label")
    check("the question can be read", any("delete" in one.lower() for one in words), words)
    same("its buttons", names(box, "push button"), ["Yes", "No"])
    until("its focus", lambda: has(find(box, "push button", "Yes"), "focused"))
    key("alt+n")
    back_to(RECORD_SCREEN)
    ear.forget()
    key("alt+i")
    for line in ("Find By Last Record", "Find By File No.", "Find By Title"):
        ear.finds_focus("menu item", line)
        key("Down" if line != "Find By Title" else "Return")
    box = window("Search For Title")
    line = next(one for one in below(box) if role(one) == "text")
    until("the focus in the input box", lambda: has(line, "focused"))
    same("its line is named by the question", name(line), "Enter Title. To Search:")
    same("the question is its label", related(line, LABELLED_BY), [name(line)])
    ear.forget()
    type_text(line, title[4][:12])
    key("Return")
    back_to(RECORD_SCREEN)
    ear.hears(f"{title[4]}, ")


def list_of_twenty():
    ear.forget()
    key("alt+a")
    ear.finds_focus("menu item", "View All Titles")
    key("Return")
    ear.hears("List: 20 films, ")
    front = window(RECORD_SCREEN)
    table = until("the table", lambda: find(front, "table", "List of films"))
    same("its rows", Atspi.Table.get_n_rows(table), 20)
    same("its columns", Atspi.Table.get_n_columns(table), 3)
    same("a column", Atspi.Table.get_column_description(table, 0), "Title")
    same("a row", Atspi.Table.get_row_description(table, 4), "row 5")
    cell = Atspi.Table.get_accessible_at(table, 4, 0)
    same("a cell", (role(cell), name(cell)), ("table cell", "Title, row 5"))
    check("its text", text(cell).strip() in title + [WORDS["Title"]], text(cell))
    same("its row", Atspi.Table.get_row_at_index(table, cell.get_index_in_parent()), 4)
    same("its column header", name(Atspi.Table.get_column_header(table, 0)), "Title")
    check("what the list covers does not show", not find(front, "text", "Title"))
    ear.forget()
    press("Tab", "the focus in a cell", lambda: ear.last()[0] in ("table cell", "push button"))
    press("alt+r", "page 1 again", lambda: find(front, "text", "Title"))


def copying():
    ear.forget()
    key("alt+f")
    ear.finds_focus("menu item", "Copy Files")
    key("Return")
    front = window("Copy Files")
    same("its lists", names(front, "list"), ["Files", "Drives"])
    until("the focus in the files", lambda: has(find(front, "list", "Files"), "focused") or ear.last() == ("list", "Files"))
    items = [name(one) for one in children(find(front, "list", "Drives"))]
    check("a drive says its disk", any(one.startswith("a:") and len(one) > 2 for one in items), items)
    press("Down", "the first file", lambda: ear.last()[0] == "list item" and ear.last()[1].lower().endswith(".dat"))


try:
    for part in (opening, pages, walking, menus, boxes, help_viewer, typing, list_of_twenty, copying):
        part()
except (TimeoutError, GLib.Error) as missing:
    heard = (ear.focused[-3:], ear.chosen[-3:], ear.inserted[-9:], ear.said[-3:], ear.gone)
    check(f"{part.__name__}: never came: {missing}", False, heard)
    app = program()
    print([(role(one), name(one), has(one, "active")) for one in children(app)] if app else "no program on the bus")
print(f"{bus_kit.passed} passed, {bus_kit.failed} failed")
sys.exit(bus_kit.failed > 0)
