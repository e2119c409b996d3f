#!/usr/bin/env python3
"""What a game does with a score file that is not its own to write, is something else, is damaged,
or goes or changes while it runs: it starts, a save either writes the whole table or ends it with
its message, and nothing else is touched."""
import os
import shutil
import stat
import subprocess
from contextlib import contextmanager

import game

NOBODY = dict(user=65534, group=65534, extra_groups=[]) if os.geteuid() == 0 else {}
WHOLE = game.table("A", 1)
DAMAGED = bytes([29]) + game.RESET[1:]


def run(scores, file, messages, between=lambda: None, saves=True, **user):
    """A game that gives these messages at its start, then what happens, then a result, which it
    saves or not."""
    process = game.start(scores, file, **(user or NOBODY))
    game.await_loaded(process)
    between()
    game.save(process, game.results("A", 1))
    expected = (0, messages) if saves else (1, messages + game.SAVE_FAILED)
    found = game.finish(process)
    game.expect(found == expected, "status and messages", found, "instead of", expected)


def read_only_file(scores, file):
    file.write_bytes(game.RESET)
    file.chmod(0o444)
    run(scores, file, "", saves=False)
    return game.RESET


def unreadable_file(scores, file):
    file.write_bytes(game.RESET)
    file.chmod(0)
    run(scores, file, game.BROKEN, saves=False)
    file.chmod(0o644)
    return game.RESET


def in_read_only_folder(scores, file):
    """In place, as no new file can be made there."""
    for before, message in (game.RESET, ""), (DAMAGED, game.BROKEN):
        file.write_bytes(before)
        with changed(file.parent, 0o555):
            run(scores, file, message)
            game.expect(os.listdir(file.parent) == [file.name], os.listdir(file.parent))
    return WHOLE


def missing_in_read_only_folder(scores, file):
    with changed(file.parent, 0o555):
        run(scores, file, "", saves=False)


def vanished_folder(scores, file):
    file.write_bytes(game.RESET)
    away = file.parent.with_name("away")
    run(scores, file, "", lambda: file.parent.rename(away), saves=False)
    game.expect(not file.parent.exists(), "the folder is there again")
    away.rename(file.parent)
    return game.RESET


def gone_file(scores, file):
    file.write_bytes(game.RESET)
    run(scores, file, "", file.unlink)
    return WHOLE


def file_damaged_meanwhile(scores, file):
    for damage in b"\xff" * 600, b"\xff" * 1800:
        file.write_bytes(game.RESET)
        run(scores, file, "", lambda: file.write_bytes(damage))
        game.expect(file.read_bytes() == WHOLE, "a save leaves", game.names(file.read_bytes()))
    return WHOLE


def damaged_file(scores, file):
    file.write_bytes(DAMAGED)
    run(scores, file, game.BROKEN)
    game.expect(file.with_name("Score.hsc.defekt").read_bytes() == DAMAGED, "no true copy")
    return WHOLE


def something_else(scores, file):
    """At the start, and put there while the game runs."""
    things = {file.mkdir: stat.S_ISDIR, lambda: os.mkfifo(file, 0o666): stat.S_ISFIFO,
              lambda: file.symlink_to("/dev/full"): stat.S_ISCHR,
              lambda: file.symlink_to(file): stat.S_ISLNK}
    for make, is_it in things.items():
        def replace():
            file.unlink()
            make()

        file.write_bytes(game.RESET)
        run(scores, file, "", replace, saves=False)
        run(scores, file, game.BROKEN, saves=False)
        kind = os.lstat(file) if is_it == stat.S_ISLNK else os.stat(file)
        game.expect(is_it(kind.st_mode), "was replaced:", oct(kind.st_mode))
        file.rmdir() if file.is_dir() else file.unlink()


def links(scores, file):
    target, other = file.with_name("target"), file.with_name("other")
    target.write_bytes(game.RESET + b"behind")
    target.chmod(0o646)
    other.hardlink_to(target)
    file.symlink_to("target")
    run(scores, file, "")
    game.expect(file.is_symlink() and target.samefile(other), "a link is lost")
    game.expect(stat.S_IMODE(target.stat().st_mode) == 0o646, "another mode")
    game.expect(other.read_bytes() == WHOLE + b"behind", "at the end of the link:",
                game.names(other.read_bytes()))

    target.unlink()  # the link leads nowhere now
    run(scores, file, "")
    game.expect(file.is_symlink(), "a link is lost")
    return WHOLE


def full_disk(scores, file):
    """A table that is there needs no room; a new one, or a copy of a damaged one, gets none."""
    if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8k", "full", file.parent],
                      stderr=subprocess.DEVNULL).returncode:
        raise Skipped("nothing can be mounted here")
    try:
        file.parent.chmod(0o777)
        for before, message, after in ((game.RESET, "", WHOLE), (DAMAGED, game.BROKEN, WHOLE),
                                       (b"", "", b""), (None, "", b"")):
            file.unlink(missing_ok=True)
            if before is not None:
                file.write_bytes(before)
                file.chmod(0o666)
            filler = file.with_name("filler")
            try:
                filler.write_bytes(b"x" * 8192)
            except OSError:
                pass  # full
            run(scores, file, message, saves=after == WHOLE)
            left = file.read_bytes()
            game.expect(left == after, "of", before, "is left:", game.names(left))
            there = sorted(os.listdir(file.parent))
            game.expect(there == ["Score.hsc", "filler"], there)
            filler.unlink()
    finally:
        subprocess.run(["umount", file.parent], check=True)
    return None


class Skipped(Exception):
    pass


@contextmanager
def changed(folder, mode):
    before = folder.stat().st_mode
    folder.chmod(mode)
    try:
        yield
    finally:
        folder.chmod(before)


CASES = (read_only_file, unreadable_file, in_read_only_folder, missing_in_read_only_folder,
         vanished_folder, gone_file, file_damaged_meanwhile, damaged_file, something_else, links,
         full_disk)


def attack(scores, folder):
    """Each case in a folder of its own that all may write; it gives the bytes that the file holds
    then, or nothing."""
    folder.chmod(0o777)
    scores = shutil.copy(scores, folder)  # where any user reaches it
    skipped = []
    for case in CASES:
        file = folder / case.__name__ / "Score.hsc"
        file.parent.mkdir()
        file.parent.chmod(0o777)
        os.umask(0)
        try:
            left = case(scores, file)
            game.expect(left is None or file.read_bytes() == left, "the file has changed")
        except Skipped as why:
            skipped.append(f"; SKIPPED {case.__name__}: {why}")
        except (game.Failed, OSError) as failure:
            raise game.Failed(f"{case.__name__}: {failure}") from failure
    return f"{len(CASES) - len(skipped)} attacks on the file{''.join(skipped)}"


game.main(attack)
