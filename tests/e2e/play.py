#!/usr/bin/env python3
"""Plays the real game in a screen of its own: first over the accessibility bus alone, as a screen
reader does, which knows what the game says and nothing else; then by mouse and keys, with closes at
bad moments.

usage: play.py TREE [HOME]   TREE is what bundle.sh has left; HOME the player's folder, else a new one
"""
import ctypes
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path


def skip(reason):
    print(f"SKIPPED: no accessibility bus: {reason}")
    sys.exit(77)


if "INSIDE" not in os.environ:  # in a screen and a bus of its own
    command = ["xvfb-run", "-a", "-s", "-screen 0 1024x768x24 -noreset", "dbus-run-session", "--",
               "/usr/bin/python3", "-B", *sys.argv]  # which has the packages of the system
    if not all(map(shutil.which, ("xvfb-run", "dbus-run-session"))):
        skip("xvfb-run or dbus-run-session is missing")
    with tempfile.TemporaryDirectory() as folder:
        home = sys.argv[2] if sys.argv[2:] else folder
        sys.exit(subprocess.run(command, timeout=300, env={
            "INSIDE": "", "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "HOME": home,
            "XDG_RUNTIME_DIR": folder, "GSETTINGS_BACKEND": "memory", "SDL_AUDIODRIVER": "dummy",
            "QT_SCALE_FACTOR": "1.4"}).returncode)  # which counts as 1

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
home, scratch = Path(os.environ["HOME"]), Path(os.environ["XDG_RUNTIME_DIR"])
program, own = Path(sys.argv[1], "usr/games/korvel"), home / ".local/share/Korvel"
if not program.exists():  # the bundle, which keeps the player's files beside itself
    own = shutil.copytree(sys.argv[1], home / "Korvel")
    program = own / "Korvel"
options = home / ".config/Korvel/Korvel.conf"
FLEET = "A1 B1 C1 C2  E1 F1 G1  A4 A5 B5  I1 J1  D4 D5  F3  H5  J8"


def fail(*what):
    shot = f"/tmp/korvel-test-{os.getpid()}.png"
    subprocess.run(["import", "-silent", "-window", "root", shot])
    sys.exit(f"FAILED: {what}; said: {said[-3:]}; the screen: {shot}")


def expect(truth, *what):
    if not truth:
        fail(*what)


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
    fail("waited for", what)


def hear(event):
    try:
        if event.source.get_role() == Atspi.Role.NOTIFICATION:
            said.append(event.source.get_name())
    except GLib.Error:  # it is no more
        pass


def await_said(pattern):
    return wait(pattern, lambda: next((text for text in said if re.fullmatch(pattern, text)), None))


# ---- what is seen

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
    def search():
        Atspi.get_desktop(0).clear_cache()  # a dialog may have been met before it was whole
        return find(kind, name)
    return wait(f"{kind} {name}", search)


def await_gone(kind, name):
    wait(f"no {kind} {name}", lambda: not find(kind, name))


def button(name):
    return await_object("push button", name)


def sea(side="Linkes"):
    return await_object("table", f"{side} Feld")


def cells(field, names):
    return [field.get_accessible_at(int(name[1:]) - 1, ord(name[0]) - ord("A"))
            for name in names.split()]


def states(field):
    """What the cells of a field say, by name."""
    lines = (Atspi.Text.get_text(cell, 0, -1).split(maxsplit=1) for cell in children(field))
    return {name: state.rstrip() for name, state in lines}


def pixels(thing):
    """What is seen where something is."""
    box = thing.get_extents(Atspi.CoordType.SCREEN)
    shot = subprocess.check_output(["import", "-silent", "-window", "root", "-depth", "8", "-crop",
                                    f"{box.width}x{box.height}+{box.x}+{box.y}", "rgb:-"])
    return list(zip(shot[::3], shot[1::3], shot[2::3]))


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


# ---- what is done

def press(thing):
    said.clear()
    thing.do_action(0)


def click(*things):
    """With the mouse, one at once after another, a text by keys; then the pointer goes aside."""
    chain = []
    for thing in things:
        if isinstance(thing, str):
            chain += ["key", thing]
            continue
        box = thing.get_extents(Atspi.CoordType.SCREEN)
        chain += ["mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2),
                  "click", "--delay", "0", "1"]
    said.clear()
    subprocess.run(["xdotool", *chain, "mousemove", "1", "1"], check=True)


