# The help viewer: its text line by line, and its links.
import re

from bus_session import *

LINE = Atspi.TextBoundaryType.LINE_START


def links_of(chapter_and_title):
    """As the help file has them."""
    chapter, topic = chapter_and_title
    held = open(f"{collection}/Reelora4.HLP", encoding="utf-8").read()
    body = re.search(rf"^= {re.escape(topic)} .*\n((?:(?!=).*\n)*)", held.split(f"== {chapter}\n")[1], re.MULTILINE).group(1)
    return [" ".join(words.split()) for words in re.findall(r"\[\d+ ([^]]+)\]", body)]


def spoken_links():
    return re.findall(r"Link ([^.]+)", ". ".join(ear.said))


def by_line(page, links):
    """With Down to the end: each line once, and of each the links."""
    ear.forget()
    words, end = text(page), 0
    while end < len(words):
        line = Atspi.Text.get_text_at_offset(page, Atspi.Text.get_caret_offset(page), LINE)
        same("what lies between two lines", words[end : line.start_offset].strip("\n"), "")
        end = line.end_offset
        if end < len(words):
            press("Down", "the next line", lambda: Atspi.Text.get_caret_offset(page) >= end)
    until(f"the links {links} among {spoken_links()}", lambda: spoken_links() == links)


def by_tab(page, links):
    key("ctrl+Home")
    until("the beginning", lambda: Atspi.Text.get_caret_offset(page) == 0)
    for words in links:
        ear.forget()
        key("Tab")
        ear.hears(f"Link {words}")
        same("what is said", ear.said, [f"Link {words}"])
        chosen = Atspi.Text.get_selection(page, 0)
        same("the chosen link", text(page)[chosen.start_offset : chosen.end_offset], words)


def help_viewer():
    ear.forget()
    key("F1")
    front = window("Reelora Prima Help")
    same("the help is a frame", role(front), "frame")
    page = next(one for one in below(front) if name(one) == "Help text")
    until("the focus in the help text", lambda: has(page, "focused"))
    lines = text(page).split("\n")
    ear.hears(f"{lines[0]}. {lines[1]}")
    links = links_of(lines[:2])
    check("the page has links", len(links) > 2, links)
    by_line(page, links)
    by_tab(page, links)
    ear.forget()
    key("Return")
    until(f"a page named by {links[-1]}", lambda: ear.said and text(page).split("\n")[:2] == ear.said[-1].split(". ")[:2])
    key("Escape")
    back_to(RECORD_SCREEN)
