#!/usr/bin/env python3
"""Two games on the same score file: it holds the table of the one that saved last, and who reads it
in turn sees a whole one, while both save at once too."""
import fcntl
import subprocess
import threading

import game

ALTERNATELY = 500  # results
AT_ONCE = 5000  # results of each game


def is_whole(content):
    """Whether it is the table of a single game after some number of its results."""
    firsts = [content[n + 2:n + 28].rstrip(b"\0").decode("cp1252") for n in (0, 600, 1200)]
    newest = max(int(name[1:]) if name[1:].isdigit() else 0 for name in firsts)
    return content == game.table(firsts[0][:1], newest)


def read(file):
    with file.open("rb") as content:
        fcntl.flock(content, fcntl.LOCK_SH)
        return content.read()


def start_two(scores, file):
    file.write_bytes(game.RESET)
    games = {letter: game.start(scores, file) for letter in "AB"}
    for process in games.values():
        game.await_loaded(process)
    return games


def alternately(scores, file):
    games = start_two(scores, file)
    for turn in range(ALTERNATELY):
        letter, number = "AB"[turn % 2], turn // 2 + 1
        game.save(games[letter], game.results(letter, 1, number))
        game.expect(file.read_bytes() == game.table(letter, number),
                    "turn", turn, "does not leave the table of who saved last")
    for process in games.values():
        game.expect(game.finish(process) == (0, ""), "a game failed")


def at_once(scores, file):
    games = start_two(scores, file)
    savers = []
    for letter, process in games.items():
        lines = game.results(letter, AT_ONCE).encode()
        savers.append(threading.Thread(target=process.communicate, args=[lines]))
    for saver in savers:
        saver.start()
    seen, reads = set(), 0
    while any(saver.is_alive() for saver in savers):
        content = read(file)
        reads += 1
        if content not in seen:
            game.expect(is_whole(content), "read", reads, "is not whole:", game.names(content))
            seen.add(content)
    game.expect(all(process.returncode == 0 for process in games.values()), "a game failed")
    game.expect(read(file) in [game.table(letter, AT_ONCE) for letter in games],
                "neither game's last table is left")
    return reads, len(seen)


def start_during_save(scores, file):
    """A game that starts while another is in the middle of a save waits for its end."""
    old, new = game.table("A", 30), game.table("B", 30)
    file.write_bytes(old)
    with file.open("r+b", buffering=0) as saver:
        fcntl.flock(saver, fcntl.LOCK_EX)
        saver.write(new[:900])
        reader = subprocess.Popen([scores, file], stdout=subprocess.PIPE)
        await_waiting(reader, file)
        saver.write(new[900:])
    lines = reader.communicate(timeout=60)[0].decode().splitlines()
    expected = [f"2 20 B{n}" for n in range(29, 0, -3)]
    game.expect(lines[10:20] == expected, "read", lines)


def save_during_start(scores, file):
    """A save waits for a game that is in the middle of reading, but not forever."""
    file.write_bytes(game.RESET)
    process = game.start(scores, file)
    game.await_loaded(process)
    with file.open("rb", buffering=0) as reader:
        fcntl.flock(reader, fcntl.LOCK_SH)
        begin = reader.read(900)
        process.stdin.write(game.results("A", 1).encode())
        await_waiting(process, file)
        game.expect(begin + reader.read() == game.RESET, "a save did not wait for a reader")
        game.expect(process.stdout.readline() == b"1\n", "a held file keeps a game from saving")
    game.expect(game.finish(process) == (0, ""), "a game failed")
    game.expect(file.read_bytes() == game.table("A", 1), "the save that waited is lost")


def await_waiting(process, file):
    """Until a process has the file open for so long that it must be waiting there."""
    seen = 0
    before = file.read_bytes()
    while seen < 100:
        game.expect(process.poll() is None and file.read_bytes() == before,
                    "a game does not wait for its turn")
        seen = seen + 1 if has_open(process, file) else 0


def has_open(process, file):
    try:
        return any(link.resolve() == file for link in game.Path(f"/proc/{process.pid}/fd").iterdir())
    except OSError:  # it has just closed one, or has ended
        return False


def attack(scores, folder):
    file = folder.resolve() / "Score.hsc"
    alternately(scores, file)
    reads, seen = at_once(scores, file)
    start_during_save(scores, file)
    save_during_start(scores, file)
    return (f"{ALTERNATELY} saves alternately; {2 * AT_ONCE} at once, {reads} reads of {seen} tables, "
            "all whole")


game.main(attack)
