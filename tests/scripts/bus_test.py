# The windows one after the other, as the bus shows them. Arguments: the source folder, the folder of the collection.
import sys

import bus_kit
from bus_kit import *

LABELLED_BY = Atspi.RelationType.LABELLED_BY

source = Source(sys.argv[1])
collection = sys.argv[2]
records = open(f"{collection}/Recpra.Dat", "rb").read().decode("cp1252")
record = [records[at : at + 649] for at in range(0, len(records), 649)]
title = [one[:40].strip() for one in record]
ear = Ear()


def opening():
    front = window("Reelora Prima version")
    check("the picture has a text", find(front, "image", "Reelora Prima"), [role(one) for one in below(front)])
    same("the focus is on Start", has(find(front, "push button", "Start"), "focused"), True)
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
    front = window("Reelora Prima Record")
    ear.hears(f"{title[0]}, {record[0][40:70].strip()}, VHS, record 1 of {len(title)}")
    same("the window is a frame", role(front), "frame")
    fields(front, 0, 1)
    for box, words in CODED.items():
        same(box, text(find(front, "text", dict(source.pages[0])[box])), words)
    buttons = [name(one) for one in below(front) if role(one) == "push button" and has(one, "showing")]
    same("the buttons in their order", buttons, "Reset New Sort Delete Save Edit Match Back Next".split())
    check("what the status boxes say cannot be typed", has(find(front, "text", "Auto Save"), "read_only"))
    same("PAGE 1 is on", has(find(front, "radio button", "PAGE 1"), "checked"), True)
    same("PAGE 2 is off", has(find(front, "radio button", "PAGE 2"), "checked"), False)
    key("alt+g")
    ear.hears("PAGE 2")
    same("PAGE 2 is on", has(find(front, "radio button", "PAGE 2"), "checked"), True)
    fields(front, 1, 0)
    key("alt+g")
    until("page 1", lambda: find(front, "text", "Title"))


def walking():
    for step in (1, 2):
        ear.forget()
        key("alt+n")
        ear.hears(f"{title[step]}, ")
        ear.hears(f"record {step + 1} of")
    ear.forget()
    key("alt+b")
    ear.hears(f"{title[1]}, ")


def menus():
    ear.forget()
    key("alt+f")
    until("the first line of the menu", lambda: ("menu item", "Copy Files") in ear.focused)
    key("Down")
    until("the second line", lambda: ("menu item", "Save") in ear.focused)
    key("Escape", "Escape")
    ear.forget()
    key("F10")
    until("the first line of the first menu", lambda: ("menu item", "Copy Files") in ear.focused)
    key("Right")
    until("the next menu", lambda: any(line.startswith("Find") for _, line in ear.focused))
    key("Escape", "Escape")
    window("Reelora Prima Record")


def boxes():
    key("alt+d")
    box = until("the question", lambda: next((one for one in children(program()) if role(one) in ("alert", "dialog")), None))
    words = [name(one) for one in below(box) if role(one) == "label"]
    check("the question can be read", any("delete" in one.lower() for one in words), words)
    same("its buttons", [name(one) for one in below(box) if role(one) == "push button"], ["Yes", "No"])
    same("its focus", has(find(box, "push button", "Yes"), "focused"), True)
    key("alt+n")
    back_to("Reelora Prima Record")
    ear.forget()
    key("alt+i", "Down", "Down", "Return")
    box = window("Search For Title")
    line = next((one for one in below(box) if role(one) == "text"), None)
    same("the input box has the focus", line and has(line, "focused"), True)
    check("its line is named by the question", line and name(line).startswith("Enter"), line and name(line))
    ear.forget()
    type_text(title[4][:12])
    key("Return")
    back_to("Reelora Prima Record")
    ear.hears(f"{title[4]}, ")


def help_viewer():
    key("F1")
    front = window("Reelora Prima Help")
    page = next(one for one in below(front) if name(one) == "Help text")
    check("the help text has the focus", until("the focus", lambda: has(page, "focused")))
    lines = text(page).split("\n")
    check("the help text is read line by line", len(lines) > 3 and all(lines[:2]), lines[:4])
    key("Down")
    until("the next line", lambda: Atspi.Text.get_caret_offset(page) == len(lines[0]) + 1)
    key("Tab")
    until("a link", lambda: Atspi.Text.get_n_selections(page) == 1)
    same("the help is a frame", role(front), "frame")
    key("Escape")
    back_to("Reelora Prima Record")


