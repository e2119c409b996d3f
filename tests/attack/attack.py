#!/usr/bin/env python3
"""Attacks on the score file: kills, files that are damaged or not a game's own to write, two games
on one file. After each, the file holds whole tables only, and nothing else has been touched.

A game files results of 20 bombs under the names G1, G2 ... of its letter G, on the sizes 1, 2, 3,
1 ... in turn. Each goes to place 1, so the table after any number of results is known.
"""
import fcntl
import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SAVE_FAILED = ("Es trat ein Fehler beim Speichern der Highscore-Daten auf!\r\n"
               "Das Programm wird beendet!\n")
BROKEN = ("Die Highscore-Datei ist beschädigt! Der normale Programmablauf kann nicht mehr "
          "sichergestellt werden!\n")
ANYBODY = dict(user=65534, group=65534, extra_groups=[]) if os.geteuid() == 0 else {}


def table(letter, count):
    """The bytes of the file after so many results of a game that began with the reset state."""
    texts = []
    for size in range(3):
        own = [n for n in range(count, max(count - 30, 0), -1) if (n - 1) % 3 == size]
        for row in [(f"{letter}{n}", "20") for n in own] + [("unbekannt", "?")] * (10 - len(own)):
            texts.extend(row)
    return b"".join(bytes([len(text), 0]) + text.encode().ljust(28, b"\0") for text in texts)


RESET, WHOLE = table("", 0), table("A", 1)
DAMAGED = bytes([29]) + RESET[1:]


def results(letter, count):
    return "".join(f"{(n - 1) % 3 + 1} 20 {letter}{n}\n" for n in range(1, count + 1)).encode()


def expect(truth, *what):
    if not truth:
        sys.exit(" ".join(map(str, ("FAILED:", *what))))


def start(file, **options):
    """A game that takes results from its input and prints a line for each that is saved. It has
    read the file, as it says at which place a hopeless result stands."""
    game = subprocess.Popen([scores, file, "--enter"], bufsize=0, stdin=subprocess.PIPE,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
    game.stdin.write(b"1 1001 nobody\n")
    expect(game.stdout.readline() == b"0\n", "a game does not start")
    return game


def finish(game, last=b""):
    """Gives a game its last results: its status and its messages at the end."""
    _, messages = game.communicate(last, timeout=60)
    return game.returncode, messages.decode()


def kills(file):
    """At random moments of its saves."""
    for kill in range(300):
        file.write_bytes(RESET)
        game = start(file)
        game.stdin.write(results("A", 5000))  # more than it files until it is killed
        told = game.stdout.readline().count(b"\n")
        time.sleep(random.uniform(0, 0.003))
        game.kill()
        told += game.communicate()[0].count(b"\n")
        left = file.read_bytes()
        expect(left in (table("A", told), table("A", told + 1)), "kill", kill, "leaves", left)


def play(name, content=RESET, messages="", saves=True, between=lambda file: None, mode=0o666,
         folder=0o777, **options):
    """A game in a folder of its own gives these messages at its start, then something happens,
    then it files a result, which it saves or not."""
    file = root / name / "Score.hsc"
    file.parent.mkdir(exist_ok=True)
    if content is not None:
        file.write_bytes(content)
        file.chmod(mode)
    file.parent.chmod(folder)
    game = start(file, **ANYBODY, **options)
    between(file)
    found = finish(game, results("A", 1))
    expected = (0, messages) if saves else (1, messages + SAVE_FAILED)
    expect(found == expected, name, found, "instead of", expected)
    if file.is_file():
        file.parent.chmod(0o777)
        file.chmod(0o666)
        expect(file.read_bytes() == (WHOLE if saves else content), name, "leaves another file")
    return file


def files():
    play("read-only", saves=False, mode=0o444)
    play("unreadable", messages=BROKEN, saves=False, mode=0)
    play("in a read-only folder", folder=0o555)  # in place, as no new file can be made there
    play("missing in a read-only folder", None, saves=False, folder=0o555)
    play("folder goes", saves=False, between=lambda file: file.parent.rename(root / "gone"))
    expect(play("goes", between=Path.unlink).exists(), "a file that has gone was not made again")
    play("damaged meanwhile", between=lambda file: file.write_bytes(b"\xff" * 600))

    # Without room nothing is written, and no part of a copy is left.
    full = dict(preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0)),
                restore_signals=False)
    there = os.listdir(play("no room", DAMAGED, BROKEN, saves=False, **full).parent)
    expect(there == ["Score.hsc"], "without room there are", there)

    # Something else, put there while the game runs or before, stays what it is.
    makers = Path.mkdir, os.mkfifo, lambda f: f.symlink_to("/dev/full"), lambda f: f.symlink_to(f)
    for number, make in enumerate(makers):
        file = play(f"else {number}", saves=False, between=lambda file: (file.unlink(), make(file)))
        kind = os.lstat(file)
        play(f"else {number}", None, BROKEN, saves=False)
        expect(os.lstat(file).st_ino == kind.st_ino, make, "is replaced")

    # What comes after the table, and links to it, stay.
    target = root / "target"
    target.write_bytes(RESET + b"behind")
    (root / "other").hardlink_to(target)
    (root / "link").symlink_to("target")
    expect(finish(start(root / "link"), results("A", 1)) == (0, ""), "a link fails")
    expect((root / "link").is_symlink(), "a link is replaced")
    expect((root / "other").read_bytes() == WHOLE + b"behind", "what comes after is lost")


def await_waiting(game, file, held):
    """Until a game has the file open for so long that it must be waiting there."""
    seen = 0
    while seen < 100:
        expect(game.poll() is None and file.read_bytes() == held, "a game does not wait")
        try:
            links = list(Path(f"/proc/{game.pid}/fd").iterdir())
            seen = seen + 1 if any(link.resolve() == file for link in links) else 0
        except OSError:  # it has just closed one, or has ended
            seen = 0


def turns(file):
    """Another game saves, which one that starts waits for; then it reads, which a save waits for.
    The game that saves last wins."""
    new = table("B", 30)
    file.write_bytes(RESET)
    game = start(file)
    with file.open("r+b", buffering=0) as other:
        fcntl.flock(other, fcntl.LOCK_EX)
        other.write(new[:900])
        reader = subprocess.Popen([scores, file], stdout=subprocess.PIPE)
        await_waiting(reader, file, new[:900] + RESET[900:])
        other.write(new[900:])
        fcntl.flock(other, fcntl.LOCK_SH)
        lines = reader.communicate(timeout=60)[0].decode().splitlines()
        expect(lines[10:20] == [f"2 20 B{n}" for n in range(29, 0, -3)], "read", lines)
        game.stdin.write(results("A", 1))
        await_waiting(game, file, new)
        expect(game.stdout.readline() == b"1\n", "a held file keeps a game from saving")
    expect(file.read_bytes() == WHOLE, "the save that waited is lost")


with tempfile.TemporaryDirectory(prefix="korvel-attack-", ignore_cleanup_errors=True) as folder:
    root = Path(folder).resolve()
    root.chmod(0o777)
    scores = shutil.copy(sys.argv[1], root)  # where any user reaches it
    os.umask(0)
    for attack in kills, turns:
        attack(root / "Score.hsc")
    files()
