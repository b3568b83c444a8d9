# The program as a screen reader meets it: things on the bus with role, name, text and states, and the events they send.
# One key at a time: the next is pressed when the one before is seen to have worked.
import atexit
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 180  # seconds
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


def start(program, folder):
    """When the test listens already: while a program comes up, the toolkit takes no note of who begins to listen."""
    running = subprocess.Popen([program], cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    atexit.register(running.wait)
    atexit.register(running.kill)


def key(keys):
    subprocess.run(["xdotool", "key", keys], check=True)


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


def press(keys, what, condition):
    key(keys)
    return until(f"{what} after {keys}", condition)


def type_text(field, letters):
    """Over what is chosen in the field, letter by letter."""
    for end in range(1, len(letters) + 1):
        subprocess.run(["xdotool", "type", letters[end - 1]], check=True)
        until(f"{letters[:end]!r} in {name(field)}", lambda: text(field) == letters[:end])


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
    """Asked anew each time: what the bindings keep may be old."""
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)
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


def names(thing, wanted_role):
    return [name(one) for one in below(thing) if role(one) == wanted_role and has(one, "showing")]


def related(thing, relation):
    for one in thing.get_relation_set():
        if one.get_relation_type() == relation:
            return [name(one.get_target(index)) for index in range(one.get_n_targets())]
    return []


class Ear:
    """Hears who gets the focus, what is chosen in lists, what is typed and what is announced."""

    def __init__(self):
        self.focused = []
        self.holder = None
        self.chosen = []
        self.inserted = []
        self.said = []
        self.gone = []
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("state-changed:focused", "state-changed:selected", "state-changed:showing", "text-changed:insert"):
            self.listener.register(f"object:{event}")

    def hear(self, event):
        source = event.source
        try:
            if event.type.startswith("object:text-changed:insert"):
                self.inserted.append((name(source), event.any_data))
            elif not event.detail1:
                pass
            elif event.type == "object:state-changed:focused":
                self.focused.append((role(source), name(source)))
                self.holder = source
            elif event.type == "object:state-changed:selected":
                self.chosen.append((role(source), name(source)))
            elif role(source) == "notification":
                self.said.append(name(source))
        except GLib.Error:  # it went before it was asked
            self.gone.append(event.type)

    def forget(self):
        pump()
        for heard in (self.focused, self.chosen, self.inserted, self.said):
            heard.clear()

    def hears(self, words):
        return until(f"the words {words!r} among {self.said!r}", lambda: any(words in said for said in self.said))

    def last(self):
        return self.focused[-1] if self.focused else ("", "")

    def finds_focus(self, wanted_role, wanted_name):
        """The thing that has the focus at last."""
        until(f"the focus on {wanted_name}", lambda: self.last() == (wanted_role, wanted_name))
        return self.holder
