#!/usr/bin/env python3
"""Kills a game at random moments of its saves, five hundred times: the file is then the table after
the last result that the game has reported, or after the next one, to the byte. Every fifth game is
killed while it makes its file at a first start."""
import random
import time

import game

KILLS = 500
FIRST_START = 5  # every how many
RESULTS = 5000  # more than a game files until it is killed
MOST = 0.003  # seconds from the first result to the kill


def wait(seconds):
    end = time.perf_counter() + seconds
    while time.perf_counter() < end:
        pass


def attack(scores, folder):
    file = folder / "Score.hsc"
    feed = folder / "feed"
    feed.write_text(game.results("A", RESULTS))
    kills = saves = untold = making = 0
    start_takes = 1.0  # seconds; the real figure follows
    while kills < KILLS:
        first_start = kills % FIRST_START == FIRST_START - 1
        file.unlink(missing_ok=True)
        if not first_start:
            file.write_bytes(game.RESET)
        with feed.open() as lines:
            begin = time.perf_counter()
            process = game.start(scores, file, lines)
        told = 0
        if first_start:
            wait(random.uniform(0.5, 1.1) * start_takes)
        else:
            told = process.stdout.readline().count(b"\n")
            start_takes = min(start_takes, time.perf_counter() - begin)
            wait(random.uniform(0, MOST))
        process.kill()
        out, messages = process.communicate()
        if process.returncode == 0:  # it was too late for this one
            continue
        kills += 1
        told += out.count(b"\n")
        saves += told
        left = file.read_bytes() if file.exists() else b""
        whole = [game.table("A", told), game.table("A", told + 1)]
        if first_start and told == 0:
            whole.append(b"")
            making += left in (b"", game.RESET)
        game.expect(left in whole, f"kill {kills}, {told} results reported:", game.names(left))
        game.expect(not messages, messages)
        untold += left == game.table("A", told + 1)
    return (f"{kills} kills during {saves} saves left whole tables, {untold} with a result not yet "
            f"reported, {making} just made or empty at a first start")


game.main(attack)
