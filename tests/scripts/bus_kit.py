# The program as a screen reader meets it: things on the bus with role, name, text and states, and the events they send.
import re
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 30  # seconds
# A machine with much to do answers late; in milliseconds, for each call and for the first ones.
Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)

passed = 0
failed = 0


def check(name, held, seen=None):
    global passed, failed
    if held:
        passed += 1
    else:
        failed += 1
        print(f"FAILED: {name}: {seen!r}")


def same(name, seen, wanted):
    check(f"{name}, wanted {wanted!r}", seen == wanted, seen)


def key(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "5", text], check=True)


def pump():
    while GLib.MainContext.default().iteration(False):
        pass


def until(what, condition):
    """What the condition gives once it holds. What never comes ends the test: nothing after it would."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        pump()
        try:
            found = condition()
        except GLib.Error:  # a thing that has gone meanwhile
            found = None
        if found:
            return found
        time.sleep(0.01)
    raise TimeoutError(what)


def name(thing):
    return thing.get_name()


def role(thing):
    return thing.get_role_name()


def text(thing):
    return Atspi.Text.get_text(thing, 0, -1)


def has(thing, state):
    return thing.get_state_set().contains(getattr(Atspi.StateType, state.upper()))


def children(thing):
    found = [thing.get_child_at_index(index) for index in range(thing.get_child_count())]
    return [child for child in found if child]


def below(thing):
    for child in children(thing):
        yield child
        yield from below(child)


def program():
    desktop = Atspi.get_desktop(0)
    app = next((app for app in children(desktop) if name(app) == "reelora-prima"), None)
    if app:
        app.set_cache_mask(Atspi.Cache.NONE)
    return app


def window(title):
    """The window whose title begins so, once it is active."""

    def front():
        app = program()
        return app and next((w for w in children(app) if name(w).startswith(title) and has(w, "active")), None)

    return until(f"the window {title}", front)


def back_to(title):
    """A display without a window manager gives the keyboard to nobody when a box or a window goes."""
    until("the end of the box", lambda: all(role(one) == "frame" for one in children(program())))
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{title}", "windowfocus"], check=True)
    return window(title)


def find(thing, wanted_role, wanted_name, showing=True):
    for one in below(thing):
        if role(one) == wanted_role and name(one) == wanted_name and (not showing or has(one, "showing")):
            return one
    return None


def related(thing, relation):
    for one in thing.get_relation_set():
        if one.get_relation_type() == relation:
            return [name(one.get_target(index)) for index in range(one.get_n_targets())]
    return []


class Ear:
    """Hears who gets the focus and what is announced."""

    def __init__(self):
        self.focused = []
        self.said = []
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("object:state-changed:focused", "object:state-changed:showing", "object:text-changed:insert"):
            self.listener.register(event)
        self.inserted = []

    def hear(self, event):
        source = event.source
        try:
            if event.type.startswith("object:text-changed:insert"):
                self.inserted.append((name(source), event.any_data))
            elif not event.detail1:
                pass
            elif event.type == "object:state-changed:focused":
                self.focused.append((role(source), name(source)))
            elif role(source) == "notification":
                self.said.append(name(source))
        except GLib.Error:
            pass

    def forget(self):
        pump()
        self.focused.clear()
        self.said.clear()
        self.inserted.clear()

    def hears(self, words):
        return until(f"the words {words!r} among {self.said!r}", lambda: any(words in said for said in self.said))


class Source:
    """The tables of the source: which label names which field, and in which order Tab goes."""

    def __init__(self, folder):
        controls = open(f"{folder}/screen/controls.h", encoding="utf-8").read()
        boxes = open(f"{folder}/screen/record_boxes.h", encoding="utf-8").read()
        self.captions = {}
        for control, caption in re.findall(r'\{ \*this, "(\w+)",\s+"((?:[^"\\]|\\.)*)"', controls):
            self.captions[control] = " ".join(caption.replace('\\"', '"').replace("&", "").split())
        self.tabs = {}
        for control, tab in re.findall(r'forms::TextBox +(\w+) +\{ \*this, "[^"]+", +\{ *(\d+)', controls):
            self.tabs[control] = int(tab)
        self.pages = []
        for page in ("PageOne", "PageTwo"):
            rows = boxes.split(f"{page}[] = {{")[1].split("};")[0]
            pairs = re.findall(r"&PageControls::(\w+), +&PageControls::(\w+)", rows)
            pairs.sort(key=lambda pair: self.tabs[pair[0]])
            self.pages.append([(box, self.captions[tag]) for box, tag in pairs])