def window(title):
    return wait(title, lambda: subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--name", title], capture_output=True).stdout.split())[0]


def keys(title, *names):
    subprocess.run(["xdotool", "windowfocus", window(title), "key", *names], check=True)


def start(**environment):
    """The game, up to its main window."""
    global game
    log = open(scratch / "log", "w+")
    game = subprocess.Popen([program], env=os.environ | environment, stdout=log, stderr=log)
    game.log = log
    button("Neues Spiel")


def close(meanwhile=lambda: None):
    """What a click on the close box sends, at once after something; the game ends without a word."""
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x.XOpenDisplay(None))
    protocols, delete = (x.XInternAtom(display, b"WM_" + s, 0) for s in (b"PROTOCOLS", b"DELETE_WINDOW"))
    main = int(window("^Korvel$"))
    meanwhile()
    message = (ctypes.c_long * 24)(33, 0, 1, 0, main, protocols, 32, delete)
    x.XSendEvent(display, main, 0, 0, message)
    x.XCloseDisplay(display)
    await_end()


def await_end():
    expect(game.wait(10) == 0, "exit status", game.returncode)
    game.log.seek(0)
    notes = "QSpiApplication|requestActivate|SDL disk|Writing"  # of Qt at a key and so on
    words = [line for line in game.log if not re.search(notes, line)]
    expect(not words, words)


def new_game(name, *typed):
    """Types by these keys what becomes this name, begins a game of size 1."""
    click(button("Neues Spiel"))
    await_object("text", "Name des Spielers")
    keys("^Neues Spiel$", *typed)
    click(await_object("radio button", "Größe 1"), button("OK!"))
    await_said("Zuerst 4er.")
    await_object("label", name)


# ---- over the bus

def play_by_ear():
    wait("a hidden bin without a press",
         lambda: find("push button", "Mülleimer").get_n_actions() == 0)
    press(button("Neues Spiel"))
    await_object("text", "Name des Spielers").set_text_contents("Jörg")
    press(find("radio button", "Größe 1", await_object("panel", "Größe")))
    press(button("OK!"))
    await_said("Zuerst 4er.")
    await_object("label", "Deine 4er: 1")
    left, bin = sea(), button("Mülleimer")
    grey = pixels(bin)
    press(*cells(left, "F4"))
    await_said("F4, Boot im Bau.")
    wait("a red bin", lambda: pixels(bin) != grey)
    press(bin)
    await_said("4er gelöscht.")
    for boat in FLEET.split("  "):
        first, *rest = cells(left, boat)
        press(first)
        await_said(f"{boat[:2]}, Boot im Bau\\." if rest else "1er steht.*")
        if boat.startswith("A1"):
            press(*cells(left, "B2"))
            await_said("B2 geht nicht\\.")
        for cell in rest:
            press(cell)
        await_said(f"{len(rest) + 1}er steht\\.( Als Nächstes [1-3]er\\.)?")
    yes = button("Ja")
    expect("Aufstellung zufrieden?" in yes.get_description(), yes.get_description())
    press(yes)
    right = sea("Rechtes")
    wait("the moved fleet", lambda: Counter(states(right).values()) == {"Boot": 17, "Wasser": 63})

    # The battle. Whatever was not shot at is water, whether a boat is there or not.
    told = dict.fromkeys(states(left), "Wasser")
    sunk = 0  # cells
    for shots, name in enumerate(told, 1):
        press(*cells(left, name))
        turn = await_said(f"Du: {name}, .*")
        result, reply = re.fullmatch(r"Du: \w+, ([\w ]+)\.(.*)", turn).groups()
        told[name] = result.split()[-1]
        sunk += int(result[0]) if told[name] == "versenkt" else 0
        if "gewonnen" in reply:
            break
        expect(re.fullmatch(r" Computer: [A-J][1-8], (daneben|Treffer|\der versenkt)\.", reply), turn)
        if shots % 9 == 0:
            now = states(left)
            expect(all(now[cell] == told[cell] or (told[cell], now[cell]) == ("Treffer", "versenkt")
                       for cell in now), told, now)
            expect(Counter(now.values())["versenkt"] == sunk, sunk, now)
        if shots == 1:
            press(*cells(left, name))
            await_said(f"Du: {name} war schon dran\\.")
            check_tree(await_object("frame", "Korvel"))

    # The end and the top ten.
    winner = "Jörg" if reply == " Du hast gewonnen." else "Computer"
    yes = button("Ja")
    expect(f"nur {shots} Wasserbomben" in yes.get_description(), shots, yes.get_description())
    press(yes)
    row = f"Neu auf Platz 1: {winner}, {shots} Bomben, {1700 // shots} %"
    await_object("label", row)
    quote = find("label", rf"{shots} \(\d+%\)")
    for blinks in True, False:
        wait("a result that blinks red", lambda: ((255, 0, 0) in pixels(quote)) == blinks)
    click(quote)  # anywhere
    await_gone("label", "Neu auf Platz 1: .*")
    table = (own / "Score.hsc").read_bytes()
    expect(len(table) == 1800 and winner.encode("cp1252") in table[:30], table[:60])
    press(button("Ausgang"))
    press(button("Ja"))
    await_end()
    print(f"{winner} wins after {shots} shots; the last words: {turn}")