def typing():
    ear.forget()
    key("alt+r")  # New takes no film while a search is open
    ear.hears("record 1 of")
    key("alt+w")
    until("the title", lambda: ("text", "Title") in ear.focused)
    page_one = [tag for _, tag in source.pages[0]]
    for number, tag in enumerate(page_one[:9]):
        until(f"the focus on {tag}", lambda: ear.focused[-1] == ("text", tag))
        type_text(f"Word{number}")
        until(f"the letters in {tag}", lambda: "".join(letters for field, letters in ear.inserted if field == tag).endswith(f"Word{number}"))
        key("Tab")
    ear.hears("Format V - L- D list, DVD is taken")
    key("Return")
    until("the number", lambda: ear.focused[-1] == ("text", "Number discs / tapes"))
    type_text("1")
    key("Tab")
    ear.hears("Genre Click box list, AA is taken")
    until("the first genre", lambda: ("list item", "AA = Action Adventure") in ear.focused[-2:])
    key("Down")
    until("the second genre", lambda: ear.focused[-1][0] == "list item" and not ear.focused[-1][1].startswith("AA"))
    key("Tab")
    for tag, letters in (("Time (min)", "97"), ("Year", "1938")):
        until(f"the focus on {tag}", lambda: ear.focused[-1] == ("text", tag))
        type_text(letters)
        key("Tab")
    ear.hears("Aspect list")
    key("Return")
    ear.hears("Color B/W list")
    key("Return")
    ear.hears("PAGE 2")
    for _, tag in source.pages[1]:
        if tag == "MPAA Rating":
            ear.hears("MPAA Rating list")
        else:
            until(f"the focus on {tag}", lambda: ear.focused[-1] == ("text", tag))
        key("Tab")
    until("the film on the disk", lambda: b"Word0" in open(f"{collection}/Recpra.Dat", "rb").read())
    until("the sort", lambda: any("No. Titles" in said for said in ear.said))


def list_of_twenty():
    ear.forget()
    key("alt+a", "Return")
    ear.hears("List: 20 films, ")
    front = window("Reelora Prima Record")
    table = until("the table", lambda: find(front, "table", "List of films"))
    same("its rows", Atspi.Table.get_n_rows(table), 20)
    same("its columns", Atspi.Table.get_n_columns(table), 3)
    same("a column", Atspi.Table.get_column_description(table, 0), "Title")
    same("a row", Atspi.Table.get_row_description(table, 4), "row 5")
    cell = Atspi.Table.get_accessible_at(table, 4, 0)
    same("a cell", (role(cell), name(cell)), ("table cell", "Title, row 5"))
    check("its text", text(cell) in records, text(cell))
    same("its row", Atspi.Table.get_row_at_index(table, cell.get_index_in_parent()), 4)
    same("its column header", name(Atspi.Table.get_column_header(table, 0)), "Title")
    check("what the list covers does not show", not find(front, "text", "Title"))
    ear.forget()
    key("Tab")
    until("the focus in a cell", lambda: ear.focused and ear.focused[-1][0] in ("table cell", "push button"))
    key("alt+r")
    until("page 1 again", lambda: find(front, "text", "Title"))


def copying():
    ear.forget()
    key("alt+f", "Return")
    front = window("Copy Files")
    lists = [name(one) for one in below(front) if role(one) == "list" and has(one, "showing")]
    same("its lists", lists, ["Files", "Drives"])
    until("the focus in the files", lambda: has(find(front, "list", "Files"), "focused") or ear.focused[-1:] == [("list", "Files")])
    items = [name(one) for one in children(find(front, "list", "Drives"))]
    check("a drive says its disk", any(one.startswith("a:") and len(one) > 2 for one in items), items)
    key("Down")
    until("the first file", lambda: ear.focused[-1][0] == "list item" and ear.focused[-1][1].lower().endswith(".dat"))


try:
    for part in (opening, pages, walking, menus, boxes, help_viewer, typing, list_of_twenty, copying):
        part()
except TimeoutError as missing:
    check(f"{part.__name__}: never came: {missing}", False, (ear.focused[-3:], ear.said[-3:], ear.inserted[-9:]))
    print([(role(one), name(one), has(one, "active")) for one in children(program())])
print(f"{bus_kit.passed} passed, {bus_kit.failed} failed")
sys.exit(bus_kit.failed > 0)
