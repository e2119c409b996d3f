"""What the attacks on the score file share: a game without a window, and its tables.

A game files results of 20 bombs under the names G1, G2 ... of its letter G, on the sizes 1, 2, 3,
1 ... in turn. Each goes to place 1, so the table after any number of results is known, and a table
with parts of two of them is none.
"""
import random
import signal
import subprocess
import sys
import tempfile
import time
from functools import lru_cache
from pathlib import Path

SAVE_FAILED = ("Es trat ein Fehler beim Speichern der Highscore-Daten auf!\r\n"
               "Das Programm wird beendet!\n")
BROKEN = ("Die Highscore-Datei ist beschädigt! Der normale Programmablauf kann nicht mehr "
          "sichergestellt werden!\n")
LIMIT = 120  # seconds for an attack, if something hangs


def record(text):
    return bytes([len(text), 0]) + text.encode("cp1252").ljust(28, b"\0")


@lru_cache(maxsize=None)
def table(letter, count):
    """The bytes of the file after so many results of a game that began with the reset state."""
    records = b""
    for size in range(3):
        own = [n for n in range(count, max(count - 30, 0), -1) if (n - 1) % 3 == size]
        rows = [(f"{letter}{n}", "20") for n in own] + [("unbekannt", "?")] * (10 - len(own))
        records += b"".join(record(name) + record(quote) for name, quote in rows)
    return records


RESET = table("", 0)


def results(letter, count, first=1):
    return "".join(f"{(n - 1) % 3 + 1} 20 {letter}{n}\n" for n in range(first, first + count))


started = []  # every process of `start`


class Failed(Exception):
    pass


def expect(truth, *what):
    if not truth:
        raise Failed(" ".join(map(str, what)))


def names(content):
    """The first names of a file, to be told in a report."""
    texts = [content[n + 2:n + 2 + content[n]] for n in range(0, len(content) - 29, 60)]
    return f"{len(content)} bytes: " + b" ".join(texts).decode("cp1252", "replace")


def start(scores, file, stdin=subprocess.PIPE, **options):
    """The game, that takes results from its input and prints a line for each that is saved."""
    process = subprocess.Popen([scores, file, "--enter"], bufsize=0, stdin=stdin,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
    started.append(process)
    return process


def save(process, line):
    """Gives a result to a game and waits until it has saved it, or has ended: its answer."""
    process.stdin.write(line.encode())
    return process.stdout.readline()


def await_loaded(process):
    """Waits until a game has read the file: it says at which place a hopeless result stands."""
    expect(save(process, "1 1001 nobody\n") == b"0\n", "a game does not start")


def finish(process):
    """Ends a game: its status and its messages."""
    _, messages = process.communicate(timeout=60)
    return process.returncode, messages.decode()


def main(attack):
    """Runs attack(scores, folder), which returns what to report; arguments: SCORES [SEED]."""
    if len(sys.argv) not in (2, 3) or sys.argv[1].startswith("--"):
        sys.exit(f"usage: {sys.argv[0]} SCORES [SEED]    SCORES is the program of tools/")
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else random.SystemRandom().randrange(2**32)
    random.seed(seed)
    begin = time.monotonic()
    signal.signal(signal.SIGALRM, lambda *_: expect(False, "no end in sight"))
    signal.alarm(LIMIT)
    with tempfile.TemporaryDirectory(prefix="korvel-attack-", ignore_cleanup_errors=True) as folder:
        try:
            report = attack(Path(sys.argv[1]).resolve(), Path(folder))
        except (Failed, subprocess.SubprocessError) as failure:
            print(f"FAILED: {failure}; seed {seed}")
            sys.exit(1)
        finally:
            for process in started:
                if process.poll() is None:
                    process.kill()
    print(f"{report} in {time.monotonic() - begin:.1f} s, seed {seed}")
