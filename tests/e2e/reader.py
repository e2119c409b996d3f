#!/usr/bin/env python3
"""Plays the real game over the accessibility bus alone, as a screen reader does: it knows what the
game says and nothing else.

usage: reader.py FOLDER      FOLDER holds the executable Korvel
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from collections import Counter


def skip(reason):
    print(f"SKIPPED: no accessibility bus: {reason}")
    sys.exit(77)


if "INSIDE" not in os.environ:  # in a screen and a bus of its own
    python = "/usr/bin/python3"  # which has the packages of the system
    command = ["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -noreset",
               "dbus-run-session", "--", python, *sys.argv]
    if not shutil.which(command[0]) or not shutil.which("dbus-run-session"):
        skip("xvfb-run or dbus-run-session is missing")
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(sys.argv[1], f"{folder}/Korvel")
        command[-1] = f"{folder}/Korvel"
        sys.exit(subprocess.run(command, timeout=200, env=os.environ | {
            "INSIDE": "", "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": folder,
            "SDL_AUDIODRIVER": "dummy", "GSETTINGS_BACKEND": "memory"}).returncode)

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, Gio, GLib
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
        None, 0, 5000)
except Exception as missing:  # whatever it is, nothing can be tested
    skip(missing)

Atspi.set_timeout(30_000, 30_000)
said = []  # by the game


def hear(event):
    try:
        if event.source.get_role() == Atspi.Role.NOTIFICATION:
            said.append(event.source.get_name())
    except GLib.Error:  # it is no more
        pass


def wait(what, holds):
    """Lets the bus speak until something holds, and gives it."""
    end = time.monotonic() + 30
    while time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        try:
            if found := holds():
                return found
        except GLib.Error:  # it has just gone
            pass
        time.sleep(.002)
    sys.exit(f"FAILED: waited for {what}; said: {said[-3:]}")


def await_said(pattern):
    return wait(pattern, lambda: next((text for text in said if re.fullmatch(pattern, text)), None))


def children(parent):  # None is one that has just gone
    return list(filter(None, map(parent.get_child_at_index, range(parent.get_child_count()))))


def find(kind, name, root=None):
    """The shown object of a kind whose name matches, if there is one."""
    for each in children(root or Atspi.get_desktop(0)):
        try:
            if each.get_role_name() == kind and re.fullmatch(name, each.get_name()):
                if each.get_state_set().contains(Atspi.StateType.SHOWING):
                    return each
            if each.get_role_name() != "table" and (found := find(kind, name, each)):
                return found
        except GLib.Error:  # it has just gone
            pass
    return None


def await_object(kind, name):
    Atspi.get_desktop(0).clear_cache()  # a dialog may have been met before it was whole
    return wait(f"{kind} {name}", lambda: find(kind, name))


def check_tree(root):
    """Names and texts of a window in battle: only a cell tells of a cell, and only of itself."""
    for each in children(root):
        kind, name, words = each.get_role_name(), each.get_name(), each.get_description()
        if kind == "table cell":
            line, isLeft = Atspi.Text.get_text(each, 0, -1), root.get_name() == "Linkes Feld"
            expect(line == f"{name} {words}".ljust(20), line, words)
            expect("Boot" not in words or not isLeft, name, words)
            expect(each.get_n_actions() == isLeft, name, "has another action")
        elif kind != "notification":
            expect(not re.search(r"\b[A-J][1-8]\b", name + words), kind, name, words)
        check_tree(each)


def press(thing):
    said.clear()
    thing.do_action(0)


def field(side):
    """What the cells of a field say, by name."""
    lines = (Atspi.Text.get_text(cell, 0, -1).split(maxsplit=1)
             for cell in children(await_object("table", f"{side} Feld")))
    return {name: state.rstrip() for name, state in lines}


def press_cell(name):
    sea = await_object("table", "Linkes Feld")
    press(sea.get_accessible_at(int(name[1:]) - 1, ord(name[0]) - ord("A")))


def expect(truth, *what):
    if not truth:
        sys.exit(f"FAILED: {what}; said: {said[-3:]}")


listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:showing")
game = subprocess.Popen([f"{sys.argv[1]}/Korvel"])
await_object("push button", "Neues Spiel")
wait("a hidden bin without a press",
     lambda: find("push button", "Mülleimer").get_n_actions() == 0)
press(await_object("push button", "Neues Spiel"))
await_object("text", "Name des Spielers").set_text_contents("Jörg")
press(find("radio button", "Größe 1", await_object("panel", "Größe")))
press(find("push button", "OK!"))
await_said("Zuerst 4er.")
await_object("label", "Deine 4er: 1")
press_cell("F4")
await_said("F4, Boot im Bau.")
press(find("push button", "Mülleimer"))
await_said("4er gelöscht.")

for boat in ("A1 B1 C1 C2", "E1 F1 G1", "A4 A5 B5", "I1 J1", "D4 D5", "F3", "H5", "J8"):
    cells = boat.split()
    press_cell(cells[0])
    await_said(f"{cells[0]}, Boot im Bau\\." if cells[1:] else "1er steht.*")
    if boat.startswith("A1"):
        press_cell("B2")
        await_said("B2 geht nicht\\.")
    for cell in cells[1:]:
        press_cell(cell)
    await_said(f"{len(cells)}er steht\\.( Als Nächstes [1-3]er\\.)?")
yes = await_object("push button", "Ja")
expect("Aufstellung zufrieden?" in yes.get_description(), "the question", yes.get_description())
press(yes)
wait("the moved fleet", lambda: Counter(field("Rechtes").values()) == {"Boot": 17, "Wasser": 63})

# The battle. Whatever was not shot at is water, whether a boat is there or not.
sea = dict.fromkeys(field("Linkes"), "Wasser")
shots = 0
for cell in sea:
    press_cell(cell)
    turn = await_said(f"Du: {cell}, .*")
    shots += 1
    own, reply = re.fullmatch(r"Du: \w+, ([\w ]+)\.(.*)", turn).groups()
    now = field("Linkes")
    sunk = [other for other in now if now[other] == "versenkt" != sea[other]]
    expect(len(sunk) == int(own[0]) if "versenkt" in own else not sunk, turn, sunk)
    expect("gewonnen" in reply or "versenkt" in own or now[cell] == own, turn, now[cell])
    if "gewonnen" in reply:
        break
    hidden = {other for other in now if other not in sunk and other != cell}
    expect(all(now[other] == sea[other] for other in hidden), "a field tells more", now)
    expect(re.fullmatch(r" Computer: [A-J][1-8], (daneben|Treffer|\der versenkt)\.", reply), turn)
    sea = now
    if shots == 1:
        press_cell(cell)
        await_said(f"Du: {cell} war schon dran\\.")
        check_tree(await_object("frame", "Korvel"))

# The end and the top ten.
winner = "Jörg" if reply == " Du hast gewonnen." else "Computer"
yes = await_object("push button", "Ja")
bombs = re.search(r"nur (\d+) Wasserbomben", yes.get_description())[1]
expect(int(bombs) == shots, bombs, "bombs")
press(yes)
row = await_object("label", "Neu auf Platz 1: .*").get_name()
expect(row == f"Neu auf Platz 1: {winner}, {bombs} Bomben, {1700 // shots} %", row)
Atspi.generate_keyboard_event(9, None, Atspi.KeySynthType.PRESSRELEASE)  # Escape
wait("the end of the top ten", lambda: not find("label", "Neu auf Platz 1: .*"))
press(await_object("push button", "Ausgang"))
press(await_object("push button", "Ja"))
expect(game.wait(20) == 0, "the game ends")
print(f"{winner} wins after {shots} shots; the last words: {turn}")
