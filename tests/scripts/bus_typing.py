# A film typed from the first field to the last, with every pick list that opens on the way.
from bus_session import *

WORDS = {"Number discs / tapes": "1", "Time (min)": "97", "Year": "1938"}


def type_fields(tags):
    """From the field with the focus on, with Tab after each."""
    for tag in tags:
        field = ear.finds_focus("text", tag)
        letters = WORDS.setdefault(tag, f"Word{len(WORDS)}")
        ear.forget()
        type_text(field, letters)
        until(f"an event for each letter in {tag}", lambda: [letter for _, letter in ear.inserted] == list(letters))
        same(f"where they were typed in {tag}", {typed for typed, _ in ear.inserted}, {tag})
        key("Tab")


def on_item(pick, items, row):
    """That item, and it alone, is chosen and has the focus."""
    until(f"the event of the focus on {items[row]}", lambda: ("list item", items[row]) in ear.focused)
    wanted = [one == row for one in range(len(items))]
    until(f"{items[row]} is chosen", lambda: [has(one, "selected") for one in children(pick)] == wanted)
    same(f"the focus is on {items[row]}", [has(one, "focused") for one in children(pick)], wanted)


def open_list(tag, words):
    ear.hears(f"{tag} list, {words} is taken")
    return until(f"the list {tag}", lambda: find(window("Reelora"), "list", tag))


def walk(tag, items):
    """All items of the list that has opened, with Down."""
    pick = open_list(tag, items[0])
    same(f"the items of {tag}", [(role(one), name(one)) for one in children(pick)], [("list item", one) for one in items])
    for row, item in enumerate(items):
        if row:
            ear.forget()
            key("Down")
            until(f"the event that {item} is chosen", lambda: ear.chosen == [("list item", item)])
        on_item(pick, items, row)
        field = find(window("Reelora"), "text", tag, showing=False)  # the list may cover it
        same(f"what {tag} has taken", text(field), item)
    ear.forget()
    return pick


def page_one():
    tags = [tag for _, tag in source.pages[0]]
    type_fields(tags[:9])
    formats = walk("Format V - L- D", source.formats)
    key("Up")
    on_item(formats, source.formats, source.formats.index("Laser"))
    key("Return")
    type_fields(["Number discs / tapes"])
    open_list("Genre Click box", "AA")
    press("Down", "the second genre", lambda: ear.last() == ("list item", "AD = Adult"))
    key("Tab")
    type_fields(["Time (min)", "Year"])
    open_list("Aspect", "Wide Screen")
    ear.forget()
    key("Return")
    walk("CAV / CLV", source.discs)
    key("Return")
    open_list("Color B/W", "Color")
    ear.forget()
    key("Return")
    ear.hears("PAGE 2")


def page_two():
    for _, tag in source.pages[1]:
        if tag == "MPAA Rating":
            walk(tag, source.ratings)
        else:
            ear.finds_focus("text", tag)
        key("Tab")


def typing():
    ear.forget()
    key("alt+r")  # New takes no film while a search is open
    ear.hears("record 1 of")
    key("alt+w")
    page_one()
    page_two()
    film = until("the film on the disk", lambda: next((one for one in films() if one.startswith(WORDS["Title"])), None))
    for words in (*WORDS.values(), "L1AD97 1938", "CAV", source.ratings[-1]):
        check(f"the record has {words}", words in film, film)
    ear.hears("No. Titles")
