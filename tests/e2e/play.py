#!/usr/bin/env python3
"""Plays the real game in a screen of its own: first a whole game over the accessibility bus alone, as
a screen reader does, but for the colours that are looked at; then by mouse and keys, with closes at
bad moments.

usage: play.py TREE [HOME]   TREE is what bundle.sh has left, or / for an installed game. HOME is the
                             player's folder, whose options and top ten are REPLACED; else a new one
"""
import atexit
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


if "INSIDE" not in os.environ:  # starts itself once more, in a screen and a bus of its own
    command = ["xvfb-run", "-a", "-s", "-screen 0 1024x768x24 -noreset", "dbus-run-session", "--",
               "timeout", "-k9", "300", "/usr/bin/python3", "-B", *sys.argv]  # Debian's, with gi
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        home = sys.argv[2] if sys.argv[2:] else folder
        sys.exit(subprocess.run(command, env={
            "INSIDE": "", "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "HOME": home,
            "XDG_RUNTIME_DIR": folder, "TMPDIR": folder, "GSETTINGS_BACKEND": "memory", "SDL_AUDIODRIVER": "dummy",
            "QT_SCALE_FACTOR": "1.4"}).returncode)  # which counts as 1

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, Gio, GLib
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
        None, 0, 30_000)
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
# Two blanks part the boats.
FLEET = "A1 B1 C1 C2  E1 F1 G1  A4 A5 B5  I1 J1  D4 D5  F3  H5  J8"


def fail(*what):
    shot = f"/tmp/korvel-test-{os.getpid()}.png"
    subprocess.run(["import", "-silent", "-window", "root", shot])
    sys.exit(f"FAILED: {what}; said: {said[-3:]}; status {game.poll()}, "
             f"{(scratch / 'log').read_text()[-999:]}; the screen: {shot}")


def expect(truth, *what):
    if not truth:
        fail(*what)


def wait(what, holds, seconds=30):
    """Lets the bus speak until something holds, and gives it."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if found := holds():
                return found
        except (GLib.Error, OSError):  # it has just gone, or a file is not there yet
            pass
        time.sleep(.002)
    fail("waited for", what)


def hear(event):
    try:
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
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
            # The cells of a table are many, and never searched for.
            if each.get_role_name() != "table" and (found := find(kind, name, each)):
                return found
        except GLib.Error:  # it has just gone
            pass
    return None


def await_object(kind, name, root=None):
    def search():
        Atspi.get_desktop(0).clear_cache()  # a dialog may have been met before it was whole
        return find(kind, name, root)
    return wait(f"{kind} {name}", search)


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
    atexit.register(game.kill)
    button("Neues Spiel")


def close(first=lambda: None):
    """What a click on the close box sends, at once after something; the game ends without a word."""
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x.XOpenDisplay(None))
    protocols, delete = (x.XInternAtom(display, b"WM_" + s, 0) for s in (b"PROTOCOLS", b"DELETE_WINDOW"))
    main = int(window("^Korvel$"))
    first()
    # type, serial, sent, display, window, message, format, data
    message = (ctypes.c_long * 24)(33, 0, 1, 0, main, protocols, 32, delete)
    x.XSendEvent(display, main, 0, 0, message)
    x.XCloseDisplay(display)
    await_end()


def await_end():
    wait("the end", lambda: game.poll() is not None, 10)
    expect(game.returncode == 0, "exit status")
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
    expect(button("Mülleimer").get_n_actions() == 0, "a hidden bin takes presses")
    press(button("Neues Spiel"))
    await_object("text", "Name des Spielers").set_text_contents("Jörg")
    press(await_object("radio button", "Größe 1", await_object("panel", "Größe")))
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
    wait("a grey bin", lambda: pixels(bin) == grey)
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
    quote = await_object("label", rf"{shots} \(\d+%\)")
    for blinks in True, False:
        wait("a result that blinks red", lambda: ((255, 0, 0) in pixels(quote)) == blinks)
    click(quote)  # anywhere
    wait("no top ten", lambda: not find("label", row))
    table = (own / "Score.hsc").read_bytes()
    expect(len(table) == 1800 and winner.encode("cp1252") in table[:30], table[:60])
    press(button("Ausgang"))
    yes = button("Ja")
    expect(yes.get_description() == "Willst Du das Spiel wirklich beenden?", yes.get_description())
    press(yes)
    await_end()


# ---- by mouse and keys

def change_options():
    click(button("Optionen"))
    click(*(await_object(kind, name) for kind, name in (
        ("check box", "Sound"), ("radio button", "Größe 3"), ("push button", "Übernehmen"))))
    wait("options", lambda: options.read_text().split()[1:] == ["Help=0", "Sound=1", "StdSize=3"])
    expect(len(children(sea())) == 180, "a new size at once")
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
        asked = button("Ja").get_description()
        expect(asked == "Soll die Top-Ten wirklich gelöscht werden?", asked)
        click(button(answer))
        await_object("label", row)
    expect((own / "Score.hsc").read_bytes()[2:11] == b"unbekannt", "not cleared on disk")
    click(await_object("label", "Zum Beenden .*"))
    wait("no top ten", lambda: not find("label", row))
    click(button("Hilfe"))
    await_object("tree", "Inhalt")
    close()


def play_by_hand():
    new_game("Jörg", "J", "odiaeresis", "r", "g")
    left, right = sea(), sea("Rechtes")
    water = wait("two empty fields", lambda: (now := pixels(left)) == pixels(right) and now)
    fleet = cells(left, FLEET.replace("C2", "C2 D3").replace("D4", "D4 E3"))  # which are refused
    click(*fleet)
    click(button("Nein"))
    wait("no boat", lambda: pixels(left) == pixels(right) == water)
    click(*fleet)
    click(button("Ja"))
    wait("the fleet on the right field alone", lambda: pixels(left) == water != pixels(right))

    # What comes during a turn waits: each press is a turn of its own, then comes a question,
    # and what comes after it is lost.
    subprocess.run(["xdotool", "windowfocus", window("^Korvel$")], check=True)
    click(*cells(left, "A1 B1 C1 D1 E1 E1 E1 E1"), "alt+a", "alt+t", *cells(left, "G1"))
    button("Nein")
    wait("eight turns",
         lambda: re.findall("Du: (..)", " ".join(said)) == "A1 B1 C1 D1 E1 E1 E1 E1".split())
    keys("^ $", "Escape")
    wait("no question", lambda: not find("push button", "Nein"))
    rest = cells(left, " ".join(f"{x}{y}" for y in range(3, 9) for x in "ABCDEFGHIJ"))
    close(lambda: click(*rest))  # before these turns, whose pauses take longer


options.parent.mkdir(parents=True, exist_ok=True)
defaults = "[Options]\nSound=0\nHelp=0\nStdSize=2\n"
options.write_text(defaults)
listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:showing")
subprocess.run(["setxkbmap", "de"], check=True)

# For a game whose pauses are a tenth as long.
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
close(lambda: click(*fleet))  # when the question is about to come