# ---- by mouse and keys

def change_options():
    click(button("Optionen"))
    click(*(await_object(kind, name) for kind, name in (
        ("check box", "Sound"), ("radio button", "Größe 3"), ("push button", "Übernehmen"))))
    wait("options", lambda: options.read_text().split()[1:] == ["Help=0", "Sound=1", "StdSize=3"])
    close()


def open_dialogs(heard):
    expect(len(children(sea())) == 320, "another size")
    new_game("Anna", "A", "n")
    (own / "Combo.txt").write_bytes("Emil\r\nJulia\r\nÉmile\r\n".encode("cp1252"))
    new_game("Julia", "j", "u")
    new_game("Émile", "dead_acute", "e")
    click(button("Top 10"))
    wait("the jingle", lambda: heard.read_bytes().strip(b"\0"))
    click(await_object("radio button", "Größe 1"))
    for answer, row in ("Nein", "Platz 1: (Jörg|Computer).*"), ("Ja", "Platz 1: unbekannt"):
        click(button("Top Ten löschen"))
        click(button(answer))
        await_object("label", row)
    click(await_object("label", "Zum Beenden .*"))
    await_gone("label", "Platz 1: .*")
    click(button("Hilfe"))
    await_object("tree", "Inhalt")
    close()


def play_by_hand():
    new_game("Jörg", "J", "odiaeresis", "r", "g")
    left, right = sea(), sea("Rechtes")
    water = pixels(left)
    fleet = cells(left, FLEET.replace("C2", "C2 D3").replace("D4", "D4 E3"))  # which are refused
    click(*fleet)
    click(button("Nein"))
    wait("no boat", lambda: pixels(left) == pixels(right) == water)
    click(*fleet)
    click(button("Ja"))
    wait("the fleet on the right field alone", lambda: pixels(left) == water != pixels(right))

    # What comes during a turn waits: each press is a turn of its own, then comes a question,
    # which holds back the command after it.
    subprocess.run(["xdotool", "windowfocus", window("^Korvel$")], check=True)
    click(*cells(left, "A1 B1 C1 D1 E1 E1"), "alt+a", "alt+n")
    button("Nein")
    wait("six turns", lambda: re.findall("Du: (..)", " ".join(said)) == "A1 B1 C1 D1 E1 E1".split())
    keys("^ $", "Escape")
    await_gone("push button", "Nein")
    rest = cells(left, " ".join(f"{x}{y}" for y in range(3, 7) for x in "ABCDEFGHIJ"))
    close(lambda: click(*rest))  # before these turns, whose pauses take longer


options.parent.mkdir(parents=True, exist_ok=True)
defaults = "[Options]\nSound=0\nHelp=0\nStdSize=2\n"
options.write_text(defaults)
listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:showing")
subprocess.run(["setxkbmap", "de"], check=True)

# One in which the pauses of a turn are a tenth as long.
(scratch / "hurry.c").write_text("""
#include <time.h>
int nanosleep(const struct timespec *time, struct timespec *rest) {
  struct timespec shorter = {0, (time->tv_sec * 1000000000ll + time->tv_nsec) / 10};
  return clock_nanosleep(CLOCK_MONOTONIC, 0, &shorter, rest);
}""")
hurry = str(scratch / "hurry.so")
subprocess.run(["cc", "-shared", "-fPIC", "-o", hurry, scratch / "hurry.c"], check=True)
start(LD_PRELOAD=hurry)
play_by_ear()
start()
change_options()
start(SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(scratch / "heard"))
open_dialogs(scratch / "heard")
options.write_text(defaults)
start()
play_by_hand()
start()
new_game("Jörg", "J", "odiaeresis", "r", "g")
fleet = cells(sea(), FLEET)
close(lambda: click(*fleet))  # before the question
